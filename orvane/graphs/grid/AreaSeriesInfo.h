/// One series of an area chart.
#pragma once

#include "orvane/graphs/grid/GridSeries.h"
#include "orvane/scene/GraphProtos.h"

#include <memory>

namespace orvane {

/// A row of heights drawn as an outlined area.
class ORVANE_API AreaSeriesInfo final : public GridSeries {
 public:
  static constexpr const char* kClassName = "AreaSeriesInfo";
  const host::TypeInfo& Type() const override;

  AreaSeriesInfo();

 private:
  explicit AreaSeriesInfo(const std::shared_ptr<scene::OutlinedAreaSeries>& area);
};

}  // namespace orvane
