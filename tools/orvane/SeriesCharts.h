/// Area, column and ribbon charts from tables.
#pragma once

#include "ChartOptions.h"
#include "GridLayout.h"
#include "Table.h"

#include "orvane/graphs/grid/AreaGraph.h"
#include "orvane/graphs/grid/ColumnGraph.h"
#include "orvane/graphs/grid/RibbonGraph.h"

#include <cstddef>
#include <memory>

namespace orvane::tool {

/// Charts of `table`, ready to be exported: one series behind the other or, for columns on demand,
/// side by side in each cell.
std::shared_ptr<AreaGraph> MakeAreaChart(const Table& table, const ChartOptions& options);
std::shared_ptr<ColumnGraph> MakeColumnChart(const Table& table, const ChartOptions& options);
std::shared_ptr<RibbonGraph> MakeRibbonChart(const Table& table, const ChartOptions& options);

/// Sizes and style of series in the cells of a chart, `slots` of columns side by side in each.
void ShapeColumns(ColumnSeriesInfo& series, std::size_t slots, const GridLayout& layout,
                  const ChartOptions& options);
void ShapeRibbon(RibbonSeriesInfo& series, const GridLayout& layout, const ChartOptions& options);

}  // namespace orvane::tool
