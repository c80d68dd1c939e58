/// Cuts up polygons that need not be convex.
#pragma once

#include <array>
#include <cstdint>
#include <vector>

namespace orvane::stills {

using Vec2 = std::array<float, 2>;

/// Triangles, three indices each, that fill the closed outlines of `points`: outlines within others
/// are holes, whichever way they run. An outline is a list of indices. The triangles run
/// counter-clockwise.
std::vector<std::uint32_t> Triangulate(const std::vector<Vec2>& points,
                                       std::vector<std::vector<std::uint32_t>> outlines);

}  // namespace orvane::stills
