/// The whole object model from JSON, through the late-bound interface alone.
#pragma once

#include "orvane/automation/Object.h"
#include "orvane/tables/read/Source.h"

#include <memory>
#include <string>

namespace orvane::tool {

/// Makes the chart that the model in `source` names under "chart" and applies the rest of the
/// model's members to it, in order. docs/command-line.md describes the notation. Raises FileError
/// with line, column and the path of the member.
std::shared_ptr<host::Object> BuildModel(const tables::Source& source);

/// The world of that chart.
std::string BuildWorld(const tables::Source& source);

}  // namespace orvane::tool
