/// Area charts from tables.
#pragma once

#include "ChartOptions.h"
#include "Table.h"

#include "orvane/graphs/grid/AreaGraph.h"

#include <memory>

namespace orvane::tool {

/// An area chart of `table`, ready to be exported.
std::shared_ptr<AreaGraph> MakeAreaChart(const Table& table, const ChartOptions& options);

}  // namespace orvane::tool
