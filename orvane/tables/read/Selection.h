/// Ranges of rows and columns as users write them: "1-12,20,30-".
#pragma once

#include <cstddef>
#include <limits>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace orvane::tables {

/// Numbers from 1; empty: all of them.
class Selection {
 public:
  /// `option` is what messages call it. Raises FileError.
  Selection(const std::string& text, const std::string& option);

  bool Has(std::size_t number) const;
  bool IsBeyond(std::size_t number) const { return number > m_last; }

 private:
  struct Range {
    std::size_t first;
    std::size_t last;
  };
  std::vector<Range> m_ranges;
  std::size_t m_last = std::numeric_limits<std::size_t>::max();
};

/// The texts between commas, blanks around them taken off.
std::vector<std::string> ListOf(std::string_view text);

/// A number from 1, or the letters of a sheet's column; nothing for any other text.
std::optional<std::size_t> ColumnNumber(std::string_view text);

}  // namespace orvane::tables
