/// A chart's key: a coloured shape and a text for each series.
#pragma once

#include "orvane/components/ChartLegend.h"
#include "orvane/components/SeriesToggleInfo.h"

#include <cstdint>
#include <memory>
#include <string>

namespace orvane {

/// Its chart fills it at export. Check boxes, when they are in use, stand to the left of the
/// entries at the same pitch and are as high as the texts.
class ORVANE_API LegendInfo final : public ChartLegend {
 public:
  static constexpr const char* kClassName = "LegendInfo";
  const host::TypeInfo& Type() const override;

  LegendInfo();

  /// Whether check boxes are shown and wired to the series. Default false.
  bool UseSeriesToggle() const { return m_usesToggles; }
  void UseSeriesToggle(bool use);

  /// Adds an entry below those there are, and its check box.
  void AddLegendEntry(const std::shared_ptr<scene::Appearance>& newApp, const std::string& newText);
  /// Removes all entries and check boxes.
  void ClearLegend();
  /// The check box of the entry that was added as number `index`, 1...
  std::shared_ptr<scene::Node> Get1CheckBox(std::int16_t index) const;

  /// As AddLegendEntry, but for `ShowPending`, which takes in all entries since the last in one go:
  /// one by one, many take long. Their check boxes are there at once.
  void AddPending(const std::shared_ptr<scene::Appearance>& key, const std::string& text);
  void ShowPending();

 private:
  void Resize(float textHeight, float gap) override;

  std::shared_ptr<SeriesToggleInfo> m_toggles;
  std::vector<Entry> m_pending;
  bool m_usesToggles = false;
};

}  // namespace orvane
