/// Writing several files: all of them or none.
#pragma once

#include "orvane/automation/Export.h"

#include <filesystem>
#include <string>
#include <vector>

namespace orvane::host {

struct OutputFile {
  std::filesystem::path path;
  std::string text;
};

/// Writes every file to a temporary neighbour first and moves them into place once all are written,
/// so that a failure leaves the old files whole. Links are followed; what is no regular file (a
/// pipe, a terminal) is written to as it is. Raises FileAccess, also when two of the files are one,
/// or one is among the `inputs`, which stay as they are.
ORVANE_API void WriteFiles(const std::vector<OutputFile>& files,
                           const std::vector<std::filesystem::path>& inputs = {});

}  // namespace orvane::host
