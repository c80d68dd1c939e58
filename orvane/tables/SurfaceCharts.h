/// Surface and combination charts from grids of numbers.
#pragma once

#include "orvane/automation/Export.h"
#include "orvane/graphs/surface/RCComboGraph.h"
#include "orvane/graphs/surface/SCComboGraph.h"
#include "orvane/graphs/surface/SurfaceGraph.h"
#include "orvane/tables/ChartOptions.h"
#include "orvane/tables/read/Table.h"

#include <memory>

namespace orvane::tables {

/// The chart of `grid` as it lies on the page: columns along x, rows along z, the first one at the
/// back. The cell in the corner names the values. Raises FileError for fewer than two rows or
/// columns.
ORVANE_API std::shared_ptr<SurfaceGraph> MakeSurfaceChart(const Table& grid,
                                                          const ChartOptions& options);

/// Charts of `table`, one series behind the other, with a surface over their cells. `surface` has
/// the rows and columns of the table, and in its corner its name. Raises FileError for other rows
/// or columns, and for fewer than two.
ORVANE_API std::shared_ptr<SCComboGraph> MakeColumnSurfaceChart(const Table& table,
                                                                const Table& surface,
                                                                const ChartOptions& options);
ORVANE_API std::shared_ptr<RCComboGraph> MakeRibbonSurfaceChart(const Table& table,
                                                                const Table& surface,
                                                                const ChartOptions& options);

}  // namespace orvane::tables
