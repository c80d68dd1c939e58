/// The three PROTO files that every world refers to, carried in the library.
#pragma once

#include "orvane/automation/Export.h"
#include "orvane/platform/OutputFiles.h"

#include <array>
#include <filesystem>
#include <string>
#include <vector>

namespace orvane {

struct ProtoFile {
  std::string name;  ///< "VR_GRAPH.wrl"
  std::string text;
};

/// VR_GRAPH.wrl, VR_NAV.wrl and VR_UI.wrl as the library was built with.
ORVANE_API const std::array<ProtoFile, 3>& ProtoFiles();

/// The same as files of `folder`.
ORVANE_API std::vector<host::OutputFile> ProtoFilesIn(const std::filesystem::path& folder);

/// Writes the three files to `folder`, which is made when missing, all or none. Raises FileAccess.
ORVANE_API void WriteProtos(const std::filesystem::path& folder);

}  // namespace orvane
