/// Where worlds find their PROTO files: the user's settings, and what becomes of them.
#pragma once

#include <filesystem>
#include <optional>
#include <ostream>
#include <string>

namespace orvane::tool {

/// Sets where worlds made from now on find their PROTO files, by way of a new control: `prefix`, or
/// what the user's settings say for a world in `folder`; none for a world that goes to standard
/// output, whose folder is taken to be OutputDir. Returns whether the files belong beside the
/// world.
bool LocateProtos(const std::optional<std::string>& prefix,
                  const std::optional<std::filesystem::path>& folder);

/// The settings as they are to be, each left out where it stays as it is.
struct ProtoChoice {
  std::optional<std::string> protoDir;  ///< A folder, or a URL that begins with "http".
  std::optional<std::string> outputDir;
};

/// Saves a choice in the settings. Raises FileError, or PathNotFound for a folder that is not
/// there, and changes nothing, when the control's property page would refuse it.
void ChooseProtos(const ProtoChoice& choice);

/// Writes the two settings, and the path that a new control has.
void ShowProtoSettings(std::ostream& out);

}  // namespace orvane::tool
