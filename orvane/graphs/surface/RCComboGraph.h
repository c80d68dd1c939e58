/// The chart of surfaces and ribbons.
#pragma once

#include "orvane/graphs/grid/RibbonSeriesInfo.h"
#include "orvane/graphs/grid/SeriesGraph.h"
#include "orvane/graphs/surface/ComboGraph.h"

namespace orvane {

/// A RibbonGraph with surfaces over its cells.
class ORVANE_API RCComboGraph final : public ComboGraph<SeriesGraph<RibbonSeriesInfo>> {
 public:
  static constexpr const char* kClassName = "RCComboGraph";
  const host::TypeInfo& Type() const override;
};

}  // namespace orvane
