/// A still as triangles on the plane of the picture, in the order in which they are drawn.
#pragma once

#include "stills/output/Picture.h"

#include <cstdint>
#include <vector>

namespace orvane::stills {

struct Corner {
  float x, y;  ///< in pixels, from the upper left corner
  float near;  ///< 1 over the distance along the line of sight
  Vec3 point, normal, color;
};

struct Triangle {
  std::array<Corner, 3> corners;
  std::uint32_t part;
  bool isTurned;  ///< seen from behind: the normal is to be reversed
};

/// Looks of parts with their own colour or that of the mesh.
struct Surface {
  Look look;
  bool hasColors = false;
};

struct Triangles {
  std::vector<Triangle> list;  ///< what is opaque, then what is not, the farthest first
  std::vector<Surface> surfaces;
  std::size_t opaque = 0;  ///< number of the triangles that are
};

/// From the viewer's frame to pixels.
struct Lens {
  float x, y, focus;  ///< middle of the picture; pixels at a distance of 1

  explicit Lens(const View& view, const PictureSize& size);
};

Triangles Project(const Still& still, const PictureSize& size);

}  // namespace orvane::stills
