/// A table of numbers: categories down, series across.
#pragma once

#include "orvane/automation/Export.h"
#include "orvane/tables/read/ReadOptions.h"
#include "orvane/tables/read/Rows.h"

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace orvane::tables {

/// One number, beside the text that spells it.
struct TableCell {
  double number = 0;  ///< Not a number where there is none.
  std::string text;
  Place place;  ///< For messages; without a row where the number was worked out.

  bool IsGap() const { return std::isnan(number); }
};

struct TableSeries {
  std::string name;
  std::vector<TableCell> cells;  ///< One for each category.
  Place place;                   ///< Of the name in the header.
};

struct Table {
  Origin origin;               ///< What messages call it.
  std::string categoryHeader;  ///< The header of the first column.
  std::vector<std::string> categories;
  std::vector<TableSeries> series;
  std::string unit;                   ///< "%" or a currency that all numbers have.
  std::vector<std::string> warnings;  ///< What a user should know.
};

/// The most categories or series that a chart's grid takes as cells.
inline constexpr std::int16_t kMostCells = 32766;

/// The numbers of one series by its name, one for each category.
struct NamedNumbers {
  std::string name;
  std::vector<double> numbers;
};

/// A table made in memory. Raises FileError for a series that has more or fewer numbers than there
/// are categories, or one that is not finite, and where there is nothing to chart.
ORVANE_API Table MakeTable(std::vector<std::string> categories,
                           const std::vector<NamedNumbers>& series);

/// Reads categories and series as `options` has them, and arranges them so.
///
/// Raises FileError, naming the place, for what is no table of numbers, can be read in two ways, or
/// is more than a chart can show.
ORVANE_API Table ReadTable(Rows& rows, const ReadOptions& options = {});

}  // namespace orvane::tables
