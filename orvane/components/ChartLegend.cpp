#include "orvane/components/ChartLegend.h"

#include "orvane/automation/Arithmetic.h"
#include "orvane/automation/AutomationError.h"
#include "orvane/scene/frmMain.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace orvane {

ChartLegend::ChartLegend()
    : m_legendTransform(scene::Create<scene::Transform>()),
      m_billboard(scene::Create<scene::Billboard>()),
      m_legend(scene::Create<scene::Legend>()) {
  m_legendTransform->children.Append(m_legend);
  Root()->children.Append(m_legendTransform);
}

LegendKeyStyle ChartLegend::KeyStyle() const {
  return FromVrmlName<LegendKeyStyle>(m_legend->keyStyle.Value());
}

void ChartLegend::KeyStyle(LegendKeyStyle style) {
  if (IsEnumerator(style)) m_legend->keyStyle.Value(VrmlName(style));
}

void ChartLegend::IsBillboarded(bool isBillboarded) {
  if (isBillboarded == m_isBillboarded) return;
  using List = scene::MFNode::List;
  List turned = Contents().Items();
  List top{m_billboard};
  if (!isBillboarded) top = std::exchange(turned, {});
  Root()->children.Items(std::move(top));
  m_billboard->children.Items(std::move(turned));
  m_isBillboarded = isBillboarded;
}

void ChartLegend::TextHeight(float height) {
  host::Require(height > 0, "Invalid legend text height, must be greater than 0");
  constexpr double kGap = 0.35;
  const float gap = host::Single(height * kGap);
  Resize(height, gap);
  m_legend->textHeight.Value(height);
  m_legend->entryGap.Value(gap);
}

void ChartLegend::AddEntries(const std::vector<Entry>& entries) {
  scene::MFNode::List keys;
  scene::MFString::List texts;
  for (auto entry = entries.rbegin(); entry != entries.rend(); ++entry) {
    keys.push_back(entry->key);
    texts.push_back(entry->text);
  }
  std::ranges::copy(m_legend->keyAppearances.Items(), std::back_inserter(keys));
  std::ranges::copy(m_legend->entryTexts.Items(), std::back_inserter(texts));
  m_legend->keyAppearances.Items(std::move(keys));
  m_legend->entryTexts.Items(std::move(texts));
}

void ChartLegend::ClearEntries() {
  m_legend->entryTexts.Clear();
  m_legend->keyAppearances.Clear();
}

scene::MFNode& ChartLegend::Contents() const {
  return m_isBillboarded ? m_billboard->children : Root()->children;
}

}  // namespace orvane
