/// Where an axis stands in a chart, as data.
#pragma once

#include "orvane/components/ContinuousAxis.h"
#include "orvane/components/DiscreteAxis.h"

#include <cstdint>
#include <optional>

namespace orvane {

/// What a chart sets on an axis at export. Lengths are in scene units in the chart's frame.
struct AxisPlacement {
  std::int16_t count;  ///< Labels: one a cell (category axis) or one a grid line (value axis).
  LabelAlignment alignment;
  float gap;  ///< From one label to the next.
  /// Translation of the axis; components without a value stay as they are.
  std::optional<double> x, y, z;
  /// Turn of the axis, in radians about the fixed x, then y, then z axis.
  float xAngle = 0, yAngle = 0, zAngle = 0;
};

void Place(DiscreteAxis& axis, const AxisPlacement& placement);
void Place(ContinuousAxis& axis, const AxisPlacement& placement, LabelingOrder order);

}  // namespace orvane
