/// The whole object model from JSON, through the late-bound interface alone.
#pragma once

#include "Source.h"

#include "orvane/automation/Object.h"

#include <memory>
#include <string>

namespace orvane::tool {

/// Makes the chart that the model in `source` names under "chart" and applies the rest of the
/// model's members to it, in order. docs/command-line.md describes the notation. Raises FileError
/// with line, column and the path of the member.
std::shared_ptr<host::Object> BuildModel(const Source& source);

/// The world of that chart.
std::string BuildWorld(const Source& source);

}  // namespace orvane::tool
