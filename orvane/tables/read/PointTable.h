/// A table of points read from CSV: one point a row, in frames and groups.
#pragma once

#include "orvane/automation/Export.h"
#include "orvane/tables/layout/Color.h"
#include "orvane/tables/read/ReadOptions.h"
#include "orvane/tables/read/Rows.h"

#include <optional>
#include <string>
#include <vector>

namespace orvane::tables {

struct PointRow {
  double x = 0;
  double y = 0;
  double z = 0;
  double size = 1;                 ///< 0 or more; 1 without a size column.
  std::optional<HostColor> color;  ///< Where there is a colour column.
  std::size_t group = 0;           ///< Index into the groups, from 0.
};

/// The points of the rows with one value in the frame column, in the order of the rows.
struct PointFrame {
  std::string name;
  std::vector<PointRow> points;
};

struct PointTable {
  std::string xHeader;
  std::string yHeader;
  std::string zHeader;
  bool hasSizes = false;
  std::vector<std::string> groups;  ///< In order of appearance; empty without a group column.
  std::vector<PointFrame> frames;   ///< In order of appearance; one without a frame column.
  std::vector<std::string> warnings;
};

/// The most points that a frame holds, and the most frames.
inline constexpr std::size_t kMostPoints = 32767;

/// Reads a table whose header names columns x, y and z, and if need be size, color (or colour) or
/// group, and frame, in any case and order; "x: Income" gives the axis a header. Other columns are
/// left alone.
///
/// Raises FileError, naming line and column, for what is missing, named twice or no number, for a
/// size below 0, for what is no colour, and for a frame of more than kMostPoints.
ORVANE_API PointTable ReadPointTable(Rows& rows, const ReadOptions& options = {});

}  // namespace orvane::tables
