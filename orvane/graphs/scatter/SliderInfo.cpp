#include "orvane/graphs/scatter/SliderInfo.h"

#include "orvane/automation/Arithmetic.h"
#include "orvane/automation/AutomationError.h"
#include "orvane/automation/Describe.h"
#include "orvane/scene/frmMain.h"

namespace orvane {

using host::Quotient;
using host::Single;

const host::TypeInfo& SliderInfo::Type() const {
  using Info = SliderInfo;
  static const host::TypeInfo type =
      host::Describe<Info>("A slider in whole steps, with a label for each.")
          .Property<scene::MFString>("Labels", &Info::Labels,
                                     {"The labels, from the top down; a live list"})
          .Property<float>("LabelHeight", &Info::LabelHeight, &Info::LabelHeight,
                           {"Height of a label", "scene units", host::kPositive})
          .Color("LabelColor", &Info::LabelColor, &Info::LabelColor, {"Colour of the labels"})
          .Property<float>("SliderLength", &Info::SliderLength, &Info::SliderLength,
                           {"Length of the bar", "scene units", host::kPositive})
          .Property<std::int16_t>("SliderMin", &Info::SliderMin, &Info::SliderMin,
                                  {"Value at one end"})
          .Property<std::int16_t>("SliderMax", &Info::SliderMax, &Info::SliderMax,
                                  {"Value at the other end"})
          .Property<float>("SliderRadius", &Info::SliderRadius, &Info::SliderRadius,
                           {"Radius of the knob", "scene units", host::kPositive})
          .Property<SliderTextAlignment>(
              "TextAlignment", &Info::TextAlignment, &Info::TextAlignment,
              {"Alignment of the labels, on the side of the bar that they extend to"})
          .Property<SliderAlignment>("SliderOrientation", &Info::SliderOrientation,
                                     &Info::SliderOrientation, {"The end at which SliderMin is"})
          .Method("AlignSlider", &Info::AlignSlider, {},
                  {"Lays labels and slider out by the other properties"})
          .Property<std::shared_ptr<scene::Node>>("SliderNode", &Info::SliderNode,
                                                  {"The node that sends the chosen value"});
  return type;
}

SliderInfo::SliderInfo()
    : m_sliderTransform(scene::Create<scene::Transform>()),
      m_labelTransform(scene::Create<scene::Transform>()),
      m_slider(scene::Create<scene::Slider>()) {
  m_labels.Font(VRMLFontFamily::VRML_SANS);
  m_labels.Justify({"BEGIN", "END"});
  m_labelTransform->children.Append(m_labels.Node());
  m_slider->SetDefName("FRAME_SLIDER");
  m_sliderTransform->children.Append(m_slider);
  Root()->children.Append(m_sliderTransform);
  Root()->children.Append(m_labelTransform);
}

void SliderInfo::LabelHeight(float height) {
  m_labels.Height(height, "Invalid label height, must be greater than 0");
}

void SliderInfo::SliderLength(float length) {
  host::Require(length > 0, "Invalid slider length, must be greater than 0");
  m_slider->length.Value(length);
}

std::int16_t SliderInfo::SliderMin() const { return host::Int16(m_slider->minValue.Value()); }

std::int16_t SliderInfo::SliderMax() const { return host::Int16(m_slider->maxValue.Value()); }

void SliderInfo::SliderRadius(float radius) {
  host::Require(radius > 0, "Invalid slider radius, must be greater than 0");
  m_slider->radius.Value(radius);
}

void SliderInfo::AlignSlider() {
  const double length = SliderLength();
  const double labelHeight = LabelHeight();
  if (const auto count = Labels().Count(); count >= 2) {
    // Line advance is size x spacing.
    const double gap = (length - labelHeight) / (count - 1);
    m_labels.Spacing(Single(Quotient(gap, labelHeight)));
  }

  const bool isRight = m_textAlignment == SliderTextAlignment::RIGHT_ALIGN_TEXT;
  m_labels.Alignment(isRight ? LabelAlignment::RIGHT_ALIGN : LabelAlignment::LEFT_ALIGN);
  const double distance = m_labelPlacement.distance.Of(SliderRadius());
  m_labelTransform->translation.X(Single(isRight ? -distance : distance));
  m_labelTransform->translation.Y(Single(m_labelPlacement.lift));
  ScaleBy(*m_labelTransform, m_labelPlacement.scale);

  constexpr float kHalfTurn = 3.14159F;
  if (m_orientation == SliderAlignment::ZERO_AT_TOP) {
    m_sliderTransform->translation.Y(SliderLength());
    m_sliderTransform->rotation.SetValue(1, 0, 0, kHalfTurn);
  } else {
    m_sliderTransform->translation.Y(0);
    m_sliderTransform->rotation.SetValue(0, 1, 0, 0);
  }
}

}  // namespace orvane

namespace orvane::host {

template <>
const EnumInfo& Enumeration<SliderTextAlignment>() {
  static const EnumInfo info("SliderTextAlignment",
                             {{"LEFT_ALIGN_TEXT", 0}, {"RIGHT_ALIGN_TEXT", 1}});
  return info;
}

template <>
const EnumInfo& Enumeration<SliderAlignment>() {
  static const EnumInfo info("SliderAlignment", {{"ZERO_AT_BOTTOM", 0}, {"ZERO_AT_TOP", 1}});
  return info;
}

}  // namespace orvane::host
