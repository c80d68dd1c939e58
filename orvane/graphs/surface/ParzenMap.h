/// Where points lie thickly: the Parzen estimate of a cloud's density, sampled on a lattice.
#pragma once

#include "orvane/automation/Export.h"
#include "orvane/scene/Geometry.h"

#include <cstddef>
#include <span>
#include <vector>

namespace orvane {

/// Points along one axis of a lattice: 0, spacing, 2 x spacing, ... in scene units.
struct LatticeAxis {
  std::size_t count = 0;
  float spacing = 0;  ///< > 0
};

/// At each lattice point, X fastest, the sum over `points`, given as (x, z), of 2.7183 to the power
/// -d^2 / (2 sigma^2), where d is the distance to the point; sigma > 0, all in scene units.
///
/// The sum runs in the order of `points`, and it, both differences, d^2, d and the exponent are
/// 32-bit floats: every result is that sequence of roundings, bit for bit. 2 sigma^2 stays within
/// the positive floats, so a cloud never comes to anything but finite densities.
ORVANE_API std::vector<float> ParzenMap(std::span<const scene::Vec2f> points,
                                        const LatticeAxis& xAxis, const LatticeAxis& zAxis,
                                        float sigma);

/// Maps the smallest of `heights` to `low` and the largest to `high`, in 32-bit floats. Heights
/// that are equal, or too close to one another for that scale to be a float, all become `low`.
ORVANE_API void ScaleHeights(std::span<float> heights, float low, float high);

}  // namespace orvane
