/// Pies from tables.
#pragma once

#include "orvane/automation/Export.h"
#include "orvane/graphs/pie/PieGraph.h"
#include "orvane/tables/ChartOptions.h"
#include "orvane/tables/read/PieTable.h"

#include <memory>
#include <vector>

namespace orvane::tables {

/// A pie of `shares`, ready to be exported. Its slices close the ring: where the last one ends is
/// within 1e-5 radians of where the first one begins.
ORVANE_API std::shared_ptr<PieGraph> MakePieChart(const std::vector<PieShare>& shares,
                                                  const ChartOptions& options);

}  // namespace orvane::tables
