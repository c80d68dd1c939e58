#include "orvane/tables/layout/Texts.h"

#include "orvane/scene/Utf8.h"

#include <cstddef>

namespace orvane::tables {

std::string Label(std::string_view text) {
  constexpr std::size_t kMostCharacters = 24;
  std::string label;
  for (std::size_t count = 1; !text.empty(); ++count) {
    const std::size_t length = scene::CharacterLength(text);
    if (count == kMostCharacters && length < text.size()) return label + "…";
    const bool isControl = static_cast<unsigned char>(text.front()) < 0x20;
    label += isControl ? " " : text.substr(0, length);
    text.remove_prefix(length);
  }
  return label;
}

double TextWidth(std::string_view text, double height) {
  // Most Latin letters are little more than half as wide as the text is high, East Asian
  // characters are square.
  double width = 0;
  while (!text.empty()) {
    const std::size_t length = scene::CharacterLength(text);
    width += length < 3 ? 0.56 : 1;
    text.remove_prefix(length);
  }
  return width * height;
}

}  // namespace orvane::tables
