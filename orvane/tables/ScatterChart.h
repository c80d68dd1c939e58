/// Scatter charts from tables of points.
#pragma once

#include "orvane/automation/Export.h"
#include "orvane/graphs/scatter/ScatterGraph.h"
#include "orvane/tables/ChartOptions.h"
#include "orvane/tables/read/PointTable.h"

#include <memory>
#include <string>

namespace orvane::tables {

struct ScatterOptions : ChartOptions {
  AnimationStyle animation = AnimationStyle::VRML_ANALOG;
  LoopStyle loop = LoopStyle::VRML_LOOP_BREAK;
  double frameSeconds = 1;  ///< From one frame to the next, >= 1.
};

/// A chart of `table`, ready to be exported, save for what `ScatterWorld` adds.
ORVANE_API std::shared_ptr<ScatterGraph> MakeScatterChart(const PointTable& table,
                                                          const ScatterOptions& options);

/// The world of that chart. An animation that does not loop gets a knob that starts it.
ORVANE_API std::string ScatterWorld(const PointTable& table, const ScatterOptions& options);

}  // namespace orvane::tables
