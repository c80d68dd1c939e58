/// What the places of a chart's parts are written in.
#pragma once

#include "orvane/automation/Arithmetic.h"
#include "orvane/scene/GroupingNodes.h"

namespace orvane {

/// The quarter turn by which parts are laid on their sides, in radians.
inline constexpr float kQuarterTurn = 1.5708F;

/// A distance that may follow an extent: `part` of it, and `plus` scene units.
struct Length {
  double part = 0;
  double plus = 0;

  double Of(double extent) const { return part * extent + plus; }
};

/// Sizes all that hangs under `transform` by `factor`, > 0.
inline void ScaleBy(scene::Transform& transform, double factor) {
  const float scale = host::Single(factor);
  transform.scale.X(scale);
  transform.scale.Y(scale);
  transform.scale.Z(scale);
}

}  // namespace orvane
