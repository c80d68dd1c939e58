/// Pointing-device and time sensors and the interpolator they drive (ISO/IEC
/// 14772-1, 4.6.7, 4.6.8).
#pragma once

#include "orvane/scene/ListFields.h"
#include "orvane/scene/Node.h"
#include "orvane/scene/SingleFields.h"

#include <numbers>

namespace orvane::scene {

/// [-2pi,2pi]
inline constexpr Interval kTwoTurns{-2 * std::numbers::pi, 2 * std::numbers::pi};

///     TouchSensor {
///       exposedField SFBool  enabled TRUE
///       eventOut     SFVec3f hitNormal_changed
///       eventOut     SFVec3f hitPoint_changed
///       eventOut     SFVec2f hitTexCoord_changed
///       eventOut     SFBool  isActive
///       eventOut     SFBool  isOver
///       eventOut     SFTime  touchTime
///     }
class ORVANE_API TouchSensor final : public NodeOf<TouchSensor> {
 public:
  static constexpr const char* kClassName = "TouchSensor";

  SFBool enabled{*this, "enabled", true};
  EventOut<SFVec3f> hitNormal_changed{*this, "hitNormal_changed"};
  EventOut<SFVec3f> hitPoint_changed{*this, "hitPoint_changed"};
  EventOut<SFVec2f> hitTexCoord_changed{*this, "hitTexCoord_changed"};
  EventOut<SFBool> isActive{*this, "isActive"};
  EventOut<SFBool> isOver{*this, "isOver"};
  EventOut<SFTime> touchTime{*this, "touchTime"};
};

/// Dragging in the local xy plane.
///
///     PlaneSensor {
///       exposedField SFBool  autoOffset  TRUE
///       exposedField SFBool  enabled     TRUE
///       exposedField SFVec2f maxPosition -1 -1
///       exposedField SFVec2f minPosition 0 0
///       exposedField SFVec3f offset      0 0 0
///       eventOut     SFBool  isActive
///       eventOut     SFVec3f trackPoint_changed
///       eventOut     SFVec3f translation_changed
///     }
class ORVANE_API PlaneSensor final : public NodeOf<PlaneSensor> {
 public:
  static constexpr const char* kClassName = "PlaneSensor";

  SFBool autoOffset{*this, "autoOffset", true};
  SFBool enabled{*this, "enabled", true};
  SFVec2f maxPosition{*this, "maxPosition", {-1, -1}};
  SFVec2f minPosition{*this, "minPosition", {0, 0}};
  SFVec3f offset{*this, "offset", {0, 0, 0}};
  EventOut<SFBool> isActive{*this, "isActive"};
  EventOut<SFVec3f> trackPoint_changed{*this, "trackPoint_changed"};
  EventOut<SFVec3f> translation_changed{*this, "translation_changed"};
};

/// Turning about the local y axis.
///
///     CylinderSensor {
///       exposedField SFBool     autoOffset TRUE
///       exposedField SFFloat    diskAngle  0.262   # [0,pi/2]
///       exposedField SFBool     enabled    TRUE
///       exposedField SFFloat    maxAngle   -1      # [-2pi,2pi]
///       exposedField SFFloat    minAngle   0       # [-2pi,2pi]
///       exposedField SFFloat    offset     0
///       eventOut     SFBool     isActive
///       eventOut     SFRotation rotation_changed
///       eventOut     SFVec3f    trackPoint_changed
///     }
class ORVANE_API CylinderSensor final : public NodeOf<CylinderSensor> {
 public:
  static constexpr const char* kClassName = "CylinderSensor";

  SFBool autoOffset{*this, "autoOffset", true};
  SFFloat diskAngle{*this, "diskAngle", 0.262F, Interval{0, std::numbers::pi / 2}};
  SFBool enabled{*this, "enabled", true};
  SFFloat maxAngle{*this, "maxAngle", -1, kTwoTurns};
  SFFloat minAngle{*this, "minAngle", 0, kTwoTurns};
  SFFloat offset{*this, "offset", 0};
  EventOut<SFBool> isActive{*this, "isActive"};
  EventOut<SFRotation> rotation_changed{*this, "rotation_changed"};
  EventOut<SFVec3f> trackPoint_changed{*this, "trackPoint_changed"};
};

///     TimeSensor {
///       exposedField SFTime  cycleInterval 1       # (0,inf), seconds
///       exposedField SFBool  enabled       TRUE
///       exposedField SFBool  loop          FALSE
///       exposedField SFTime  startTime     0
///       exposedField SFTime  stopTime      0
///       eventOut     SFTime  cycleTime
///       eventOut     SFFloat fraction_changed      # [0,1]
///       eventOut     SFBool  isActive
///       eventOut     SFTime  time
///     }
class ORVANE_API TimeSensor final : public NodeOf<TimeSensor> {
 public:
  static constexpr const char* kClassName = "TimeSensor";

  SFTime cycleInterval{*this, "cycleInterval", 1, kPositive};
  SFBool enabled{*this, "enabled", true};
  SFBool loop{*this, "loop", false};
  SFTime startTime{*this, "startTime", 0};
  SFTime stopTime{*this, "stopTime", 0};
  EventOut<SFTime> cycleTime{*this, "cycleTime"};
  EventOut<SFFloat> fraction_changed{*this, "fraction_changed"};
  EventOut<SFBool> isActive{*this, "isActive"};
  EventOut<SFTime> time{*this, "time"};
};

/// Moves a list of points: keyValue holds one such list for each key.
///
///     CoordinateInterpolator {
///       eventIn      SFFloat set_fraction
///       exposedField MFFloat key      []
///       exposedField MFVec3f keyValue []
///       eventOut     MFVec3f value_changed
///     }
class ORVANE_API CoordinateInterpolator final : public NodeOf<CoordinateInterpolator> {
 public:
  static constexpr const char* kClassName = "CoordinateInterpolator";

  EventIn<SFFloat> set_fraction{*this, "set_fraction"};
  MFFloat key{*this, "key"};
  MFVec3f keyValue{*this, "keyValue"};
  EventOut<MFVec3f> value_changed{*this, "value_changed"};
};

}  // namespace orvane::scene
