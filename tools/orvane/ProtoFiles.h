/// The three PROTO files that every world refers to, carried in the program.
#pragma once

#include <array>
#include <string>

namespace orvane::tool {

struct ProtoFile {
  std::string name;  ///< "VR_GRAPH.wrl"
  std::string text;
};

/// VR_GRAPH.wrl, VR_NAV.wrl and VR_UI.wrl as this program was built with.
const std::array<ProtoFile, 3>& ProtoFiles();

}  // namespace orvane::tool
