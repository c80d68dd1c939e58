#include "orvane/tables/read/Selection.h"

#include "orvane/tables/read/Rows.h"

#include <algorithm>
#include <charconv>

namespace orvane::tables {
namespace {

std::optional<std::size_t> CountIn(std::string_view text) {
  std::size_t number = 0;
  const auto result = std::from_chars(text.data(), text.data() + text.size(), number);
  if (text.empty() || result.ec != std::errc() || result.ptr != text.data() + text.size())
    return {};
  if (number == 0) return {};
  return number;
}

FileError NotARange(const std::string& option, const std::string& part) {
  return FileError(option + ": \"" + part + "\" is not a number from 1 or a range such as 2-5");
}

}  // namespace

Selection::Selection(const std::string& text, const std::string& option) {
  if (text.empty()) return;
  m_last = 0;
  for (const std::string& part : ListOf(text)) {
    const std::size_t dash = part.find('-');
    const auto first = CountIn(WithoutBlanks(part.substr(0, dash)));
    auto last = first;
    if (dash != std::string::npos) {
      const std::string_view end = WithoutBlanks(std::string_view(part).substr(dash + 1));
      last = end.empty() ? std::numeric_limits<std::size_t>::max() : CountIn(end);
    }
    if (!first || !last || *last < *first) {
      throw NotARange(option, part);
    }
    m_ranges.push_back({*first, *last});
    m_last = std::max(m_last, *last);
  }
}

bool Selection::Has(std::size_t number) const {
  return m_ranges.empty() || std::any_of(m_ranges.begin(), m_ranges.end(), [&](const Range& range) {
           return range.first <= number && number <= range.last;
         });
}

std::vector<std::string> ListOf(std::string_view text) {
  std::vector<std::string> parts;
  while (true) {
    const std::size_t comma = text.find(',');
    parts.emplace_back(WithoutBlanks(text.substr(0, comma)));
    if (comma == std::string_view::npos) return parts;
    text.remove_prefix(comma + 1);
  }
}

std::optional<std::size_t> ColumnNumber(std::string_view text) {
  if (const auto number = CountIn(text)) return number;
  if (text.empty() || text.size() > 3) return {};
  std::size_t number = 0;
  for (const char c : text) {
    const char upper = c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
    if (upper < 'A' || upper > 'Z') return {};
    number = 26 * number + static_cast<std::size_t>(upper - 'A' + 1);
  }
  return number;
}

}  // namespace orvane::tables
