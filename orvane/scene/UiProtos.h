/// The PROTOs of VR_UI.wrl: widgets that the viewer of a world uses.
#pragma once

#include "orvane/scene/GraphProtos.h"
#include "orvane/scene/ListFields.h"
#include "orvane/scene/Node.h"
#include "orvane/scene/SingleFields.h"

namespace orvane::scene {

/// Shows its contents while contentsExist is TRUE.
class ORVANE_API ContentToggle final : public NodeOf<ContentToggle, ProtoInstance> {
 public:
  static constexpr const char* kClassName = "qm4_ContentToggle";
  static constexpr Module kModule = Module::Ui;

  MFNode contents{*this, "contents"};
  SFBool contentsExist{*this, "contentsExist", true};
};

/// A box with a tick; a click flips it and sends the new state.
class ORVANE_API CheckBox final : public NodeOf<CheckBox, PlacedProto> {
 public:
  static constexpr const char* kClassName = "qm4_CheckBox";
  static constexpr Module kModule = Module::Ui;

  SFColor boxColor{*this, "boxColor", {1, 1, 1}};
  SFColor checkColor{*this, "checkColor", {0, 0, 0}};
  SFFloat boxSize{*this, "boxSize", 1};
  SFBool isOn{*this, "isOn", true};
  EventOut<SFBool> value_changed{*this, "value_changed"};
};

/// A knob on a bar that stands on y = 0 (minValue) and ends at y = length (maxValue).
class ORVANE_API Slider final : public NodeOf<Slider, PlacedProto> {
 public:
  static constexpr const char* kClassName = "qm4_Slider";
  static constexpr Module kModule = Module::Ui;

  SFColor barColor{*this, "barColor", {0.6F, 0.6F, 0.6F}};
  SFColor knobColor{*this, "knobColor", {0.8F, 0.2F, 0.1F}};
  SFFloat length{*this, "length", 4};
  SFFloat radius{*this, "radius", 0.2F};
  SFInt32 minValue{*this, "minValue", 0};
  SFInt32 maxValue{*this, "maxValue", 10};
  SFInt32 value{*this, "value", 0, AccessKind::Field};
  EventIn<SFInt32> set_value{*this, "set_value"};
  EventOut<SFInt32> value_changed{*this, "value_changed"};
};

}  // namespace orvane::scene
