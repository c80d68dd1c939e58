/// The meshes of VRML97's geometry nodes, but for texts.
#pragma once

#include "stills/Error.h"
#include "stills/Still.h"
#include "stills/scene/Node.h"

#include <memory>

namespace orvane::stills {

/// What a geometry node draws, in its own frame; none for a node that draws nothing. `isLines` is
/// set for lines. Raises Error, with the node's place, for indices that lead nowhere.
std::shared_ptr<const Mesh> MeshOf(const Node& geometry, Budget& budget, bool& isLines);

}  // namespace orvane::stills
