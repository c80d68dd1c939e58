/// Scatter charts from tables of points.
#pragma once

#include "orvane/automation/Export.h"
#include "orvane/graphs/scatter/ScatterGraph.h"
#include "orvane/tables/ChartOptions.h"
#include "orvane/tables/read/PointTable.h"

#include <memory>

namespace orvane::tables {

/// The chart of `table`, ready to be exported. An animation that does not loop gets a knob that
/// starts it.
ORVANE_API std::shared_ptr<ScatterGraph> MakeScatterChart(const PointTable& table,
                                                          const ChartOptions& options);

}  // namespace orvane::tables
