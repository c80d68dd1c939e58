#include "orvane/graphs/grid/ColumnGraph.h"

#include "orvane/automation/Arithmetic.h"
#include "orvane/automation/AutomationError.h"
#include "orvane/graphs/GridPlacement.h"
#include "orvane/graphs/grid/DescribeColumnGraph.h"

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

namespace orvane {

using host::Quotient;
using host::Single;

const host::TypeInfo& ColumnGraph::Type() const {
  using Graph = ColumnGraph;
  static const host::TypeInfo type =
      host::Describe<Graph>("Columns on the floor of a three-axis grid.")
          .With(DescribeColumns<Graph>)
          .With(DescribeExport<Graph>)
          .With(DescribeColumnsPerCell<Graph>);
  return type;
}

ColumnGraph::ColumnGraph() {
  m_zCellCountFollowed = Grid().ZCellCountFollowed.Connect(
      [this](std::int16_t newCount) { m_gridInfo_ZCellCountFollowed(newCount); });
  ColumnsPerCell(1);
}

std::shared_ptr<SeriesCollection> ColumnGraph::Slot(std::int16_t index) const {
  return m_slots->Get<SeriesCollection>(index);
}

std::shared_ptr<ColumnSeriesInfo> ColumnGraph::GetSeries(std::int16_t index,
                                                         std::int16_t cellIndex) const {
  const auto message = "Invalid cell index, there are currently " +
                       std::to_string(m_slots->Count()) + " column(s) in each cell";
  host::Require(cellIndex >= 1 && cellIndex <= m_slots->Count(), message.c_str());
  const auto slot = Slot(cellIndex);
  RequireSeries(index, *slot);
  return slot->Get<ColumnSeriesInfo>(index);
}

void ColumnGraph::ColumnsPerCell(std::int16_t count) {
  host::Require(count >= 1, "The number of columns per cell must be greater than or equal to 1");
  m_slots->Resize(count, [this] {
    auto slot = std::make_shared<SeriesCollection>();
    slot->Replace(ResizedSlot(*slot, Grid().ZAxisCellCount()));
    return slot;
  });
}

SeriesCollection::Items ColumnGraph::ResizedSlot(const SeriesCollection& slot,
                                                 std::int16_t rows) const {
  return ResizedRows(slot, rows, [] { return std::make_shared<ColumnSeriesInfo>(); });
}

void ColumnGraph::m_gridInfo_ZCellCountFollowed(std::int16_t newCount) {
  const auto slots = Indexes(m_slots->Count());
  std::vector<SeriesCollection::Items> resized;
  resized.reserve(static_cast<std::size_t>(m_slots->Count()));
  for (const std::int16_t i : slots) resized.push_back(ResizedSlot(*Slot(i), newCount));
  auto next = resized.begin();
  for (const std::int16_t i : slots) Slot(i)->Replace(std::move(*next++));
}

float ColumnGraph::LargestDepth() const {
  float depth = 0;
  for (const std::int16_t i : Indexes(m_slots->Count())) {
    depth = std::max(depth, LargestDepthIn(*Slot(i)));
  }
  return depth;
}

float ColumnGraph::WidthOfSlots() const {
  float width = 0;
  for (const std::int16_t i : Indexes(m_slots->Count())) {
    const auto slot = Slot(i);
    if (slot->Count() > 0) width = Single(width + slot->Get<ColumnSeriesInfo>(1)->Width());
  }
  return width;
}

void ColumnGraph::BuildSeries(LegendWiring& legend) {
  const double cellWidth = CellWidth(Grid());
  const bool isAdjacent = m_spacingStyle == ColumnCellSpacing::ADJACENT;
  // Where the next of the adjacent slots begins; together they stand in the middle of the cell.
  float offset = Single((cellWidth - WidthOfSlots()) / 2);
  for (const std::int16_t i : Indexes(m_slots->Count())) {
    const auto slot = Slot(i);
    float width = 0;
    for (const std::int16_t j : Indexes(slot->Count())) {
      auto& series = *slot->Get<ColumnSeriesInfo>(j);
      width = series.Width();
      const double x =
          isAdjacent ? offset + width / 2.0 : i * Quotient(cellWidth, m_slots->Count() + 1);
      const auto suffix = std::to_string(i) + "_" + std::to_string(j);
      const auto checkBox = LayOutSeries(series, Single(x), j, suffix, legend);
      if (checkBox != nullptr) checkBox->SetDefName("CHECK_BOX_" + suffix);
    }
    offset = Single(static_cast<double>(offset) + width);
  }
}

}  // namespace orvane

namespace orvane::host {

template <>
const EnumInfo& Enumeration<ColumnCellSpacing>() {
  static const EnumInfo info("ColumnCellSpacing", {{"EVENLY_SPACED", 0}, {"ADJACENT", 1}});
  return info;
}

}  // namespace orvane::host
