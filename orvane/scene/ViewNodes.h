/// What surrounds the viewer: Background, NavigationInfo, Viewpoint (ISO/IEC 14772-1, 4.6.10) and
/// the PointLight.
#pragma once

#include "orvane/scene/ListFields.h"
#include "orvane/scene/Node.h"
#include "orvane/scene/SingleFields.h"

#include <numbers>

namespace orvane::scene {

///     Background {
///       eventIn      SFBool   set_bind
///       exposedField MFFloat  groundAngle  []      # [0,pi/2]
///       exposedField MFColor  groundColor  []      # [0,1]
///       exposedField MFString backUrl      []
///       exposedField MFString bottomUrl    []
///       exposedField MFString frontUrl     []
///       exposedField MFString leftUrl      []
///       exposedField MFString rightUrl     []
///       exposedField MFString topUrl       []
///       exposedField MFFloat  skyAngle     []      # [0,pi], radians from the zenith
///       exposedField MFColor  skyColor     0 0 0   # [0,1]
///       eventOut     SFBool   isBound
///     }
class ORVANE_API Background final : public NodeOf<Background> {
 public:
  static constexpr const char* kClassName = "Background";

  EventIn<SFBool> set_bind{*this, "set_bind"};
  MFFloat groundAngle{*this, "groundAngle", {}, Interval{0, std::numbers::pi / 2}};
  MFColor groundColor{*this, "groundColor"};
  MFString backUrl{*this, "backUrl"};
  MFString bottomUrl{*this, "bottomUrl"};
  MFString frontUrl{*this, "frontUrl"};
  MFString leftUrl{*this, "leftUrl"};
  MFString rightUrl{*this, "rightUrl"};
  MFString topUrl{*this, "topUrl"};
  MFFloat skyAngle{*this, "skyAngle", {}, Interval{0, std::numbers::pi}};
  MFColor skyColor{*this, "skyColor", {{0, 0, 0}}};
  EventOut<SFBool> isBound{*this, "isBound"};
};

///     NavigationInfo {
///       eventIn      SFBool   set_bind
///       exposedField MFFloat  avatarSize      [0.25, 1.6, 0.75]   # [0,inf)
///       exposedField SFBool   headlight       TRUE
///       exposedField SFFloat  speed           1.0                 # [0,inf)
///       exposedField MFString type            ["WALK", "ANY"]
///       exposedField SFFloat  visibilityLimit 0.0                 # [0,inf)
///       eventOut     SFBool   isBound
///     }
class ORVANE_API NavigationInfo final : public NodeOf<NavigationInfo> {
 public:
  static constexpr const char* kClassName = "NavigationInfo";

  EventIn<SFBool> set_bind{*this, "set_bind"};
  MFFloat avatarSize{*this, "avatarSize", {0.25F, 1.6F, 0.75F}, kNotNegative};
  SFBool headlight{*this, "headlight", true};
  SFFloat speed{*this, "speed", 1, kNotNegative};
  MFString type{*this, "type", {"WALK", "ANY"}};
  SFFloat visibilityLimit{*this, "visibilityLimit", 0, kNotNegative};
  EventOut<SFBool> isBound{*this, "isBound"};
};

///     Viewpoint {
///       eventIn      SFBool     set_bind
///       exposedField SFFloat    fieldOfView 0.785398   # (0,pi)
///       exposedField SFBool     jump        TRUE
///       exposedField SFRotation orientation 0 0 1 0
///       exposedField SFVec3f    position    0 0 10
///       field        SFString   description ""
///       eventOut     SFTime     bindTime
///       eventOut     SFBool     isBound
///     }
class ORVANE_API Viewpoint final : public NodeOf<Viewpoint> {
 public:
  static constexpr const char* kClassName = "Viewpoint";

  EventIn<SFBool> set_bind{*this, "set_bind"};
  SFFloat fieldOfView{*this, "fieldOfView", 0.785398F, Interval{0, std::numbers::pi, true}};
  SFBool jump{*this, "jump", true};
  SFRotation orientation{*this, "orientation", {0, 0, 1, 0}};
  SFVec3f position{*this, "position", {0, 0, 10}};
  SFString description{*this, "description", "", AccessKind::Field};
  EventOut<SFTime> bindTime{*this, "bindTime"};
  EventOut<SFBool> isBound{*this, "isBound"};
};

///     PointLight {
///       exposedField SFFloat ambientIntensity 0       # [0,1]
///       exposedField SFVec3f attenuation      1 0 0   # [0,inf)
///       exposedField SFColor color            1 1 1   # [0,1]
///       exposedField SFFloat intensity        1       # [0,1]
///       exposedField SFVec3f location         0 0 0
///       exposedField SFBool  on               TRUE
///       exposedField SFFloat radius           100     # [0,inf)
///     }
class ORVANE_API PointLight final : public NodeOf<PointLight> {
 public:
  static constexpr const char* kClassName = "PointLight";

  SFFloat ambientIntensity{*this, "ambientIntensity", 0, kUnit};
  SFVec3f attenuation{*this, "attenuation", {1, 0, 0}, kNotNegative};
  SFColor color{*this, "color", {1, 1, 1}};
  SFFloat intensity{*this, "intensity", 1, kUnit};
  SFVec3f location{*this, "location", {0, 0, 0}};
  SFBool on{*this, "on", true};
  SFFloat radius{*this, "radius", 100, kNotNegative};
};

}  // namespace orvane::scene
