#include "orvane/tables/read/Rows.h"

namespace orvane::tables {
namespace {

/// "A" to "Z", "AA", ...: what a sheet calls its columns.
std::string Letters(std::size_t column) {
  std::string letters;
  for (; column > 0; column = (column - 1) / 26) {
    letters.insert(letters.begin(), static_cast<char>('A' + (column - 1) % 26));
  }
  return letters;
}

}  // namespace

std::string Origin::Spell(const Place& place) const {
  if (place.row == 0) return name;
  const std::string row = std::to_string(place.row);
  const std::string column = std::to_string(place.column);
  switch (kind) {
    case Kind::Sheet:
      return name + "!" + Letters(place.column) + row;
    case Kind::Result:
      return name + ": row " + row + ", column " + column;
    case Kind::Text:
      break;
  }
  return name + ":" + row + ":" + column;
}

void Origin::Fail(const Place& place, const std::string& problem) const {
  throw FileError(Spell(place) + ": " + problem);
}

std::string_view WithoutBlanks(std::string_view text) {
  const auto isBlank = [](char c) { return c == ' ' || c == '\t'; };
  while (!text.empty() && isBlank(text.front())) text.remove_prefix(1);
  while (!text.empty() && isBlank(text.back())) text.remove_suffix(1);
  return text;
}

}  // namespace orvane::tables
