/// What the program can write, by the suffix of the file.
#pragma once

#include "orvane/tables/read/Rows.h"

#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace orvane::tool {

/// A world, and what is known of it beside its text.
struct MadeWorld {
  std::string text;
  std::string title;
  std::string kind;                                      ///< Of its chart: "column"; may be empty.
  std::function<std::unique_ptr<tables::Rows>()> table;  ///< Opens its data; may be empty.
};

/// ".wrl, .html, .png": what WriteWorld takes.
std::string OutputSuffixes();

/// Whether `path` is of a kind that is written as it is: .wrl and "-".
bool IsWorldFile(const std::filesystem::path& path);

/// A message where the suffix of `path` is none of those, else empty.
std::string CheckSuffix(const std::string& path);

/// What to write to `path`. Raises FileError.
std::string BytesFor(const std::filesystem::path& path, const MadeWorld& world);

}  // namespace orvane::tool
