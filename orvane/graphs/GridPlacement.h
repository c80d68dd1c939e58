/// Where the parts that charts over a grid have in common stand around it.
#pragma once

#include "orvane/components/ContinuousAxis.h"
#include "orvane/components/DiscreteAxis.h"
#include "orvane/components/DrillUpInfo.h"
#include "orvane/components/GridInfo.h"
#include "orvane/components/Placement.h"
#include "orvane/components/TextInfo.h"

#include <optional>

namespace orvane {

/// Where an axis stands beside a grid, and its header beside its labels.
struct AxisPlacement {
  /// From the grid to the axis, of the grid's extent in that direction. The upright axis at the
  /// corner is as far from both walls.
  Length edge{0.02};
  HeaderPlacement header;
};

/// What a chart over a grid places its parts by at every export, in the grid's frame.
struct GridPlacement {
  /// The title, of the grid's width and height. Its z stays as it is where left out.
  Length titleX{0.5}, titleY{1.1};
  std::optional<double> titleZ;
  /// The legend, of the grid's width and height.
  Length legendX{1.1}, legendY{0.1};
  AxisPlacement xAxis, yAxis, zAxis;
};

/// Extent of one cell along X and along Z, in scene units.
ORVANE_API float CellWidth(const GridInfo& grid);
ORVANE_API float CellDepth(const GridInfo& grid);

/// Height of the centre of a cone above the floor: its tip or base stays just off it.
float ConeLift(float coneHeight);

void PlaceTitle(const TextInfo& title, const GridInfo& grid, const GridPlacement& placement);
/// `root` is the legend's; its z stays as it is.
void PlaceLegend(scene::Transform& root, const GridInfo& grid, const GridPlacement& placement);
/// On the floor at the front right corner.
void PlaceDrillUp(const DrillUpInfo& drillUp, const GridInfo& grid);

/// Flat on the floor in front of the grid, reading towards the back; categories are in the middle
/// of their cells, values at the grid's lines.
void PlaceXAxis(DiscreteAxis& axis, const GridInfo& grid, const AxisPlacement& placement);
void PlaceXAxis(ContinuousAxis& axis, const GridInfo& grid, const AxisPlacement& placement);
/// Upright at the front left edge, turned towards the corner view, one label a grid line.
void PlaceYAxis(ContinuousAxis& axis, const GridInfo& grid, const AxisPlacement& placement);
/// Flat on the floor to the right of the grid, the first label at the back.
void PlaceZAxis(DiscreteAxis& axis, const GridInfo& grid, const AxisPlacement& placement);
void PlaceZAxis(ContinuousAxis& axis, const GridInfo& grid, const AxisPlacement& placement);

}  // namespace orvane
