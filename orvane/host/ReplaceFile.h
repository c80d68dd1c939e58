/// Writing a file so that its readers see the old text or the new one, never half of it.
#pragma once

#include "orvane/host/Export.h"

#include <filesystem>
#include <string_view>
#include <system_error>

namespace orvane::host {

/// Writes `text` to a temporary neighbour of `file` and moves it into place. Links are followed;
/// what is no regular file (a terminal, a pipe) is written to as it is. On failure the old file
/// stays whole and the reason is returned.
ORVANE_API std::error_code ReplaceFile(std::filesystem::path file, std::string_view text);

}  // namespace orvane::host
