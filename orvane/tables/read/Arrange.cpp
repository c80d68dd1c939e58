#include "orvane/tables/read/Arrange.h"

#include "orvane/tables/read/Dates.h"
#include "orvane/tables/read/Numbers.h"

#include <algorithm>
#include <limits>
#include <map>
#include <numeric>
#include <optional>
#include <utility>

namespace orvane::tables {
namespace {

constexpr double kGap = std::numeric_limits<double>::quiet_NaN();

/// Brings the categories into `order`, an index for each; kNone makes a category of gaps.
constexpr auto kNone = std::numeric_limits<std::size_t>::max();

void Reorder(Table& table, const std::vector<std::size_t>& order) {
  for (TableSeries& series : table.series) {
    std::vector<TableCell> cells;
    cells.reserve(order.size());
    for (const std::size_t i : order) {
      cells.push_back(i == kNone ? TableCell{kGap, "", {}} : std::move(series.cells[i]));
    }
    series.cells = std::move(cells);
  }
}

/// The date of each category; nothing when one of them is none.
std::optional<std::vector<Date>> DatesOf(const Table& table, const std::string& format) {
  std::vector<Date> dates;
  for (const std::string& category : table.categories) {
    const auto date = ReadDate(WithoutBlanks(category), format);
    if (!date) return {};
    dates.push_back(*date);
  }
  return dates;
}

/// The sum over the series of the category at `index`, without gaps.
double SumAt(const Table& table, std::size_t index) {
  double sum = 0;
  for (const TableSeries& series : table.series) {
    if (!series.cells[index].IsGap()) sum += series.cells[index].number;
  }
  return sum;
}

TableCell Instead(double number, const std::string& how) {
  return {number, SpellNumber(number) + " (" + how + ")", {}};
}

void FillLinear(std::vector<TableCell>& cells) {
  std::size_t before = kNone;
  for (std::size_t i = 0; i < cells.size(); ++i) {
    if (cells[i].IsGap()) continue;
    for (std::size_t gap = before + 1; before != kNone && gap < i; ++gap) {
      const double part = static_cast<double>(gap - before) / static_cast<double>(i - before);
      cells[gap] = Instead(std::lerp(cells[before].number, cells[i].number, part), "interpolated");
    }
    before = i;
  }
}

}  // namespace

void FillDates(Table& table, const std::string& dateFormat) {
  const auto dates = DatesOf(table, dateFormat);
  if (!dates) {
    throw FileError(table.origin.name + ": --fill-dates needs categories that are dates" +
                    (dateFormat.empty() ? ", such as 2024-03-05 (or --date-format)" : ""));
  }
  std::map<std::chrono::sys_days, std::size_t> places;
  for (std::size_t i = 0; i < dates->size(); ++i) {
    const bool isNew = places.emplace((*dates)[i].day, i).second;
    if (isNew && (*dates)[i].period == dates->front().period) continue;
    throw FileError(table.origin.name + ": --fill-dates: \"" + table.categories[i] +
                    (isNew ? "\" is no span of the same length as the others" : "\" stands twice"));
  }
  std::vector<std::size_t> order;
  std::vector<std::string> categories;
  const auto last = places.rbegin()->first;
  for (Date date = (*dates)[places.begin()->second]; date.day <= last; date = NextSpan(date)) {
    const auto found = places.find(date.day);
    order.push_back(found == places.end() ? kNone : found->second);
    categories.push_back(found == places.end() ? SpellDate(date) : table.categories[found->second]);
    if (order.size() <= static_cast<std::size_t>(kMostCells)) continue;
    throw FileError(table.origin.name + ": --fill-dates: more than " + std::to_string(kMostCells) +
                    " categories (--by week, month, quarter or year makes fewer)");
  }
  table.categories = std::move(categories);
  Reorder(table, order);
}

void WarnOfUnevenDates(Table& table, const std::string& dateFormat) {
  const auto dates = DatesOf(table, dateFormat);
  if (!dates || dates->size() < 3) return;
  // Months and quarters of days that all are the first, or the fifteenth, are even.
  const auto isEven = [&](auto step) {
    for (std::size_t i = 2; i < dates->size(); ++i) {
      const auto count = step((*dates)[i - 1], (*dates)[i]);
      if (!count || count != step((*dates)[0], (*dates)[1])) return false;
    }
    return true;
  };
  using Count = std::optional<int>;
  const auto days = [](const Date& a, const Date& b) {
    return Count(static_cast<int>((b.day - a.day).count()));
  };
  const auto months = [](const Date& a, const Date& b) {
    const std::chrono::year_month_day from(a.day);
    const std::chrono::year_month_day to(b.day);
    if (from.day() != to.day()) return Count();
    return Count(static_cast<int>((to.year() / to.month() - from.year() / from.month()).count()));
  };
  if (isEven(days) || isEven(months)) return;
  table.warnings.push_back(table.origin.name +
                           ": the dates stand at uneven steps but are drawn at even ones"
                           " (--fill-dates leaves room for those that are missing)");
}

void FillGaps(Table& table, Missing missing) {
  for (TableSeries& series : table.series) {
    if (missing == Missing::Linear) FillLinear(series.cells);
    const TableCell* before = nullptr;
    for (TableCell& cell : series.cells) {
      if (cell.IsGap() && missing == Missing::Zero) cell = {0, "0", cell.place};
      if (cell.IsGap() && missing == Missing::Previous && before != nullptr) {
        cell = Instead(before->number, "the value before");
      }
      if (!cell.IsGap()) before = &cell;
    }
  }
}

void SortCategories(Table& table, Sort sort) {
  if (sort == Sort::None) return;
  std::vector<std::size_t> order(table.categories.size());
  std::iota(order.begin(), order.end(), std::size_t{0});
  std::vector<double> sums;
  sums.reserve(order.size());
  for (const std::size_t i : order) sums.push_back(SumAt(table, i));
  std::stable_sort(order.begin(), order.end(), [&](std::size_t a, std::size_t b) {
    return sort == Sort::Value ? sums[a] > sums[b] : table.categories[a] < table.categories[b];
  });
  std::vector<std::string> categories;
  categories.reserve(order.size());
  for (const std::size_t i : order) categories.push_back(table.categories[i]);
  table.categories = std::move(categories);
  Reorder(table, order);
}

void Transpose(Table& table) {
  std::vector<TableSeries> turned;
  for (std::size_t i = 0; i < table.categories.size(); ++i) {
    TableSeries series{table.categories[i], {}, {}};
    for (TableSeries& old : table.series) series.cells.push_back(std::move(old.cells[i]));
    turned.push_back(std::move(series));
  }
  table.categories.clear();
  for (const TableSeries& old : table.series) table.categories.push_back(old.name);
  table.series = std::move(turned);
}

void MakePercent(Table& table) {
  for (std::size_t i = 0; i < table.categories.size(); ++i) {
    const double sum = SumAt(table, i);
    for (TableSeries& series : table.series) {
      TableCell& cell = series.cells[i];
      if (cell.IsGap()) continue;
      if (cell.number < 0 || sum == 0) {
        throw FileError(table.origin.name + ": --percent: " +
                        (sum == 0 ? "the sum of \"" + table.categories[i] + "\" is 0"
                                  : "\"" + cell.text + "\" is below 0"));
      }
      cell.number = 100 * cell.number / sum;
      constexpr double kTenths = 10;
      cell.text += " (" + SpellNumber(std::round(kTenths * cell.number) / kTenths) + " %)";
    }
  }
  table.unit = "%";
}

}  // namespace orvane::tables
