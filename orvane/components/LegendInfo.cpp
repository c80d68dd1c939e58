#include "orvane/components/LegendInfo.h"

#include "orvane/host/Arithmetic.h"
#include "orvane/host/AutomationError.h"
#include "orvane/host/Describe.h"
#include "orvane/scene/frmMain.h"

namespace orvane {

using host::Single;

const host::TypeInfo& LegendInfo::Type() const {
  static const host::TypeInfo type =
      host::Describe<LegendInfo>("A chart's key: a coloured shape and a text for each series.")
          .Property<LegendKeyStyle>("KeyStyle", &LegendInfo::KeyStyle, &LegendInfo::KeyStyle,
                                    {"Shape of the keys", "", "", "BOX_STYLE"})
          .Property<bool>("IsBillboarded", &LegendInfo::IsBillboarded, &LegendInfo::IsBillboarded,
                          {"Whether the legend turns to face the viewer", "", "", "false"})
          .Property<float>(
              "TextHeight", &LegendInfo::TextHeight, &LegendInfo::TextHeight,
              {"Height of the texts; also sets the gap between entries", "scene units", "> 0", "1"})
          .Property<std::int32_t>("TextColor", &LegendInfo::TextColor, &LegendInfo::TextColor,
                                  {"Colour of the texts", "host RGB", "0..16777215", "16777215"})
          .Property<bool>("UseSeriesToggle", &LegendInfo::UseSeriesToggle,
                          &LegendInfo::UseSeriesToggle,
                          {"Whether check boxes switch series on and off", "", "", "false"});
  return type;
}

LegendInfo::LegendInfo()
    : m_toggles(std::make_shared<SeriesToggleInfo>()),
      m_root(scene::Create<scene::Transform>()),
      m_legendTransform(scene::Create<scene::Transform>()),
      m_billboard(scene::Create<scene::Billboard>()),
      m_legend(scene::Create<scene::Legend>()) {
  m_toggles->Spacing(m_legend->entryGap.Value());
  m_legendTransform->children.Append(m_legend);
  m_root->children.Append(m_legendTransform);
}

LegendKeyStyle LegendInfo::KeyStyle() const {
  return FromVrmlName<LegendKeyStyle>(m_legend->keyStyle.Value());
}

void LegendInfo::KeyStyle(LegendKeyStyle style) {
  if (IsEnumerator(style)) m_legend->keyStyle.Value(VrmlName(style));
}

void LegendInfo::IsBillboarded(bool isBillboarded) {
  if (isBillboarded == m_isBillboarded) return;
  m_isBillboarded = isBillboarded;
  m_root->children.Clear();
  m_billboard->children.Clear();
  if (isBillboarded) m_root->children.Append(m_billboard);
  Contents().Append(m_legendTransform);
  if (m_usesToggles) Contents().Append(m_toggles->RootNode());
}

void LegendInfo::TextHeight(float height) {
  host::Require(height > 0, "Invalid legend text height, must be greater than 0");
  constexpr double kGap = 0.35;
  const float gap = Single(height * kGap);
  m_toggles->Resize(height, gap);
  m_legend->textHeight.Value(height);
  m_legend->entryGap.Value(gap);
  ShiftLegend();
}

void LegendInfo::UseSeriesToggle(bool use) {
  if (use == m_usesToggles) return;
  m_usesToggles = use;
  if (use) {
    Contents().Append(m_toggles->RootNode());
  } else {
    Contents().Remove(m_toggles->RootNode());
  }
  ShiftLegend();
}

void LegendInfo::AddLegendEntry(const std::shared_ptr<scene::Appearance>& newApp,
                                const std::string& newText) {
  m_legend->keyAppearances.Insert(1, newApp);
  m_legend->entryTexts.Insert(1, newText);
  m_toggles->AddCheckBox();
}

void LegendInfo::ClearLegend() {
  m_legend->entryTexts.Clear();
  m_legend->keyAppearances.Clear();
  m_toggles->ClearCheckBoxes();
}

std::shared_ptr<scene::Node> LegendInfo::Get1CheckBox(std::int16_t index) const {
  return m_toggles->Get1CheckBox(index);
}

scene::MFNode& LegendInfo::Contents() const {
  return m_isBillboarded ? m_billboard->children : m_root->children;
}

void LegendInfo::ShiftLegend() {
  // Room for the boxes to the left of the entries.
  constexpr double kClearance = 1.1;
  m_legendTransform->translation.X(m_usesToggles ? Single(m_toggles->Height() * kClearance) : 0);
}

}  // namespace orvane
