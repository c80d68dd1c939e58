#include "orvane/components/LegendInfo.h"

#include "orvane/automation/Arithmetic.h"
#include "orvane/components/DescribeLegend.h"

namespace orvane {
namespace {

/// How far the entries stand from the left edge of check boxes that are `height` high.
float RoomForBoxes(float height) {
  constexpr double kClearance = 1.1;
  return host::Single(height * kClearance);
}

}  // namespace

const host::TypeInfo& LegendInfo::Type() const {
  static const host::TypeInfo type =
      host::Describe<LegendInfo>("A chart's key: a coloured shape and a text for each series.")
          .With(DescribeLegend<LegendInfo>)
          .Property<bool>("UseSeriesToggle", &LegendInfo::UseSeriesToggle,
                          &LegendInfo::UseSeriesToggle,
                          {"Whether check boxes switch series on and off"});
  return type;
}

LegendInfo::LegendInfo() : m_toggles(std::make_shared<SeriesToggleInfo>()) {
  m_toggles->Spacing(EntryGap());
}

void LegendInfo::UseSeriesToggle(bool use) {
  if (use == m_usesToggles) return;
  const float room = use ? RoomForBoxes(m_toggles->Height()) : 0;
  if (use) {
    Contents().Append(m_toggles->RootNode());
  } else {
    Contents().Remove(m_toggles->RootNode());
  }
  m_usesToggles = use;
  ShiftEntries(room);
}

void LegendInfo::AddLegendEntry(const std::shared_ptr<scene::Appearance>& newApp,
                                const std::string& newText) {
  AddPending(newApp, newText);
  ShowPending();
}

void LegendInfo::AddPending(const std::shared_ptr<scene::Appearance>& key,
                            const std::string& text) {
  m_toggles->MakeCheckBox();
  m_pending.push_back({key, text});
}

void LegendInfo::ShowPending() {
  AddEntries(m_pending);
  m_pending.clear();
  m_toggles->LayoutCheckBoxes();
}

void LegendInfo::ClearLegend() {
  m_pending.clear();
  ClearEntries();
  m_toggles->ClearCheckBoxes();
}

std::shared_ptr<scene::Node> LegendInfo::Get1CheckBox(std::int16_t index) const {
  return m_toggles->Get1CheckBox(index);
}

void LegendInfo::Resize(float textHeight, float gap) {
  const float room = m_usesToggles ? RoomForBoxes(textHeight) : 0;
  m_toggles->Resize(textHeight, gap);
  ShiftEntries(room);
}

}  // namespace orvane
