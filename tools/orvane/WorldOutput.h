/// Where a world goes, and what is written there.
#pragma once

#include "OutputFormats.h"

#include <filesystem>
#include <functional>
#include <iosfwd>
#include <optional>
#include <string>
#include <vector>

#include <CLI/CLI.hpp>

namespace orvane::tool {

/// Where a world goes and where it looks for its PROTO files.
struct WorldOutput {
  std::vector<std::string> paths;          ///< "-" for standard output; suffixes say what.
  std::optional<std::string> protoPrefix;  ///< Left out: as the user's settings say.
  FormatOptions format;
};

/// Adds the options that fill `output`, which must outlive `command`.
void AddOutputOptions(CLI::App& command, WorldOutput& output);

/// Makes a world of the files `inputs` with `makeWorld` and writes it as all that `output` names,
/// to `out` for "-". No file is touched before all is made, and the inputs never.
void WriteWorld(const WorldOutput& output, const std::vector<std::filesystem::path>& inputs,
                std::ostream& out, const std::function<MadeWorld()>& makeWorld);

}  // namespace orvane::tool
