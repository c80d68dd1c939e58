/// The way from one folder to another.
#pragma once

#include "orvane/automation/Export.h"

#include <string>

namespace orvane {

/// The relative path that leads from `sourceDir` to `destDir`, ending in "\"; empty when they are
/// the same. Both are absolute, with a drive letter and backslashes, such as "C:\Web\Charts"; a
/// backslash at the end may be left out. Segments are compared exactly, in their own case.
///
/// Raises a component error for a path without a drive or for two different drives.
ORVANE_API std::string MakeRelativePath(std::string sourceDir, std::string destDir);

}  // namespace orvane
