/// Builds a mesh from faces with any number of corners.
#pragma once

#include "stills/Error.h"
#include "stills/Still.h"

#include <cstdint>
#include <vector>

namespace orvane::stills {

/// Faces in VRML97's terms; all indices have been checked.
struct Faces {
  const std::vector<float>* points = nullptr;  ///< three numbers each
  std::vector<std::int32_t> corners;           ///< of all faces, each closed by -1
  /// Normals and colours of the corners, three numbers each, or empty; by index beside `corners`.
  std::vector<Vec3> normals;
  std::vector<Vec3> colors;
  float creaseAngle = 0;
  bool isConvex = true, isCounterClockwise = true, isSolid = true;
};

Mesh Build(const Faces& faces, Budget& budget);

}  // namespace orvane::stills
