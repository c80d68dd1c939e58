/// The PROTOs of VR_GRAPH.wrl: chart shapes. Each class mirrors its PROTO's interface; what a PROTO
/// draws from its fields is said there.
#pragma once

#include "orvane/scene/ListFields.h"
#include "orvane/scene/Node.h"
#include "orvane/scene/SingleFields.h"

namespace orvane::scene {

/// What every chart shape begins with: its place, turn and size in its parent's frame.
class ORVANE_API PlacedProto : public ProtoInstance {
 public:
  SFVec3f translation{*this, "translation", {0, 0, 0}};
  SFRotation rotation{*this, "rotation", {0, 0, 1, 0}};
  SFVec3f scale{*this, "scale", {1, 1, 1}, kPositive};
};

template <class Self>
class GraphProto : public NodeOf<Self, PlacedProto> {
 public:
  static constexpr Module kModule = Module::Graph;
};

/// The lines and walls of the box that a chart stands in, from the origin along +x, +y and +z.
class ORVANE_API ChartGrid final : public GraphProto<ChartGrid> {
 public:
  static constexpr const char* kClassName = "qm4_ChartGrid";

  SFNode wallAppearance{*this, "wallAppearance", NodeRole::Appearance};
  SFColor lineColor{*this, "lineColor", {0, 0, 0}};
  SFInt32 xLineCount{*this, "xLineCount", 5};
  SFFloat xSpacing{*this, "xSpacing", 2};
  SFInt32 yLineCount{*this, "yLineCount", 5};
  SFFloat ySpacing{*this, "ySpacing", 1.5F};
  SFInt32 zLineCount{*this, "zLineCount", 5};
  SFFloat zSpacing{*this, "zSpacing", 2};
};

/// Key shapes with texts beside them, the first entry lowest.
class ORVANE_API Legend final : public GraphProto<Legend> {
 public:
  static constexpr const char* kClassName = "qm4_Legend";

  MFNode keyAppearances{*this, "keyAppearances", NodeRole::Appearance, AccessKind::Field};
  EventIn<MFNode> set_keyAppearances{*this, "set_keyAppearances"};
  EventOut<MFNode> keyAppearances_changed{*this, "keyAppearances_changed"};
  MFString entryTexts{*this, "entryTexts"};
  SFString keyStyle{*this, "keyStyle", "BOX"};
  SFFloat textHeight{*this, "textHeight", 1};
  SFFloat entryGap{*this, "entryGap", 0.5F};
  SFColor textColor{*this, "textColor", {1, 1, 1}};
};

class ORVANE_API OutlinedAreaSeries final : public GraphProto<OutlinedAreaSeries> {
 public:
  static constexpr const char* kClassName = "qm4_OutlinedAreaSeries";

  SFNode appearance{*this, "appearance", NodeRole::Appearance};
  SFInt32 count{*this, "count", 4};
  SFFloat spacing{*this, "spacing", 2};
  SFFloat depth{*this, "depth", 1};
  MFFloat heights{*this, "heights"};
};

class ORVANE_API OutlinedColumnSeries final : public GraphProto<OutlinedColumnSeries> {
 public:
  static constexpr const char* kClassName = "qm4_OutlinedColumnSeries";

  MFNode appearance{*this, "appearance", NodeRole::Appearance};
  SFColor edgeColor{*this, "edgeColor", {0, 0, 0}};
  SFInt32 count{*this, "count", 4};
  SFFloat spacing{*this, "spacing", 2};
  SFFloat width{*this, "width", 1};
  SFFloat depth{*this, "depth", 1};
  MFFloat heights{*this, "heights"};
};

class ORVANE_API RoundedColumnSeries final : public GraphProto<RoundedColumnSeries> {
 public:
  static constexpr const char* kClassName = "qm4_RoundedColumnSeries";

  MFNode appearance{*this, "appearance", NodeRole::Appearance};
  SFInt32 count{*this, "count", 4};
  SFFloat spacing{*this, "spacing", 2};
  SFFloat width{*this, "width", 1};
  SFFloat depth{*this, "depth", 1};
  MFFloat heights{*this, "heights"};
  SFInt32 bevelSegments{*this, "bevelSegments", 3};
  SFFloat bevelRadius{*this, "bevelRadius", 0.1F};
};

class ORVANE_API OutlinedRibbonSeries final : public GraphProto<OutlinedRibbonSeries> {
 public:
  static constexpr const char* kClassName = "qm4_OutlinedRibbonSeries";

  SFNode appearance{*this, "appearance", NodeRole::Appearance};
  SFColor edgeColor{*this, "edgeColor", {0, 0, 0}};
  SFInt32 count{*this, "count", 4};
  SFFloat spacing{*this, "spacing", 2};
  SFFloat thickness{*this, "thickness", 0.2F};
  SFFloat depth{*this, "depth", 1};
  MFFloat heights{*this, "heights"};
};

class ORVANE_API RoundedRibbonSeries final : public GraphProto<RoundedRibbonSeries> {
 public:
  static constexpr const char* kClassName = "qm4_RoundedRibbonSeries";

  SFNode appearance{*this, "appearance", NodeRole::Appearance};
  SFInt32 count{*this, "count", 4};
  SFFloat spacing{*this, "spacing", 2};
  SFFloat thickness{*this, "thickness", 0.2F};
  SFFloat depth{*this, "depth", 1};
  MFFloat heights{*this, "heights"};
  SFFloat bevelRadius{*this, "bevelRadius", 0.05F};
};

/// Clickable cones; a click sends the 0-based index of the cone.
class ORVANE_API ConeCollection final : public GraphProto<ConeCollection> {
 public:
  static constexpr const char* kClassName = "qm4_ConeCollection";

  SFColor coneColor{*this, "coneColor", {0.1294F, 0.4549F, 0.6471F}};
  SFFloat coneRadius{*this, "coneRadius", 0.3F};
  SFFloat coneHeight{*this, "coneHeight", 0.6F};
  SFRotation coneRotation{*this, "coneRotation", {0, 0, 1, 0}};
  SFFloat coneTransparency{*this, "coneTransparency", 0};
  SFString description{*this, "description", ""};
  MFVec3f coneLocations{*this, "coneLocations"};
  EventOut<SFInt32> mouseClickedIndex{*this, "mouseClickedIndex"};
};

/// An invisible strip along a series that pops up the text of the value pointed at.
class ORVANE_API PopupStrip final : public GraphProto<PopupStrip> {
 public:
  static constexpr const char* kClassName = "qm4_PopupStrip";

  SFInt32 pointCount{*this, "pointCount", 4};
  SFFloat pointSpacing{*this, "pointSpacing", 2};
  SFFloat stripRadius{*this, "stripRadius", 0.4F};
  SFFloat stripDepth{*this, "stripDepth", 1.05F};
  MFFloat pointHeights{*this, "pointHeights"};
  SFColor stripColor{*this, "stripColor", {1, 1, 1}};
  SFFloat stripFactor{*this, "stripFactor", 1};
  SFFloat stripTransparency{*this, "stripTransparency", 1};
  SFFloat textHeight{*this, "textHeight", 0.5F};
  SFString alignment{*this, "alignment", "TOP"};
  MFString popupTexts{*this, "popupTexts"};
  SFColor textColor{*this, "textColor", {0, 0, 0}};
  SFColor backgroundColor{*this, "backgroundColor", {1, 1, 0.8784F}};
  SFColor borderColor{*this, "borderColor", {0.2F, 0.2F, 0.2F}};
};

class ORVANE_API OutlinedPieSlice final : public GraphProto<OutlinedPieSlice> {
 public:
  static constexpr const char* kClassName = "qm4_OutlinedPieSlice";

  SFNode appearance{*this, "appearance", NodeRole::Appearance};
  SFColor edgeColor{*this, "edgeColor", {0, 0, 0}};
  SFFloat height{*this, "height", 1};
  SFFloat radius{*this, "radius", 3};
  SFFloat angle{*this, "angle", 1.256636F};
};

class ORVANE_API RoundedPieSlice final : public GraphProto<RoundedPieSlice> {
 public:
  static constexpr const char* kClassName = "qm4_RoundedPieSlice";

  SFNode appearance{*this, "appearance", NodeRole::Appearance};
  SFFloat height{*this, "height", 1};
  SFFloat radius{*this, "radius", 3};
  SFFloat angle{*this, "angle", 1.256636F};
  SFFloat bevelRadius{*this, "bevelRadius", 0.2F};
};

class ORVANE_API RoundedRingSlice final : public GraphProto<RoundedRingSlice> {
 public:
  static constexpr const char* kClassName = "qm4_RoundedRingSlice";

  SFNode appearance{*this, "appearance", NodeRole::Appearance};
  SFFloat height{*this, "height", 1};
  SFFloat radius{*this, "radius", 3};
  SFFloat innerRadius{*this, "innerRadius", 1.5F};
  SFFloat angle{*this, "angle", 1.256636F};
  SFFloat bevelRadius{*this, "bevelRadius", 0.2F};
};

class ORVANE_API SphereCollection final : public GraphProto<SphereCollection> {
 public:
  static constexpr const char* kClassName = "qm4_SphereCollection";

  MFVec3f locations{*this, "locations"};
  MFColor colors{*this, "colors"};
  MFFloat transparencies{*this, "transparencies"};
  MFFloat radii{*this, "radii"};
};

/// A shaded height field; heights run along x fastest.
class ORVANE_API Surface final : public GraphProto<Surface> {
 public:
  static constexpr const char* kClassName = "qm4_Surface";

  SFNode appearance{*this, "appearance", NodeRole::Appearance};
  SFFloat creaseAngle{*this, "creaseAngle", 1};
  SFBool solid{*this, "solid", false};
  SFInt32 xDimension{*this, "xDimension", 2};
  SFFloat xSpacing{*this, "xSpacing", 1};
  SFInt32 zDimension{*this, "zDimension", 2};
  SFFloat zSpacing{*this, "zSpacing", 1};
  MFFloat height{*this, "height", {0, 0, 0, 0}};
};

class ORVANE_API ElevationWireframe final : public GraphProto<ElevationWireframe> {
 public:
  static constexpr const char* kClassName = "qm4_ElevationWireframe";

  SFColor wireColor{*this, "wireColor", {0, 0, 0}};
  SFInt32 xDimension{*this, "xDimension", 2};
  SFFloat xSpacing{*this, "xSpacing", 1};
  SFInt32 zDimension{*this, "zDimension", 2};
  SFFloat zSpacing{*this, "zSpacing", 1};
  MFFloat height{*this, "height", {0, 0, 0, 0}};
};

/// An invisible height field that pops up the text of the lattice point pointed at.
class ORVANE_API PopupSurface final : public GraphProto<PopupSurface> {
 public:
  static constexpr const char* kClassName = "qm4_PopupSurface";

  SFInt32 xDimension{*this, "xDimension", 2};
  SFFloat xSpacing{*this, "xSpacing", 1};
  SFInt32 zDimension{*this, "zDimension", 2};
  SFFloat zSpacing{*this, "zSpacing", 1};
  SFFloat popupDepth{*this, "popupDepth", 0.3F};
  MFFloat height{*this, "height", {0, 0, 0, 0}};
  SFColor frameColor{*this, "frameColor", {1, 1, 1}};
  SFFloat frameScale{*this, "frameScale", 1};
  SFFloat frameTransparency{*this, "frameTransparency", 1};
  SFFloat textHeight{*this, "textHeight", 0.5F};
  SFString textPosition{*this, "textPosition", "TOP"};
  MFString popupText{*this, "popupText"};
  SFColor textColor{*this, "textColor", {0, 0, 0}};
  SFColor backgroundColor{*this, "backgroundColor", {1, 1, 0.8784F}};
  SFColor borderColor{*this, "borderColor", {0.2F, 0.2F, 0.2F}};
};

}  // namespace orvane::scene
