/// The area chart.
#pragma once

#include "orvane/graphs/grid/AreaSeriesInfo.h"
#include "orvane/graphs/grid/SeriesGraph.h"

namespace orvane {

/// Areas over a three-axis grid, one behind the other along Z. A new chart has no series until
/// GridProps.ZAxisCellCount is set.
class ORVANE_API AreaGraph final : public SeriesGraph<AreaSeriesInfo> {
 public:
  static constexpr const char* kClassName = "AreaGraph";
  const host::TypeInfo& Type() const override;
};

}  // namespace orvane
