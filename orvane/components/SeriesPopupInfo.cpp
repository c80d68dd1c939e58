#include "orvane/components/SeriesPopupInfo.h"

#include "orvane/host/Arithmetic.h"
#include "orvane/host/AutomationError.h"
#include "orvane/host/Describe.h"
#include "orvane/scene/frmMain.h"

namespace orvane {

const host::TypeInfo& SeriesPopupInfo::Type() const {
  using Info = SeriesPopupInfo;
  static const host::TypeInfo type =
      host::Describe<Info>("The texts that pop up when a viewer points at the values of a series.")
          .Property<scene::MFString>("PopupText", &Info::PopupText,
                                     {"The text of each value; a live list"})
          .Property<VRMLPopupAlignment>(
              "Alignment", &Info::Alignment, &Info::Alignment,
              {"Where a text stands, seen from its value", "", "", "VRML_TOP"})
          .Property<std::int32_t>("TextColor", &Info::TextColor, &Info::TextColor,
                                  {"Colour of the texts", "host RGB", "0..16777215", "0"})
          .Property<std::int32_t>(
              "BackgroundColor", &Info::BackgroundColor, &Info::BackgroundColor,
              {"Colour behind the texts", "host RGB", "0..16777215", "14745599"})
          .Property<std::int32_t>("BorderColor", &Info::BorderColor, &Info::BorderColor,
                                  {"Colour of the frame", "host RGB", "0..16777215", "3355443"})
          .Property<float>("TextHeight", &Info::TextHeight, &Info::TextHeight,
                           {"Height of the texts", "scene units", "> 0", "0.5"})
          .Property<bool>("UsePopups", &Info::UsePopups, &Info::UsePopups,
                          {"Whether texts pop up", "", "", "false"});
  return type;
}

SeriesPopupInfo::SeriesPopupInfo()
    : m_root(scene::Create<scene::Transform>()), m_strip(scene::Create<scene::PopupStrip>()) {
  m_strip->stripColor.Value(0xFFFFFF);
  m_strip->stripFactor.Value(1.0F);
}

VRMLPopupAlignment SeriesPopupInfo::Alignment() const {
  return FromVrmlName<VRMLPopupAlignment>(m_strip->alignment.Value());
}

void SeriesPopupInfo::Alignment(VRMLPopupAlignment alignment) {
  if (IsEnumerator(alignment)) m_strip->alignment.Value(VrmlName(alignment));
}

void SeriesPopupInfo::TextHeight(float height) {
  host::Require(height > 0, "Invalid popup height, must be greater than 0");
  m_strip->textHeight.Value(height);
}

void SeriesPopupInfo::UsePopups(bool use) {
  if (use == m_usesPopups) return;
  m_root->children.Clear();
  if (use) m_root->children.Append(m_strip);
  m_usesPopups = use;
}

std::int16_t SeriesPopupInfo::Count() const { return host::Int16(m_strip->pointCount.Value()); }

void SeriesPopupInfo::Count(std::int16_t count) {
  host::Require(count >= 1, "Invalid count, must be greater than 0");
  m_strip->pointCount.Value(count);
}

void SeriesPopupInfo::radius(float value) {
  host::Require(value > 0, "Invalid radius, must be greater than 0");
  m_strip->stripRadius.Value(value);
}

void SeriesPopupInfo::Depth(float depth) {
  host::Require(depth > 0, "Invalid depth, must be greater than 0");
  m_strip->stripDepth.Value(depth);
}

void SeriesPopupInfo::Spacing(float spacing) {
  host::Require(spacing > 0, "Invalid spacing, must be greater than 0");
  m_strip->pointSpacing.Value(spacing);
}

}  // namespace orvane
