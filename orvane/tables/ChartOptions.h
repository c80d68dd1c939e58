/// What a user may choose about a chart made from a table.
#pragma once

#include "orvane/tables/layout/Color.h"
#include "orvane/tables/read/Table.h"

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

struct ChartOptions {
  std::string title;
  std::string surface;  ///< The grid of a combination chart's surface.
  MissingCell missing = MissingCell::Error;
  std::optional<GridSize> size;  ///< Fitted to the table when left out.
  HostColor background = 0xFAF8F6;
  bool useToggles = true;
  bool usePopups = true;
  bool isRounded = false;  ///< Columns and ribbons with rounded edges rather than outlines.
  bool isGrouped = false;  ///< Columns of all series side by side in one row of cells.
};

}  // namespace orvane::tables
