/// Pies from tables.
#pragma once

#include "ChartOptions.h"
#include "PieLayout.h"
#include "PieTable.h"

#include "orvane/graphs/pie/PieGraph.h"

#include <memory>
#include <vector>

namespace orvane::tool {

/// A pie of `shares`, ready to be exported. Its slices close the ring: where the last one ends is
/// within 1e-5 radians of where the first one begins.
std::shared_ptr<PieGraph> MakePieChart(const std::vector<PieShare>& shares,
                                       const ChartOptions& options, const PieOptions& pieOptions);

}  // namespace orvane::tool
