/// Area, column and ribbon charts from tables.
#pragma once

#include "orvane/automation/Export.h"
#include "orvane/graphs/grid/AreaGraph.h"
#include "orvane/graphs/grid/ColumnGraph.h"
#include "orvane/graphs/grid/RibbonGraph.h"
#include "orvane/tables/ChartOptions.h"
#include "orvane/tables/read/Table.h"

#include <memory>

namespace orvane::tables {

/// Charts of `table`, ready to be exported: one series behind the other or, for columns on demand,
/// side by side in each cell.
ORVANE_API std::shared_ptr<AreaGraph> MakeAreaChart(const Table& table,
                                                    const ChartOptions& options);
ORVANE_API std::shared_ptr<ColumnGraph> MakeColumnChart(const Table& table,
                                                        const ChartOptions& options);
ORVANE_API std::shared_ptr<RibbonGraph> MakeRibbonChart(const Table& table,
                                                        const ChartOptions& options);

}  // namespace orvane::tables
