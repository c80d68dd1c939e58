#include "orvane/tables/read/Table.h"

#include "orvane/tables/read/Csv.h"

#include <array>
#include <charconv>
#include <cmath>
#include <string_view>
#include <unordered_map>
#include <utility>

namespace orvane::tables {
namespace {

TableCell ReadCell(const CsvCell& cell, MissingCell missing, const Source& source) {
  const std::string_view text = WithoutBlanks(cell.text);
  if (text.empty()) {
    if (missing == MissingCell::Zero) return {0, "0", cell.offset};
    source.Fail(cell.offset, "empty cell (--missing zero reads it as 0)");
  }
  return {ReadNumber(cell, source), std::string(text), cell.offset};
}

void ReadHeader(const std::vector<CsvCell>& row, std::size_t rowEnd, const Source& source,
                Table& table) {
  if (row.size() < 2) source.Fail(rowEnd, "the header names no series after its first column");
  table.categoryHeader = row[0].text;
  std::unordered_map<std::string_view, std::size_t> columns;
  for (std::size_t column = 1; column < row.size(); ++column) {
    const CsvCell& cell = row[column];
    if (column > kMostCells) {
      source.Fail(cell.offset, "more than " + std::to_string(kMostCells) + " series");
    }
    const auto [first, isNew] = columns.try_emplace(cell.text, column);
    if (!isNew) {
      source.Fail(cell.offset, "series name \"" + cell.text + "\" is already that of column " +
                                   std::to_string(first->second + 1));
    }
    table.series.push_back({cell.text, {}, cell.offset});
  }
}

}  // namespace

Table MakeTable(std::vector<std::string> categories, const std::vector<NamedNumbers>& series) {
  Table table;
  table.file = "table";
  if (categories.empty() || series.empty()) {
    throw FileError("table: a chart needs a category and a series, or more");
  }
  for (const auto& [name, numbers] : series) {
    if (numbers.size() != categories.size()) {
      throw FileError("table: series \"" + name + "\" has " + std::to_string(numbers.size()) +
                      " numbers for " + std::to_string(categories.size()) + " categories");
    }
    TableSeries& made = table.series.emplace_back(TableSeries{name, {}, 0});
    for (const double number : numbers) {
      if (!std::isfinite(number)) {
        throw FileError("table: series \"" + name + "\" holds a number that is not finite");
      }
      std::array<char, 32> text{};
      const auto end = std::to_chars(text.data(), text.data() + text.size(), number).ptr;
      made.cells.push_back({number, std::string(text.data(), end), 0});
    }
  }
  table.categories = std::move(categories);
  return table;
}

Table ReadTable(const Source& source, MissingCell missing) {
  CsvReader reader(source);
  Table table;
  table.file = source.Name();
  std::vector<CsvCell> row = reader.ReadHeader();
  ReadHeader(row, reader.RowEnd(), source, table);

  const std::size_t columnCount = row.size();
  while (reader.Next(row)) {
    if (table.categories.size() == kMostCells) {
      source.Fail(row[0].offset, "more than " + std::to_string(kMostCells) + " categories");
    }
    for (std::size_t column = 1; column < columnCount; ++column) {
      table.series[column - 1].cells.push_back(ReadCell(row[column], missing, source));
    }
    table.categories.push_back(std::move(row[0].text));
  }
  if (table.categories.empty()) {
    source.Fail(reader.Offset(), "the header has no rows of numbers below it");
  }
  return table;
}

}  // namespace orvane::tables
