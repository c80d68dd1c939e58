#include "orvane/graphs/AxisPlacement.h"

#include "orvane/automation/Arithmetic.h"

namespace orvane {
namespace {

void PlaceRoot(Axis& axis, const AxisPlacement& placement) {
  using host::Single;
  axis.Alignment(placement.alignment);
  axis.LabelTextGap(placement.gap);
  auto& root = *axis.Root();
  if (placement.x) root.translation.X(Single(*placement.x));
  if (placement.y) root.translation.Y(Single(*placement.y));
  if (placement.z) root.translation.Z(Single(*placement.z));
  root.rotation.SetFromAngles(placement.xAngle, placement.yAngle, placement.zAngle);
  axis.AlignHeader();
}

}  // namespace

void Place(DiscreteAxis& axis, const AxisPlacement& placement) {
  axis.LabelCount(placement.count);
  PlaceRoot(axis, placement);
}

void Place(ContinuousAxis& axis, const AxisPlacement& placement, LabelingOrder order) {
  axis.Count(placement.count);
  axis.Order(order);
  PlaceRoot(axis, placement);
}

}  // namespace orvane
