/// Values gathered in cells by category and series, as many of them as there may be.
#pragma once

#include "orvane/tables/read/ReadOptions.h"
#include "orvane/tables/read/Table.h"

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace orvane::tables {

/// Names in order of appearance, and their indexes from 0.
class NameList {
 public:
  std::size_t IndexOf(std::string_view name);
  const std::vector<std::string>& Names() const { return m_names; }

 private:
  struct Hash : std::hash<std::string_view> {
    using is_transparent = void;
  };
  std::unordered_map<std::string, std::size_t, Hash, std::equal_to<>> m_indexes;
  std::vector<std::string> m_names;
  std::size_t m_last = 0;  ///< Index of the name last asked for: tables often repeat it.
};

/// Memory goes with the cells, not with the values, save for medians.
class Pivot {
 public:
  explicit Pivot(Aggregate aggregate) : m_aggregate(aggregate) {}

  NameList categories;
  NameList series;

  /// Adds a value, which is not a gap; false when the cell had one before.
  bool Add(std::size_t category, std::size_t series, double value);
  /// Makes one category, `name`, of all but the `count` with the largest sums over their series.
  void KeepLargest(std::size_t count, const std::string& name);
  /// Categories and series with what the values of each cell come to; a gap where there is none.
  void FillIn(Table& table) const;

 private:
  struct Gathered {
    std::size_t count = 0;
    double sum = 0;
    double lost = 0;  ///< What roundings took from the sum.
    double least = 0;
    double most = 0;
    std::vector<double> values;  ///< For medians.

    void Add(double value);
    void Add(const Gathered& other);
    double Come(Aggregate aggregate) const;
  };

  Aggregate m_aggregate;
  std::vector<std::vector<Gathered>> m_cells;  ///< [category][series], as far as there are any.
  std::vector<std::size_t> m_order;  ///< Of the categories that are kept, when not all are.
  std::string m_restName;
};

}  // namespace orvane::tables
