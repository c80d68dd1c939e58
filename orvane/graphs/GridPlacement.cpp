#include "orvane/graphs/GridPlacement.h"

#include "orvane/automation/Arithmetic.h"

namespace orvane {
namespace {

using host::Int16;
using host::Quotient;
using host::Single;

/// What stands at the edge of the grid keeps clear of it by this part of the extent.
constexpr double kEdge = 1.02;

/// What an axis along `count` cells of extent `cell` shows: how many labels, and where the first
/// one stands along it.
struct Labels {
  Labels(std::int16_t count, float cell, LabelsAt place)
      : count(Int16(count + (place == LabelsAt::Lines ? 1 : 0))),
        first(place == LabelsAt::Lines ? 0 : cell / 2.0) {}

  std::int16_t count;
  double first;
};

}  // namespace

float CellWidth(const GridInfo& grid) {
  return Single(Quotient(grid.Width(), grid.XAxisCellCount()));
}

float CellDepth(const GridInfo& grid) {
  return Single(Quotient(grid.Depth(), grid.ZAxisCellCount()));
}

float ConeLift(float coneHeight) { return Single(0.55 * coneHeight); }

void PlaceTitle(const TextInfo& title, const GridInfo& grid) {
  auto& translation = title.Root()->translation;
  translation.X(Single(grid.Width() / 2.0));
  translation.Y(Single(1.1 * grid.Height()));
}

void PlaceLegend(scene::Transform& root, const GridInfo& grid) {
  root.translation.X(Single(1.1 * grid.Width()));
  root.translation.Y(Single(0.1 * grid.Height()));
}

void PlaceYAxis(ContinuousAxis& axis, const GridInfo& grid) {
  constexpr float kEighthTurn = 0.7854F;
  const double height = grid.Height();
  Place(axis,
        {.count = Int16(grid.YAxisCellCount() + 1),
         .alignment = LabelAlignment::RIGHT_ALIGN,
         .gap = Single(Quotient(height, grid.YAxisCellCount())),
         .x = -0.02 * grid.Width(),
         .y = height + axis.LabelHeight() / 2.0,
         .z = kEdge * grid.Depth(),
         .yAngle = kEighthTurn},
        LabelingOrder::MAX_TO_MIN);
}

void PlaceDrillUp(const DrillUpInfo& drillUp, const GridInfo& grid) {
  auto& translation = drillUp.Root()->translation;
  translation.X(grid.Width());
  translation.Y(ConeLift(drillUp.ConeHeight()));
  translation.Z(grid.Depth());
}

AxisPlacement XAxisPlacement(const Axis& axis, const GridInfo& grid, LabelsAt place) {
  const float cell = CellWidth(grid);
  const Labels labels(grid.XAxisCellCount(), cell, place);
  return {.count = labels.count,
          .alignment = LabelAlignment::RIGHT_ALIGN,
          .gap = cell,
          .x = labels.first - axis.LabelHeight() / 2.0,
          .y = {},
          .z = kEdge * grid.Depth(),
          .xAngle = -kQuarterTurn,
          .yAngle = kQuarterTurn};
}

AxisPlacement ZAxisPlacement(const Axis& axis, const GridInfo& grid, LabelsAt place) {
  const float cell = CellDepth(grid);
  const Labels labels(grid.ZAxisCellCount(), cell, place);
  return {.count = labels.count,
          .alignment = LabelAlignment::LEFT_ALIGN,
          .gap = cell,
          .x = kEdge * grid.Width(),
          .y = {},
          .z = labels.first - axis.LabelHeight() / 2.0,
          .xAngle = -kQuarterTurn};
}

}  // namespace orvane
