#include "orvane/graphs/GridPlacement.h"

#include "orvane/automation/Arithmetic.h"

namespace orvane {
namespace {

using host::Int16;
using host::Quotient;
using host::Single;

/// An axis begins this many label heights before the line or cell of its first label.
constexpr double kLead = 0.5;

/// Gives an axis along `cells` cells of extent `cell` its labels; the result is where the first one
/// stands along it: in the middle of its cell, or at its line.
double PutLabels(DiscreteAxis& axis, std::int16_t cells, float cell) {
  axis.LabelCount(cells);
  return cell / 2.0;
}

double PutLabels(ContinuousAxis& axis, std::int16_t cells, float /*cell*/,
                 LabelingOrder order = LabelingOrder::MIN_TO_MAX) {
  axis.Count(Int16(cells + 1));
  axis.Order(order);
  return 0;
}

/// Aligns labels `gap` apart and the header beside them.
void Align(Axis& axis, LabelAlignment alignment, float gap, const AxisPlacement& placement) {
  axis.Alignment(alignment);
  axis.LabelTextGap(gap);
  axis.LevelLabels(kLead);
  axis.AlignHeader(placement.header);
}

/// Where something stands that keeps `edge` off the far end of `extent`.
float Beyond(float extent, const Length& edge) {
  return Single((1 + edge.part) * extent + edge.plus);
}

template <class A>
void PlaceAlongX(A& axis, const GridInfo& grid, const AxisPlacement& placement) {
  const float cell = CellWidth(grid);
  const double first = PutLabels(axis, grid.XAxisCellCount(), cell);
  auto& root = *axis.Root();
  root.translation.X(Single(first - kLead * axis.LabelHeight()));
  root.translation.Z(Beyond(grid.Depth(), placement.edge));
  root.rotation.SetFromAngles(-kQuarterTurn, kQuarterTurn, 0);
  Align(axis, LabelAlignment::RIGHT_ALIGN, cell, placement);
}

template <class A>
void PlaceAlongZ(A& axis, const GridInfo& grid, const AxisPlacement& placement) {
  const float cell = CellDepth(grid);
  const double first = PutLabels(axis, grid.ZAxisCellCount(), cell);
  auto& root = *axis.Root();
  root.translation.X(Beyond(grid.Width(), placement.edge));
  root.translation.Z(Single(first - kLead * axis.LabelHeight()));
  root.rotation.SetFromAngles(-kQuarterTurn, 0, 0);
  Align(axis, LabelAlignment::LEFT_ALIGN, cell, placement);
}

}  // namespace

float CellWidth(const GridInfo& grid) {
  return Single(Quotient(grid.Width(), grid.XAxisCellCount()));
}

float CellDepth(const GridInfo& grid) {
  return Single(Quotient(grid.Depth(), grid.ZAxisCellCount()));
}

float ConeLift(float coneHeight) { return Single(0.55 * coneHeight); }

void PlaceTitle(const TextInfo& title, const GridInfo& grid, const GridPlacement& placement) {
  auto& translation = title.Root()->translation;
  translation.X(Single(placement.titleX.Of(grid.Width())));
  translation.Y(Single(placement.titleY.Of(grid.Height())));
  if (placement.titleZ) translation.Z(Single(*placement.titleZ));
}

void PlaceLegend(scene::Transform& root, const GridInfo& grid, const GridPlacement& placement) {
  root.translation.X(Single(placement.legendX.Of(grid.Width())));
  root.translation.Y(Single(placement.legendY.Of(grid.Height())));
}

void PlaceDrillUp(const DrillUpInfo& drillUp, const GridInfo& grid) {
  auto& translation = drillUp.Root()->translation;
  translation.X(grid.Width());
  translation.Y(ConeLift(drillUp.ConeHeight()));
  translation.Z(grid.Depth());
}

void PlaceXAxis(DiscreteAxis& axis, const GridInfo& grid, const AxisPlacement& placement) {
  PlaceAlongX(axis, grid, placement);
}

void PlaceXAxis(ContinuousAxis& axis, const GridInfo& grid, const AxisPlacement& placement) {
  PlaceAlongX(axis, grid, placement);
}

void PlaceYAxis(ContinuousAxis& axis, const GridInfo& grid, const AxisPlacement& placement) {
  constexpr float kEighthTurn = 0.7854F;
  const float gap = Single(Quotient(grid.Height(), grid.YAxisCellCount()));
  PutLabels(axis, grid.YAxisCellCount(), gap, LabelingOrder::MAX_TO_MIN);
  auto& root = *axis.Root();
  root.translation.X(Single(-placement.edge.Of(grid.Width())));
  root.translation.Y(Single(grid.Height() + kLead * axis.LabelHeight()));
  root.translation.Z(Beyond(grid.Depth(), placement.edge));
  root.rotation.SetFromAngles(0, kEighthTurn, 0);
  Align(axis, LabelAlignment::RIGHT_ALIGN, gap, placement);
}

void PlaceZAxis(DiscreteAxis& axis, const GridInfo& grid, const AxisPlacement& placement) {
  PlaceAlongZ(axis, grid, placement);
}

void PlaceZAxis(ContinuousAxis& axis, const GridInfo& grid, const AxisPlacement& placement) {
  PlaceAlongZ(axis, grid, placement);
}

}  // namespace orvane
