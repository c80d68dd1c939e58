/// The Parzen estimate as it is defined, rounding by rounding: what ParzenMap is held against.
#pragma once

#include "orvane/graphs/surface/ParzenMap.h"

#include <cmath>
#include <span>
#include <vector>

namespace orvane::tests {

inline float DensityAt(std::span<const scene::Vec2f> points, float x, float z, float sigma) {
  const auto s = static_cast<float>(2.0 * std::pow(static_cast<double>(sigma), 2));
  float sum = 0;
  for (const auto& point : points) {
    const auto dx = static_cast<float>(static_cast<double>(x) - point.x);
    const auto dz = static_cast<float>(static_cast<double>(z) - point.y);
    const auto q = static_cast<float>(std::pow(static_cast<double>(dx), 2) +
                                      std::pow(static_cast<double>(dz), 2));
    const auto d = static_cast<float>(std::sqrt(static_cast<double>(q)));
    const auto square = static_cast<float>(std::pow(static_cast<double>(d), 2));
    const auto e = static_cast<float>(-static_cast<double>(square) / s);
    sum = static_cast<float>(sum + std::pow(2.7183, static_cast<double>(e)));
  }
  return sum;
}

inline std::vector<float> LiteralParzenMap(std::span<const scene::Vec2f> points,
                                           const LatticeAxis& xAxis, const LatticeAxis& zAxis,
                                           float sigma) {
  std::vector<float> densities;
  for (std::size_t iz = 0; iz < zAxis.count; ++iz) {
    for (std::size_t ix = 0; ix < xAxis.count; ++ix) {
      densities.push_back(DensityAt(points, static_cast<float>(ix) * xAxis.spacing,
                                    static_cast<float>(iz) * zAxis.spacing, sigma));
    }
  }
  return densities;
}

}  // namespace orvane::tests
