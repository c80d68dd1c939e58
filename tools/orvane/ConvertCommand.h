/// The command "orvane convert": worlds as a page, a picture or a model.
#pragma once

#include <iosfwd>

#include <CLI/CLI.hpp>

namespace orvane::tool {

/// Adds the command to `app`; worlds for "-o -" go to `out`.
void AddConvertCommand(CLI::App& app, std::ostream& out);

}  // namespace orvane::tool
