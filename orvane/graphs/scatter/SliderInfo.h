/// The slider with which a viewer picks a point frame: a bar, a knob and a label for each step.
#pragma once

#include "orvane/automation/Object.h"
#include "orvane/components/ISceneRoot.h"
#include "orvane/components/Placement.h"
#include "orvane/components/TextShape.h"
#include "orvane/scene/UiProtos.h"

#include <cstdint>
#include <memory>

namespace orvane {

enum class SliderTextAlignment : std::int32_t { LEFT_ALIGN_TEXT = 0, RIGHT_ALIGN_TEXT = 1 };
enum class SliderAlignment : std::int32_t { ZERO_AT_BOTTOM = 0, ZERO_AT_TOP = 1 };

/// Where the labels of a slider stand beside its bar.
struct SliderLabelPlacement {
  Length distance{1.2};  ///< From the middle of the bar, of the knob's radius.
  double lift = 0;       ///< Up along the bar, in scene units.
  double scale = 1;      ///< Their size, and the way from one to the next, as a factor.
};

/// Stands on its root's origin and rises along y; labels run down from its upper end, one a step.
/// Lets change the scene at once, except for what AlignSlider lays out.
class ORVANE_API SliderInfo final : public host::Object, public RootedAt<scene::Transform> {
 public:
  static constexpr const char* kClassName = "SliderInfo";
  const host::TypeInfo& Type() const override;

  SliderInfo();

  /// The live list of labels, from the top down.
  scene::MFString& Labels() { return m_labels.Lines(); }
  /// Height of a label in scene units, > 0. Default 1.
  float LabelHeight() const { return m_labels.Height(); }
  void LabelHeight(float height);
  /// Host RGB colour, 0..0xFFFFFF. Default white.
  std::int32_t LabelColor() const { return m_labels.Color(); }
  void LabelColor(std::int32_t rgb) { m_labels.Color(rgb); }
  /// Length of the bar in scene units, > 0. Default 4.
  float SliderLength() const { return m_slider->length.Value(); }
  void SliderLength(float length);
  /// The values at the two ends, unchecked. Default 0 and 10.
  std::int16_t SliderMin() const;
  void SliderMin(std::int16_t value) { m_slider->minValue.Value(value); }
  std::int16_t SliderMax() const;
  void SliderMax(std::int16_t value) { m_slider->maxValue.Value(value); }
  /// Radius of the knob in scene units, > 0. Default 0.2.
  float SliderRadius() const { return m_slider->radius.Value(); }
  void SliderRadius(float radius);
  /// The side of the bar that labels stand on: left-aligned ones to the right of it. Unchecked; any
  /// other value counts as the default, LEFT_ALIGN_TEXT.
  SliderTextAlignment TextAlignment() const { return m_textAlignment; }
  void TextAlignment(SliderTextAlignment alignment) { m_textAlignment = alignment; }
  /// The end at which SliderMin is. Unchecked; any other value counts as the default,
  /// ZERO_AT_BOTTOM.
  SliderAlignment SliderOrientation() const { return m_orientation; }
  void SliderOrientation(SliderAlignment orientation) { m_orientation = orientation; }

  /// Where AlignSlider puts the labels, for C++.
  SliderLabelPlacement& LabelPlacement() { return m_labelPlacement; }

  /// Spreads the labels over the length of the slider and applies TextAlignment and
  /// SliderOrientation. Fewer than two labels keep their spacing; labels higher than the slider is
  /// long raise OutOfRange.
  void AlignSlider();

  std::shared_ptr<scene::Node> SliderNode() const { return m_slider; }

 private:
  std::shared_ptr<scene::Transform> m_sliderTransform;
  std::shared_ptr<scene::Transform> m_labelTransform;
  std::shared_ptr<scene::Slider> m_slider;
  TextShape m_labels{"BEGIN"};
  SliderLabelPlacement m_labelPlacement;
  SliderTextAlignment m_textAlignment = SliderTextAlignment::LEFT_ALIGN_TEXT;
  SliderAlignment m_orientation = SliderAlignment::ZERO_AT_BOTTOM;
};

}  // namespace orvane

namespace orvane::host {

template <>
ORVANE_API const EnumInfo& Enumeration<SliderTextAlignment>();
template <>
ORVANE_API const EnumInfo& Enumeration<SliderAlignment>();

}  // namespace orvane::host
