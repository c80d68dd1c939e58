/// What all charts of a process share.
#pragma once

#include "orvane/automation/Export.h"

#include <string>

namespace orvane::OrvaneModule {

/// What is put in front of a PROTO file's name whenever a PROTO instance is made: a relative path
/// or a URL, ending in "/" or "\", or empty for files beside the world. Initially empty; not
/// locked.
ORVANE_API const std::string& RelativeProtoPath();
ORVANE_API void RelativeProtoPath(const std::string& prefix);

}  // namespace orvane::OrvaneModule
