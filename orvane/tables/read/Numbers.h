/// Numbers as people spell them: decimal marks, grouped digits, signs, percentages and currencies.
#pragma once

#include "orvane/automation/Export.h"
#include "orvane/tables/read/ReadOptions.h"

#include <string>
#include <string_view>

namespace orvane::tables {

/// What a text says under one decimal mark.
struct SpelledNumber {
  enum class Fault { None, NotANumber, TooLargeOrSmall, NotFinite };

  Fault fault = Fault::None;
  double value = 0;
  std::string_view group;  ///< What stands between groups of three digits; empty: nothing does.
  std::string_view unit;   ///< "%" or a currency, before or after the digits.
};

/// Reads a text without blanks around it: digits with a decimal mark and an exponent, both
/// optional; grouped by comma, point, space or apostrophe where that is not the decimal mark; "-"
/// or the minus sign before or behind, or brackets around it, for below 0; a currency or % on one
/// side.
SpelledNumber ReadSpelled(std::string_view text, DecimalMark mark);

/// Whether people write `text` where there is no value: "NA", "n/a", "-", "null", ...
bool IsNoValue(std::string_view text);

/// At most 12 digits, which is what sums of decimals are good for.
ORVANE_API std::string SpellNumber(double value);

}  // namespace orvane::tables
