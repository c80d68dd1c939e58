#include "orvane/tables/read/Pivot.h"

#include "orvane/tables/read/Numbers.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numeric>

namespace orvane::tables {

std::size_t NameList::IndexOf(std::string_view name) {
  if (m_last < m_names.size() && m_names[m_last] == name) return m_last;
  const auto found = m_indexes.find(name);
  if (found != m_indexes.end()) return m_last = found->second;
  m_last = m_names.size();
  m_indexes.emplace(name, m_last);
  m_names.emplace_back(name);
  return m_last;
}

void Pivot::Gathered::Add(double value) {
  least = count == 0 ? value : std::min(least, value);
  most = count == 0 ? value : std::max(most, value);
  ++count;
  // Neumaier's sum, which a million roundings do not spoil.
  const double next = sum + value;
  lost += std::abs(sum) >= std::abs(value) ? (sum - next) + value : (value - next) + sum;
  sum = next;
}

void Pivot::Gathered::Add(const Gathered& other) {
  if (other.count == 0) return;
  const std::size_t all = count + other.count;
  const double otherLeast = other.least;
  const double otherMost = other.most;
  const double lostBefore = lost + other.lost;
  lost = 0;
  Add(other.sum);
  lost += lostBefore;
  least = count == 1 ? otherLeast : std::min(least, otherLeast);
  most = count == 1 ? otherMost : std::max(most, otherMost);
  count = all;
  values.insert(values.end(), other.values.begin(), other.values.end());
}

double Pivot::Gathered::Come(Aggregate aggregate) const {
  if (count == 0) return std::numeric_limits<double>::quiet_NaN();
  const double whole = sum + lost;
  switch (aggregate) {
    case Aggregate::Sum:
      break;
    case Aggregate::Mean:
      return whole / static_cast<double>(count);
    case Aggregate::Min:
      return least;
    case Aggregate::Max:
      return most;
    case Aggregate::Count:
      return static_cast<double>(count);
    case Aggregate::Median: {
      std::vector<double> sorted = values;
      std::sort(sorted.begin(), sorted.end());
      const std::size_t half = sorted.size() / 2;
      return sorted.size() % 2 == 1 ? sorted[half] : std::midpoint(sorted[half - 1], sorted[half]);
    }
  }
  return whole;
}

bool Pivot::Add(std::size_t category, std::size_t seriesIndex, double value) {
  if (category >= m_cells.size()) m_cells.resize(category + 1);
  auto& cells = m_cells[category];
  if (seriesIndex >= cells.size()) cells.resize(seriesIndex + 1);
  Gathered& cell = cells[seriesIndex];
  cell.Add(value);
  if (m_aggregate == Aggregate::Median) cell.values.push_back(value);
  return cell.count == 1;
}

void Pivot::KeepLargest(std::size_t count, const std::string& name) {
  if (m_cells.size() <= count) return;
  std::vector<double> sums(m_cells.size(), 0);
  for (std::size_t i = 0; i < m_cells.size(); ++i) {
    for (const Gathered& cell : m_cells[i]) {
      if (cell.count > 0) sums[i] += cell.Come(m_aggregate);
    }
  }
  m_order.resize(m_cells.size());
  std::iota(m_order.begin(), m_order.end(), std::size_t{0});
  std::stable_sort(m_order.begin(), m_order.end(),
                   [&](std::size_t a, std::size_t b) { return sums[a] > sums[b]; });
  std::vector<Gathered> rest(series.Names().size());
  for (std::size_t i = count; i < m_order.size(); ++i) {
    const auto& cells = m_cells[m_order[i]];
    for (std::size_t s = 0; s < cells.size(); ++s) rest[s].Add(cells[s]);
  }
  m_order.resize(count);
  std::sort(m_order.begin(), m_order.end());  // What is kept stays in its order.
  m_order.push_back(m_cells.size());
  m_cells.push_back(std::move(rest));
  m_restName = name;
}

void Pivot::FillIn(Table& table) const {
  std::vector<std::size_t> order = m_order;
  if (order.empty()) {
    order.resize(m_cells.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
  }
  for (const std::size_t category : order) {
    const auto& names = categories.Names();
    table.categories.push_back(category < names.size() ? names[category] : m_restName);
  }
  for (std::size_t s = 0; s < series.Names().size(); ++s) {
    TableSeries column{series.Names()[s], {}, {}};
    for (const std::size_t category : order) {
      const auto& cells = m_cells[category];
      const Gathered none;
      const double number = (s < cells.size() ? cells[s] : none).Come(m_aggregate);
      column.cells.push_back({number, std::isnan(number) ? "" : SpellNumber(number), {}});
    }
    table.series.push_back(std::move(column));
  }
}

}  // namespace orvane::tables
