/// Surface and combination charts from grids of numbers.
#pragma once

#include "ChartOptions.h"
#include "Table.h"

#include "orvane/graphs/surface/RCComboGraph.h"
#include "orvane/graphs/surface/SCComboGraph.h"
#include "orvane/graphs/surface/SurfaceGraph.h"

#include <memory>

namespace orvane::tool {

/// The chart of `grid` as it lies on the page: columns along x, rows along z, the first one at the
/// back. The cell in the corner names the values. Raises FileError for fewer than two rows or
/// columns.
std::shared_ptr<SurfaceGraph> MakeSurfaceChart(const Table& grid, const ChartOptions& options);

/// Charts of `table`, one series behind the other, with a surface over their cells. `surface` has
/// the rows and columns of the table, and in its corner its name. Raises FileError for other rows
/// or columns, and for fewer than two.
std::shared_ptr<SCComboGraph> MakeColumnSurfaceChart(const Table& table, const Table& surface,
                                                     const ChartOptions& options);
std::shared_ptr<RCComboGraph> MakeRibbonSurfaceChart(const Table& table, const Table& surface,
                                                     const ChartOptions& options);

}  // namespace orvane::tool
