/// What every chart over a grid gets from a table, whatever its series look like.
#pragma once

#include "ChartOptions.h"
#include "GridLayout.h"
#include "Table.h"

#include "orvane/graphs/grid/CategoryGraph.h"

namespace orvane::tool {

/// Sizes, labels, colours, legend and viewpoints of `chart`. Afterwards it has one Z cell a series,
/// and the middle of the grid is the origin of the world, about which viewers turn it.
void DressGridChart(CategoryGraph& chart, const GridLayout& layout, const ChartOptions& options);

/// Heights, colour, legend entry and popups of the `index`th series, counted from 0.
void DressGridSeries(GridSeries& series, std::size_t index, const Table& table,
                     const GridLayout& layout, const ChartOptions& options);

}  // namespace orvane::tool
