/// Area, column and ribbon charts from tables.
#pragma once

#include "ChartOptions.h"
#include "Table.h"

#include "orvane/graphs/grid/AreaGraph.h"
#include "orvane/graphs/grid/ColumnGraph.h"
#include "orvane/graphs/grid/RibbonGraph.h"

#include <memory>

namespace orvane::tool {

/// Charts of `table`, ready to be exported: one series behind the other or, for columns on demand,
/// side by side in each cell.
std::shared_ptr<AreaGraph> MakeAreaChart(const Table& table, const ChartOptions& options);
std::shared_ptr<ColumnGraph> MakeColumnChart(const Table& table, const ChartOptions& options);
std::shared_ptr<RibbonGraph> MakeRibbonChart(const Table& table, const ChartOptions& options);

}  // namespace orvane::tool
