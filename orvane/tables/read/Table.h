/// A table of numbers read from CSV: categories down, series across.
#pragma once

#include "orvane/automation/Export.h"
#include "orvane/tables/read/Source.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace orvane::tables {

/// What an empty cell among the numbers means.
enum class MissingCell { Error, Zero };

/// One number, beside the text that spells it in the file.
struct TableCell {
  double number = 0;
  std::string text;
  std::size_t offset = 0;  ///< Where it stands in the file, for messages.
};

struct TableSeries {
  std::string name;
  std::vector<TableCell> cells;  ///< One for each category.
  std::size_t offset = 0;        ///< Of the name in the header.
};

struct Table {
  std::string file;            ///< What messages call it.
  std::string categoryHeader;  ///< The header of the first column.
  std::vector<std::string> categories;
  std::vector<TableSeries> series;
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

/// Reads a table whose first column holds category labels and whose header names the series.
///
/// Raises FileError, naming line and column, for anything else.
ORVANE_API Table ReadTable(const Source& source, MissingCell missing);

}  // namespace orvane::tables
