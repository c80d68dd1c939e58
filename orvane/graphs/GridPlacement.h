/// Where the parts that charts over a grid have in common stand around it.
#pragma once

#include "orvane/components/DrillUpInfo.h"
#include "orvane/components/GridInfo.h"
#include "orvane/components/TextInfo.h"
#include "orvane/graphs/AxisPlacement.h"

namespace orvane {

inline constexpr float kQuarterTurn = 1.5708F;  ///< In radians.

/// Extent of one cell along X and along Z, in scene units.
ORVANE_API float CellWidth(const GridInfo& grid);
ORVANE_API float CellDepth(const GridInfo& grid);

/// Height of the centre of a cone above the floor: its tip or base stays just off it.
float ConeLift(float coneHeight);

/// Above the middle of the back wall. Its z stays as it is.
void PlaceTitle(const TextInfo& title, const GridInfo& grid);
/// To the right of the back wall. The z of the legend's `root` stays as it is.
void PlaceLegend(scene::Transform& root, const GridInfo& grid);
/// Upright at the front left edge, turned towards the corner view, one label a grid line.
void PlaceYAxis(ContinuousAxis& axis, const GridInfo& grid);
/// On the floor at the front right corner.
void PlaceDrillUp(const DrillUpInfo& drillUp, const GridInfo& grid);

/// Where the labels of an axis on the floor stand: in the middle of each cell, or at each line.
enum class LabelsAt { Cells, Lines };

/// Flat on the floor in front of the grid, reading towards the back.
AxisPlacement XAxisPlacement(const Axis& axis, const GridInfo& grid, LabelsAt place);
/// Flat on the floor to the right of the grid, the first label at the back.
AxisPlacement ZAxisPlacement(const Axis& axis, const GridInfo& grid, LabelsAt place);

}  // namespace orvane
