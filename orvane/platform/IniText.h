/// Readable text of sections, keys and values, the form of all that a host keeps between runs.
#pragma once

#include "orvane/automation/Export.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace orvane::host {

/// Lines such as
///
///     # a comment
///     [ProtoPath]
///     ProtoDir=C:\Protos
///
/// Spaces around keys and values do not count. A value with spaces at its ends, line breaks or
/// other control characters stands in double quotes, with \\ \" \n \r \t and \xHH inside. What is
/// not understood counts as absent, and is kept as it is when other lines change.
class ORVANE_API IniText {
 public:
  explicit IniText(std::string_view text = {});

  /// The value of `key` in `section`; none when absent or damaged. Names are found in their own
  /// case; the section "" is what stands ahead of the first header.
  std::optional<std::string> Get(std::string_view section, std::string_view key) const;

  /// Raises a component error for a name that IsName refuses.
  void Set(std::string_view section, std::string_view key, std::string_view value);

  /// Takes a whole section out.
  void Remove(std::string_view section);

  std::string Text() const;

  /// Whether `name` can name a section or key: not empty, no control characters, none of = [ ] ",
  /// no space at either end, no # or ; in front.
  static bool IsName(std::string_view name);

 private:
  /// The lines of a section without its header: first and one past the last.
  struct Range {
    std::size_t first;
    std::size_t last;
  };
  std::optional<Range> Find(std::string_view section) const;

  std::vector<std::string> m_lines;
};

}  // namespace orvane::host
