/// The command "orvane convert": a world as a picture or a model.
#pragma once

#include <CLI/CLI.hpp>

namespace orvane::tool {

/// Adds the command to `app`.
void AddConvertCommand(CLI::App& app);

}  // namespace orvane::tool
