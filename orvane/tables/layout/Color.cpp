#include "orvane/tables/layout/Color.h"

#include <algorithm>
#include <cmath>

namespace orvane::tables {
namespace {

int Component(HostColor color, int shift) { return color >> shift & 0xFF; }

}  // namespace

HostColor Mix(HostColor from, HostColor to, double share) {
  HostColor mixed = 0;
  for (const int shift : {0, 8, 16}) {
    const int low = Component(from, shift);
    mixed |= static_cast<int>(std::lround(low + share * (Component(to, shift) - low))) << shift;
  }
  return mixed;
}

double Luminance(HostColor color) {
  const auto linear = [](int component) {
    const double v = component / 255.0;
    return v <= 0.04045 ? v / 12.92 : std::pow((v + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * linear(Component(color, 0)) + 0.7152 * linear(Component(color, 8)) +
         0.0722 * linear(Component(color, 16));
}

double Contrast(HostColor a, HostColor b) {
  const auto [darker, brighter] = std::minmax({Luminance(a), Luminance(b)});
  return (brighter + 0.05) / (darker + 0.05);
}

}  // namespace orvane::tables
