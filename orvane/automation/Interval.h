/// Which numbers a property, an argument or a field takes.
#pragma once

#include "orvane/automation/Export.h"

#include <limits>
#include <string>
#include <utility>

namespace orvane::host {

/// The numbers from `low` to `high`. Infinity belongs to none.
struct Interval {
  double low = -std::numeric_limits<double>::infinity();
  double high = std::numeric_limits<double>::infinity();
  bool isOpen = false;  ///< Neither end belongs to it.

  constexpr bool Contains(double value) const {
    if (!(value - value == 0)) return false;
    return isOpen ? value > low && value < high : value >= low && value <= high;
  }
};

inline constexpr Interval kAnyNumber{};
inline constexpr Interval kUnit{0, 1};
inline constexpr Interval kPositive{0, std::numeric_limits<double>::infinity(), true};
inline constexpr Interval kNotNegative{0};
inline constexpr Interval kAtLeastOne{1};
inline constexpr Interval kColors{0, 0xFFFFFF};

/// An interval as a type table has it: its high end may be a count.
struct ORVANE_API Range : Interval {
  Range() = default;
  Range(const Interval& interval) : Interval(interval) {}  // NOLINT(google-explicit-constructor)

  /// For people: "0..1", "> 0", "1..Count"; empty for any number.
  std::string Text() const;

  std::string highCount = {};  ///< What `high` is the number of: "Count", "Z cells".
};

/// 1 to `count`, which is the name of a property of the object or says what is counted.
inline Range UpTo(std::string count) {
  Range range = kAtLeastOne;
  range.highCount = std::move(count);
  return range;
}

}  // namespace orvane::host
