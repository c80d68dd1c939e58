/// The commands "orvane chart KIND", one for each way to chart a table.
#pragma once

#include <iosfwd>

#include <CLI/CLI.hpp>

namespace orvane::tool {

/// Adds them to `app`. Worlds for "-" go to `out`, what a command chose by itself is told on `err`;
/// both must outlive `app`.
void AddChartCommands(CLI::App& app, std::ostream& out, std::ostream& err);

}  // namespace orvane::tool
