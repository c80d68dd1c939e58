/// The column chart.
#pragma once

#include "orvane/graphs/grid/CategoryGraph.h"
#include "orvane/graphs/grid/ColumnSeriesInfo.h"

#include <cstdint>
#include <memory>

namespace orvane {

enum class ColumnCellSpacing : std::int32_t { EVENLY_SPACED = 0, ADJACENT = 1 };

/// Columns on the floor of a three-axis grid. Every X cell holds one or more slots side by side; a
/// slot has a series of its own for each Z row.
class ORVANE_API ColumnGraph : public CategoryGraph {
 public:
  static constexpr const char* kClassName = "ColumnGraph";
  const host::TypeInfo& Type() const override;

  /// One slot with a series for each Z cell of the new grid.
  ColumnGraph();

  /// The series of slot `cellIndex`, 1..ColumnsPerCell, in Z row `index`, 1..Z cells; a component
  /// error otherwise.
  std::shared_ptr<ColumnSeriesInfo> GetSeries(std::int16_t index, std::int16_t cellIndex = 1) const;

  /// How slots share a cell: in equal gaps, or side by side in its middle. Default EVENLY_SPACED;
  /// not checked. It shows at the next export.
  ColumnCellSpacing ColumnSpacingStyle() const { return m_spacingStyle; }
  void ColumnSpacingStyle(ColumnCellSpacing style) { m_spacingStyle = style; }

  /// Number of slots, >= 1. Default 1. New slots get series of half a Z cell's depth; a lower
  /// number drops the trailing slots with their series.
  std::int16_t ColumnsPerCell() const { return m_slots->Count(); }
  void ColumnsPerCell(std::int16_t count);

 protected:
  void BuildSeries(LegendWiring& legend) override;
  /// The depth of the deepest series, 0 when there is none.
  float LargestDepth() const;

 private:
  std::shared_ptr<SeriesCollection> Slot(std::int16_t index) const;
  SeriesCollection::Items ResizedSlot(const SeriesCollection& slot, std::int16_t rows) const;
  void m_gridInfo_ZCellCountFollowed(std::int16_t newCount);
  float WidthOfSlots() const;

  std::shared_ptr<SeriesCollection> m_slots = std::make_shared<SeriesCollection>();
  ColumnCellSpacing m_spacingStyle = ColumnCellSpacing::EVENLY_SPACED;
  host::Subscription m_zCellCountFollowed;
};

}  // namespace orvane

namespace orvane::host {

template <>
ORVANE_API const EnumInfo& Enumeration<ColumnCellSpacing>();

}  // namespace orvane::host
