/// Density charts from clouds of points.
#pragma once

#include "orvane/automation/Export.h"
#include "orvane/graphs/surface/DensityGraph.h"
#include "orvane/tables/ChartOptions.h"
#include "orvane/tables/read/CloudTable.h"

#include <memory>

namespace orvane::tables {

/// The chart of `table`: x along x, z along z from the back to the front, a surface for each group.
///
/// Where `options` leave out sigma, it is the mean of what
/// Silverman's rule of thumb gives for the points of each group, weighted by their number, and at
/// least the distance of two lattice points.
ORVANE_API std::shared_ptr<DensityGraph> MakeDensityChart(const CloudTable& table,
                                                          const ChartOptions& options);

}  // namespace orvane::tables
