/// The ribbon chart.
#pragma once

#include "orvane/graphs/grid/RibbonSeriesInfo.h"
#include "orvane/graphs/grid/SeriesGraph.h"

namespace orvane {

/// Bands over a three-axis grid, one behind the other along Z. A new chart has no series until
/// GridProps.ZAxisCellCount is set.
class ORVANE_API RibbonGraph final : public SeriesGraph<RibbonSeriesInfo> {
 public:
  static constexpr const char* kClassName = "RibbonGraph";
  const host::TypeInfo& Type() const override;
};

}  // namespace orvane
