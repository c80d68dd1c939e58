/// The two settings that say where PROTO files and worlds are kept.
#pragma once

#include "orvane/automation/Export.h"

#include <string>

namespace orvane::ProtoSettings {

/// What each setting reads as where it was never saved.
inline constexpr const char* kNoDirectory = "C:\\";

/// The folder of the PROTO files, or the URL under which they are published; `fallback` where it
/// was never saved.
ORVANE_API std::string ProtoDir(const std::string& fallback = kNoDirectory);
ORVANE_API void SaveProtoDir(const std::string& directory);

/// The folder that worlds are written to; empty where the PROTO files have a URL.
ORVANE_API std::string OutputDir();
ORVANE_API void SaveOutputDir(const std::string& directory);

/// Whether names of files can follow `path`: it ends in / or \, or is empty.
ORVANE_API bool IsPrefix(const std::string& path);
/// What a user is told of a path that is no prefix.
inline constexpr const char* kNoPrefix = "The proto relative path must end with either a / or \\.";

/// Whether a ProtoDir is a URL: it begins with "HTTP" in any case.
ORVANE_API bool IsUrl(const std::string& protoDir);

}  // namespace orvane::ProtoSettings
