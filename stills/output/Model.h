/// Writes a still as a model for other 3-D programs.
#pragma once

#include "stills/Still.h"

#include <string>
#include <string_view>

namespace orvane::stills {

struct ModelOptions {
  float height =
      0.3F;  ///< of the whole model in metres, > 0; it stands on y = 0, in the middle of x and z
  bool hasTubes =
      true;          ///< lines are thin prisms, or else lines, which most viewers draw a pixel wide
  std::string part;  ///< the name of the only part to write; empty for all
};

/// The bytes of a glTF 2.0 binary: a node a part, with its name and, of a series, its values;
/// cameras for the viewpoints; what moves in loops as an animation of nodes. Texts face the
/// viewpoint of that name. Raises Error for a world in which nothing, or no such part, is drawn.
std::string Glb(World& world, std::string_view view, const ModelOptions& options);

/// The bytes of a binary STL file in millimetres with z up: the part asked for, or all that are
/// closed, as a printer needs them. Raises Error where there is none.
std::string Stl(const Still& still, const ModelOptions& options);

/// True when each edge of the mesh's triangles has one triangle on either side.
bool IsClosed(const Mesh& mesh);

/// The frame in which a still stands on y = 0 with that height, as seen from its own.
Matrix Standing(const Still& still, float height);

}  // namespace orvane::stills
