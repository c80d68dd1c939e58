#include "orvane/tables/read/Numbers.h"

#include "orvane/automation/Enumeration.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <charconv>
#include <cmath>
#include <system_error>

namespace orvane::tables {
namespace {

using Fault = SpelledNumber::Fault;

/// Longer ones first where one begins another.
constexpr std::array<std::string_view, 63> kUnits = {
    "%",   "US$", "R$",  "A$",  "C$",  "$",   "€",   "£",   "¥",   "₹",   "₽", "₩",   "₺",
    "₪",   "₫",   "฿",   "₴",   "zł",  "Kč",  "Ft",  "Fr.", "kr",  "USD", "EUR", "GBP", "JPY",
    "CHF", "CNY", "INR", "RUB", "KRW", "TRY", "ILS", "VND", "THB", "UAH", "PLN", "CZK", "HUF",
    "SEK", "NOK", "DKK", "ISK", "AUD", "CAD", "NZD", "HKD", "SGD", "TWD", "MXN", "BRL", "ARS",
    "CLP", "COP", "ZAR", "EGP", "AED", "SAR", "IDR", "MYR", "PHP", "RON", "BGN"};

/// Space, no-break space, narrow no-break space, thin space; apostrophes.
constexpr std::array<std::string_view, 6> kGroupMarks = {
    " ", "\xC2\xA0", "\xE2\x80\xAF", "\xE2\x80\x89", "'", "\xE2\x80\x99"};

constexpr std::array<std::string_view, 13> kNoValues = {
    "NA", "N/A", "#N/A", "NaN", "null", "none", "-", "–", "—", ":", "..", "...", "."};

bool IsDigit(char c) { return c >= '0' && c <= '9'; }

bool Drop(std::string_view& text, std::string_view prefix) {
  if (!text.starts_with(prefix)) return false;
  text.remove_prefix(prefix.size());
  return true;
}

bool DropEnd(std::string_view& text, std::string_view suffix) {
  if (!text.ends_with(suffix)) return false;
  text.remove_suffix(suffix.size());
  return true;
}

void DropBlanks(std::string_view& text) {
  const auto isBlank = [](std::string_view mark) {
    return !mark.ends_with('\'') && mark != "\xE2\x80\x99";
  };
  for (const std::string_view mark : kGroupMarks) {
    while (isBlank(mark) && (Drop(text, mark) || DropEnd(text, mark))) {
    }
  }
}

/// Takes sign, brackets and unit off `text`; false where one stands twice.
bool TakeOff(std::string_view& text, bool& isNegative, std::string_view& unit) {
  int signs = 0;
  for (bool isTaking = true; isTaking;) {
    isTaking = false;
    DropBlanks(text);
    if (text.starts_with('(') && text.ends_with(')')) {
      text = text.substr(1, text.size() - 2);
      isNegative = isTaking = true;
      ++signs;
    } else if (Drop(text, "-") || Drop(text, "\xE2\x88\x92") || DropEnd(text, "-")) {
      isNegative = isTaking = true;
      ++signs;
    } else if (Drop(text, "+")) {
      isTaking = true;
      ++signs;
    }
    for (const std::string_view known : kUnits) {
      if (!Drop(text, known) && !DropEnd(text, known)) continue;
      if (!unit.empty()) return false;
      unit = known;
      isTaking = true;
      break;
    }
  }
  return signs <= 1;
}

/// The plain spelling of `text`: without group marks, with a point. Empty where it has none.
std::string Plain(std::string_view text, DecimalMark mark, std::string_view& group) {
  const char decimal = mark == DecimalMark::Point ? '.' : ',';
  const std::string_view otherGroup = mark == DecimalMark::Point ? "," : ".";
  std::string plain;
  std::size_t digits = 0;  // Since the last group mark, or the beginning.
  bool hasDecimal = false;
  while (!text.empty()) {
    const char c = text.front();
    if (IsDigit(c)) {
      plain += c;
      ++digits;
      text.remove_prefix(1);
      continue;
    }
    if (c == 'e' || c == 'E') break;
    if (!group.empty() && digits != 3) return {};
    if (c == decimal) {
      if (hasDecimal) return {};
      hasDecimal = true;
      plain += '.';
      text.remove_prefix(1);
      while (!text.empty() && IsDigit(text.front())) {
        plain += text.front();
        text.remove_prefix(1);
      }
      break;
    }
    std::string_view found = otherGroup;
    for (const std::string_view groupMark : kGroupMarks) {
      if (text.starts_with(groupMark)) found = groupMark;
    }
    if (!text.starts_with(found) || (!group.empty() && group != found)) return {};
    // "0,123" has no thousands.
    if (group.empty() && (digits == 0 || digits > 3 || plain.front() == '0')) return {};
    group = found;
    digits = 0;
    text.remove_prefix(found.size());
  }
  if (!group.empty() && !hasDecimal && digits != 3) return {};
  return plain.append(text);
}

}  // namespace

SpelledNumber ReadSpelled(std::string_view text, DecimalMark mark) {
  SpelledNumber number;
  const auto read = [&](std::string_view digits) {
    const char* const end = digits.data() + digits.size();
    const auto result = std::from_chars(digits.data(), end, number.value);
    number.fault = Fault::None;
    if (digits.empty() || result.ptr != end || result.ec == std::errc::invalid_argument) {
      number.fault = Fault::NotANumber;
    } else if (result.ec == std::errc::result_out_of_range) {
      number.fault = Fault::TooLargeOrSmall;
    } else if (!std::isfinite(number.value)) {
      number.fault = Fault::NotFinite;
    }
    return number.fault != Fault::NotANumber;
  };
  // Most numbers are plain, and with a comma as decimal mark a point is none.
  if ((mark == DecimalMark::Point || text.find('.') == std::string_view::npos) && read(text)) {
    return number;
  }
  bool isNegative = false;
  std::string_view rest = text;
  if (!TakeOff(rest, isNegative, number.unit) || rest.empty() ||
      !(IsDigit(rest.front()) || rest.front() == '.' || rest.front() == ',')) {
    number.fault = Fault::NotANumber;
    return number;
  }
  if (read(Plain(rest, mark, number.group)) && isNegative) number.value = -number.value;
  return number;
}

bool IsNoValue(std::string_view text) {
  return std::any_of(kNoValues.begin(), kNoValues.end(),
                     [&](std::string_view spelling) { return host::EqualNoCase(text, spelling); });
}

std::string SpellNumber(double value) {
  std::array<char, 32> text{};
  const auto end =
      std::to_chars(text.data(), text.data() + text.size(), value, std::chars_format::general, 12);
  return {text.data(), end.ptr};
}

}  // namespace orvane::tables
