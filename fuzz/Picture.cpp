/// Numbers and their pictures: four bytes of a number, then the picture.
#include "Fuzz.h"

#include "orvane/components/NumberPicture.h"

#include <cmath>
#include <cstring>

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace orvane;
  float number = 0;
  if (size < sizeof number) return 0;
  std::memcpy(&number, data, sizeof number);
  if (!std::isfinite(number)) return 0;
  const auto picture = fuzz::Text(data + sizeof number, size - sizeof number);
  const auto text = FormatNumber(number, picture);
  fuzz::Require(text == FormatNumber(number, picture), "one number is one text");
  if (picture.empty()) fuzz::Require(std::stof(text) == number, "the shortest text reads back");
  return 0;
}
