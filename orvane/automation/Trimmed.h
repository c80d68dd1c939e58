/// Texts without the spaces around them.
#pragma once

#include <string>

namespace orvane::host {

/// `text` without leading and trailing spaces (U+0020 alone).
inline std::string Trimmed(const std::string& text) {
  const auto first = text.find_first_not_of(' ');
  if (first == std::string::npos) return {};
  return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

}  // namespace orvane::host
