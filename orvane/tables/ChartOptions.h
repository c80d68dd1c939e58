/// What a person may choose about a chart made from a table.
#pragma once

#include "orvane/graphs/scatter/ScatterGraph.h"
#include "orvane/tables/layout/Color.h"
#include "orvane/tables/read/ReadOptions.h"
#include "orvane/tables/read/TableInput.h"

#include <optional>
#include <string>

namespace orvane::tables {

/// Extents of a chart's grid, in scene units.
struct GridSize {
  float width = 0;
  float height = 0;
  float depth = 0;
};

/// What a user may ask a grid to measure in each direction.
inline constexpr double kLeastExtent = 0.1;
inline constexpr double kMostExtent = 10000;

/// The narrowest hill that a user may ask for, in scene units.
inline constexpr double kLeastSigma = 0.001;

/// Edges of columns, ribbons and slices; rings are for slices alone, and rounded.
enum class ShapeStyle { Outlined, Rounded, Ring };

/// When the labels of slices are shown: parts always, or values while a slice is touched.
enum class SliceLabels { Touch, Always };

/// Each kind of chart reads what concerns it; see ChartKinds.
struct ChartOptions : ReadOptions {
  std::string title;
  HostColor background = 0xFAF8F6;
  std::optional<GridSize> size;  ///< Fitted to the table when left out.
  bool useToggles = true;
  bool usePopups = true;

  ShapeStyle style = ShapeStyle::Outlined;
  bool isGrouped = false;             ///< Columns of all series side by side in one row of cells.
  std::optional<TableInput> surface;  ///< The grid of a combination chart's surface.

  SliceLabels sliceLabels = SliceLabels::Touch;
  bool useSpinAxis = false;

  AnimationStyle animation = AnimationStyle::VRML_ANALOG;
  LoopStyle loop = LoopStyle::VRML_LOOP_BREAK;
  double frameSeconds = 1;  ///< From one point frame to the next, 1..3600.

  /// Width of the hill around a point of a density chart, in scene units; by Silverman's rule of
  /// thumb when left out.
  std::optional<float> sigma;
};

}  // namespace orvane::tables
