#include "orvane/tables/read/PieTable.h"

#include <algorithm>

namespace orvane::tables {
namespace {

/// The numbers of a column in parts of the largest. `what` is what they are called.
std::vector<double> PartsOfLargest(const TableSeries& column, const std::string& what,
                                   const Origin& origin) {
  double largest = 0;
  for (const TableCell& cell : column.cells) {
    if (cell.number < 0) {
      origin.Fail(cell.place, "the " + what + " " + cell.text + " is negative");
    }
    largest = std::max(largest, cell.number);
  }
  if (largest == 0) origin.Fail(column.cells.front().place, "all " + what + "s are 0");
  std::vector<double> parts;
  parts.reserve(column.cells.size());
  for (const TableCell& cell : column.cells) {
    parts.push_back(cell.IsGap() ? 0 : cell.number / largest);
  }
  return parts;
}

}  // namespace

std::vector<PieShare> PieSharesOf(const Table& table) {
  if (table.series.size() > 2) {
    table.origin.Fail(table.series[2].place,
                      "a pie takes a column of labels, one of values and at most one of heights");
  }
  // Largest first: a sum of the values themselves might be too large.
  const auto values = PartsOfLargest(table.series[0], "value", table.origin);
  std::vector<double> heights(values.size(), 1);
  if (table.series.size() == 2) heights = PartsOfLargest(table.series[1], "height", table.origin);
  double whole = 0;
  for (const double value : values) whole += value;

  std::vector<PieShare> shares;
  shares.reserve(values.size());
  for (std::size_t i = 0; i < values.size(); ++i) {
    if (table.series[0].cells[i].IsGap()) continue;
    shares.push_back(
        {table.categories[i], table.series[0].cells[i].text, values[i] / whole, heights[i]});
  }
  return shares;
}

}  // namespace orvane::tables
