/// Columns and ribbons in the cells of a chart, with and without surfaces over them.
#pragma once

#include "orvane/graphs/grid/ColumnSeriesInfo.h"
#include "orvane/graphs/grid/RibbonSeriesInfo.h"
#include "orvane/tables/ChartOptions.h"
#include "orvane/tables/layout/GridLayout.h"

#include <cstddef>

namespace orvane::tables {

/// Sizes and style of series in the cells of a chart, `slots` of columns side by side in each.
void ShapeColumns(ColumnSeriesInfo& series, std::size_t slots, const GridLayout& layout,
                  const ChartOptions& options);
void ShapeRibbon(RibbonSeriesInfo& series, const GridLayout& layout, const ChartOptions& options);

}  // namespace orvane::tables
