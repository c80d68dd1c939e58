/// Clouds of points read from CSV: two columns of numbers and, optionally, the group of each point.
#pragma once

#include "orvane/automation/Export.h"
#include "orvane/tables/read/ReadOptions.h"
#include "orvane/tables/read/Rows.h"

#include <cstddef>
#include <string>
#include <vector>

namespace orvane::tables {

/// The points of one group, each with its two numbers as the file has them.
struct Cloud {
  struct Point {
    double x = 0;
    double z = 0;
  };

  std::string name;
  std::vector<Point> points;
};

struct CloudTable {
  std::string xHeader;
  std::string zHeader;
  std::vector<Cloud> clouds;  ///< In the order in which they first stand in the file.
  std::vector<std::string> warnings;
};

/// The most clouds that a chart shows as surfaces.
inline constexpr std::size_t kMostClouds = 200;

/// Reads a header, then x, z and, where there is a third column, the name of a group in each row.
/// Raises FileError, naming line and column.
ORVANE_API CloudTable ReadCloudTable(Rows& rows, const ReadOptions& options = {});

}  // namespace orvane::tables
