/// The grouping nodes (ISO/IEC 14772-1, 4.6.5), `children` first.
#pragma once

#include "orvane/scene/ListFields.h"
#include "orvane/scene/Node.h"
#include "orvane/scene/SingleFields.h"

namespace orvane::scene {

/// Children that are drawn together.
///
///     Group {
///       eventIn      MFNode addChildren
///       eventIn      MFNode removeChildren
///       exposedField MFNode children    []
///       field        SFVec3f bboxCenter 0 0 0
///       field        SFVec3f bboxSize   -1 -1 -1   # (0,inf) or -1,-1,-1
///     }
class ORVANE_API Group final : public NodeOf<Group> {
 public:
  static constexpr const char* kClassName = "Group";

  MFNode children{*this, "children"};
  EventIn<MFNode> addChildren{*this, "addChildren"};
  EventIn<MFNode> removeChildren{*this, "removeChildren"};
  SFVec3f bboxCenter{*this, "bboxCenter", {0, 0, 0}, AccessKind::Field};
  SFVec3f bboxSize{*this, "bboxSize", {-1, -1, -1}, AccessKind::Field};
};

/// A coordinate system for its children: scaled, then rotated, then translated.
///
///     Transform {
///       exposedField SFVec3f    center           0 0 0
///       exposedField SFRotation rotation         0 0 1 0
///       exposedField SFVec3f    scale            1 1 1     # (0,inf)
///       exposedField SFRotation scaleOrientation 0 0 1 0
///       exposedField SFVec3f    translation      0 0 0
///       ... and the fields of Group
///     }
class ORVANE_API Transform final : public NodeOf<Transform> {
 public:
  static constexpr const char* kClassName = "Transform";

  MFNode children{*this, "children"};
  EventIn<MFNode> addChildren{*this, "addChildren"};
  EventIn<MFNode> removeChildren{*this, "removeChildren"};
  SFVec3f center{*this, "center", {0, 0, 0}};
  SFRotation rotation{*this, "rotation", {0, 0, 1, 0}};
  SFVec3f scale{*this, "scale", {1, 1, 1}, kPositive};
  SFRotation scaleOrientation{*this, "scaleOrientation", {0, 0, 1, 0}};
  SFVec3f translation{*this, "translation", {0, 0, 0}};
  SFVec3f bboxCenter{*this, "bboxCenter", {0, 0, 0}, AccessKind::Field};
  SFVec3f bboxSize{*this, "bboxSize", {-1, -1, -1}, AccessKind::Field};
};

/// Children that turn about an axis to face the viewer.
///
///     Billboard {
///       exposedField SFVec3f axisOfRotation 0 1 0   # 0 0 0: always faces the viewer
///       ... and the fields of Group
///     }
class ORVANE_API Billboard final : public NodeOf<Billboard> {
 public:
  static constexpr const char* kClassName = "Billboard";

  MFNode children{*this, "children"};
  EventIn<MFNode> addChildren{*this, "addChildren"};
  EventIn<MFNode> removeChildren{*this, "removeChildren"};
  SFVec3f axisOfRotation{*this, "axisOfRotation", {0, 1, 0}};
  SFVec3f bboxCenter{*this, "bboxCenter", {0, 0, 0}, AccessKind::Field};
  SFVec3f bboxSize{*this, "bboxSize", {-1, -1, -1}, AccessKind::Field};
};

/// Children that load a world when they are clicked.
///
///     Anchor {
///       exposedField SFString description ""
///       exposedField MFString parameter   []
///       exposedField MFString url         []
///       ... and the fields of Group
///     }
class ORVANE_API Anchor final : public NodeOf<Anchor> {
 public:
  static constexpr const char* kClassName = "Anchor";

  MFNode children{*this, "children"};
  EventIn<MFNode> addChildren{*this, "addChildren"};
  EventIn<MFNode> removeChildren{*this, "removeChildren"};
  SFString description{*this, "description", ""};
  MFString parameter{*this, "parameter"};
  MFString url{*this, "url"};
  SFVec3f bboxCenter{*this, "bboxCenter", {0, 0, 0}, AccessKind::Field};
  SFVec3f bboxSize{*this, "bboxSize", {-1, -1, -1}, AccessKind::Field};
};

/// One of several children, or none.
///
///     Switch {
///       exposedField MFNode  choice      []
///       exposedField SFInt32 whichChoice -1   # [-1,inf), counted from 0
///     }
class ORVANE_API Switch final : public NodeOf<Switch> {
 public:
  static constexpr const char* kClassName = "Switch";

  MFNode choice{*this, "choice"};
  SFInt32 whichChoice{*this, "whichChoice", -1};
};

}  // namespace orvane::scene
