/// What every chart over a grid gets from a table, whatever its series look like.
#pragma once

#include "orvane/graphs/grid/CategoryGraph.h"
#include "orvane/graphs/surface/SurfaceInfo.h"
#include "orvane/tables/ChartOptions.h"
#include "orvane/tables/layout/GridLayout.h"
#include "orvane/tables/read/Table.h"

#include <cstddef>

namespace orvane::tables {

/// Sizes, labels, colours, legend and viewpoints of `chart`. Afterwards it has one Z cell a series,
/// and the middle of the grid is the origin of the world, about which viewers turn it.
void DressGridChart(CategoryGraph& chart, const GridLayout& layout, const ChartOptions& options);

/// Heights, colour, legend entry and popups of the `index`th series, counted from 0.
void DressGridSeries(GridSeries& series, std::size_t index, const Table& table,
                     const GridLayout& layout, const ChartOptions& options);

/// Colours and legend entry of the `index`th surface, counted from 0, whose wires stand `pitch`
/// apart.
void DressSurface(LatticeSurface& surface, std::size_t index, double pitch,
                  const GridLayout& layout);

/// Heights, colour, legend entry and popups of a surface over the same grid. `data` has a row for
/// each cell along `rowsAlong`, and a column for each cell along the other axis; the legend entry
/// is the layout's `index`th.
enum class RowsAlong { X, Z };
void DressGridSurface(SurfaceInfo& surface, std::size_t index, const Table& data,
                      RowsAlong rowsAlong, const GridLayout& layout, const ChartOptions& options);

}  // namespace orvane::tables
