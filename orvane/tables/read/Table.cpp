#include "orvane/tables/read/Table.h"

#include "orvane/tables/read/Arrange.h"
#include "orvane/tables/read/Dates.h"
#include "orvane/tables/read/Pivot.h"
#include "orvane/tables/read/TableReader.h"

#include <array>
#include <charconv>
#include <cmath>
#include <string_view>
#include <unordered_map>
#include <utility>

namespace orvane::tables {
namespace {

constexpr const char* kRest = "Other";

/// Whether all of a table has to be gathered before its categories are known.
bool IsGathered(const ReadOptions& options) { return options.by || options.top > 0; }

/// The name of a category by what `options` say, from its text.
class CategoryNames {
 public:
  explicit CategoryNames(const ReadOptions& options) : m_options(options) {}

  /// `reader` stands at the row.
  std::string_view NameOf(std::string_view text, std::size_t column, const TableReader& reader) {
    if (!m_options.by) return text;
    if (text == m_text && !m_name.empty()) return m_name;
    const auto date = ReadDate(text, m_options.dateFormat);
    if (!date || date->period > *m_options.by) {
      reader.Fail(column,
                  '"' + std::string(text) + "\" is no date" +
                      (m_options.dateFormat.empty()
                           ? " such as 2024-03-05 (--date-format says how dates are written)"
                           : " as --date-format has them"));
    }
    m_text = text;
    m_name = SpellDate(SpanAt(date->day, *m_options.by));
    return m_name;
  }

 private:
  const ReadOptions& m_options;
  std::string m_text;
  std::string m_name;
};

void RequireRoom(std::size_t categories, std::size_t series, const TableReader& reader) {
  const auto most = static_cast<std::size_t>(kMostCells);
  const auto fail = [&](std::size_t count, const char* what, const char* help) {
    throw FileError(reader.From().name + ": " + std::to_string(count) + " " + what +
                    ", a chart takes " + std::to_string(most) + ": " + help);
  };
  if (categories > most)
    fail(categories, "categories", "--top N or, for dates, --by month makes fewer");
  if (series > most) fail(series, "series", "--series by another column, or --rows, makes fewer");
}

/// The unit that all of `columns` have.
std::string UnitOf(const TableReader& reader, const std::vector<std::size_t>& columns) {
  const std::string& unit = reader.Columns()[columns.front()].unit;
  for (const std::size_t column : columns) {
    if (reader.Columns()[column].unit != unit) return "";
  }
  return unit;
}

void ReadHeader(const TableReader& reader, Table& table) {
  const auto& columns = reader.Columns();
  if (columns.size() < 2) {
    reader.From().Fail(reader.HeaderEnd(), "the header names no series after its first column");
  }
  table.categoryHeader = columns[0].name;
  std::unordered_map<std::string_view, std::size_t> places;
  for (std::size_t i = 1; i < columns.size(); ++i) {
    const auto& column = columns[i];
    if (i > kMostCells) {
      reader.From().Fail(column.place, "more than " + std::to_string(kMostCells) + " series");
    }
    const auto [first, isNew] = places.try_emplace(column.name, columns[i].source);
    if (!isNew) {
      reader.From().Fail(column.place, "series name \"" + column.name +
                                           "\" is already that of column " +
                                           std::to_string(first->second + 1));
    }
  }
}

/// Categories in the first column, a series in each other.
void ReadWide(TableReader& reader, const ReadOptions& options, Table& table) {
  std::vector<std::size_t> numbers;
  for (std::size_t i = 1; i < reader.Columns().size(); ++i) numbers.push_back(i);
  reader.ReadNumbersIn(numbers, true);
  reader.DropEmptyColumns();
  ReadHeader(reader, table);
  numbers.resize(reader.Columns().size() - 1);
  table.unit = UnitOf(reader, numbers);
  if (IsGathered(options)) {
    Pivot pivot(options.aggregate.value_or(Aggregate::Sum));
    CategoryNames names(options);
    for (const std::size_t column : numbers) pivot.series.IndexOf(reader.Columns()[column].name);
    while (reader.Next()) {
      const std::size_t category =
          pivot.categories.IndexOf(names.NameOf(reader.Text(0), 0, reader));
      for (const std::size_t column : numbers) {
        const double number = reader.Number(column);
        if (!std::isnan(number)) pivot.Add(category, column - 1, number);
      }
    }
    if (options.top > 0) pivot.KeepLargest(options.top, kRest);
    RequireRoom(options.top > 0 ? 0 : pivot.categories.Names().size(), numbers.size(), reader);
    pivot.FillIn(table);
    return;
  }
  for (const std::size_t i : numbers) {
    table.series.push_back({reader.Columns()[i].name, {}, reader.Columns()[i].place});
  }
  while (reader.Next()) {
    if (table.categories.size() == kMostCells) {
      reader.Fail(0, "more than " + std::to_string(kMostCells) + " categories");
    }
    table.categories.emplace_back(reader.RawText(0));
    for (const std::size_t column : numbers) {
      table.series[column - 1].cells.push_back(
          {reader.Number(column), std::string(reader.Text(column)), reader.PlaceOf(column)});
    }
  }
}

/// One row a value: category and series are the texts of columns, and values that meet are
/// aggregated as they come.
void ReadTidy(TableReader& reader, const ReadOptions& options, Table& table) {
  if (options.category.empty()) throw FileError("--series and --value need --category");
  const bool isCount = options.aggregate == Aggregate::Count;
  if (options.value.empty() && !isCount) throw FileError("--category needs --value");
  const std::size_t category = reader.Find(options.category, "--category");
  const bool hasSeries = !options.series.empty();
  const std::size_t series = hasSeries ? reader.Find(options.series, "--series") : category;
  const std::size_t value =
      options.value.empty() ? category : reader.Find(options.value, "--value");
  const bool hasNumbers = !options.value.empty() && !isCount;
  reader.ReadNumbersIn(hasNumbers ? std::vector{value} : std::vector<std::size_t>(), true);
  table.categoryHeader = reader.Columns()[category].name;
  if (hasNumbers) table.unit = reader.Columns()[value].unit;

  Pivot pivot(options.aggregate.value_or(Aggregate::Sum));
  CategoryNames names(options);
  if (!hasSeries) pivot.series.IndexOf(isCount ? "Count" : reader.Columns()[value].name);
  const bool mayMeet = options.aggregate || options.by;
  while (reader.Next()) {
    const std::string_view name = names.NameOf(reader.Text(category), category, reader);
    const std::size_t row = pivot.categories.IndexOf(name);
    const std::size_t column = hasSeries ? pivot.series.IndexOf(reader.Text(series)) : 0;
    double number = 1;
    if (hasNumbers) number = reader.Number(value);
    if (!hasNumbers && !options.value.empty() && reader.Text(value).empty()) continue;
    if (std::isnan(number)) continue;
    if (!pivot.Add(row, column, number) && !mayMeet) {
      reader.Fail(value, "a second value for \"" + std::string(name) + '"' +
                             (hasSeries ? ", \"" + std::string(reader.Text(series)) + '"' : "") +
                             ": --aggregate sum, mean, median, min, max or count says what becomes"
                             " of them");
    }
  }
  if (options.top > 0) pivot.KeepLargest(options.top, kRest);
  RequireRoom(options.top > 0 ? 0 : pivot.categories.Names().size(), pivot.series.Names().size(),
              reader);
  pivot.FillIn(table);
}

/// What has no row, and so no place, in a tidy table is a gap, which somebody has to have wished.
void RequireFull(const Table& table) {
  for (const TableSeries& series : table.series) {
    for (std::size_t i = 0; i < series.cells.size(); ++i) {
      if (!series.cells[i].IsGap()) continue;
      throw FileError(table.origin.name + ": no value for \"" + table.categories[i] + "\", \"" +
                      series.name +
                      "\" (--missing zero, previous or linear says what stands for it)");
    }
  }
}

}  // namespace

Table MakeTable(std::vector<std::string> categories, const std::vector<NamedNumbers>& series) {
  Table table;
  table.origin.name = "table";
  if (categories.empty() || series.empty()) {
    throw FileError("table: a chart needs a category and a series, or more");
  }
  for (const auto& [name, numbers] : series) {
    if (numbers.size() != categories.size()) {
      throw FileError("table: series \"" + name + "\" has " + std::to_string(numbers.size()) +
                      " numbers for " + std::to_string(categories.size()) + " categories");
    }
    TableSeries& made = table.series.emplace_back(TableSeries{name, {}, {}});
    for (const double number : numbers) {
      if (!std::isfinite(number)) {
        throw FileError("table: series \"" + name + "\" holds a number that is not finite");
      }
      std::array<char, 32> text{};
      const auto end = std::to_chars(text.data(), text.data() + text.size(), number).ptr;
      made.cells.push_back({number, std::string(text.data(), end), {}});
    }
  }
  table.categories = std::move(categories);
  return table;
}

Table ReadTable(Rows& rows, const ReadOptions& options) {
  TableReader reader(rows, options);
  Table table;
  table.origin = rows.From();
  const bool isTidy =
      !options.category.empty() || !options.series.empty() || !options.value.empty();
  if (isTidy) {
    ReadTidy(reader, options, table);
  } else {
    ReadWide(reader, options, table);
  }
  table.warnings = std::move(reader.warnings);
  if (table.categories.empty()) reader.FailAtEnd("the header has no rows of numbers below it");
  if (options.missing == Missing::Error) RequireFull(table);
  if (options.fillDates) {
    FillDates(table, options.by ? "" : options.dateFormat);
  } else if (options.sort == Sort::None && options.top == 0) {
    WarnOfUnevenDates(table, options.by ? "" : options.dateFormat);
  }
  FillGaps(table, options.missing);
  SortCategories(table, options.sort);
  if (options.isPercent) MakePercent(table);
  if (options.isTransposed) Transpose(table);
  return table;
}

}  // namespace orvane::tables
