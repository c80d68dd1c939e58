/// What the program can write, by the suffix of the file.
#pragma once

#include "orvane/tables/read/Rows.h"

#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include <CLI/CLI.hpp>
#ifdef ORVANE_STILLS
#include "stills/output/Model.h"
#include "stills/output/Picture.h"
#endif

namespace orvane::tool {

/// How pictures and models of a world look; nothing where the program can make none.
struct FormatOptions {
#ifdef ORVANE_STILLS
  std::string view;  ///< A viewpoint by its name, or the first.
  stills::PictureSize picture;
  stills::ModelOptions model;
#endif
};

/// Adds the options that fill `options`, which must outlive `command`.
void AddFormatOptions(CLI::App& command, FormatOptions& options);

/// A world, and what is known of it beside its text.
struct MadeWorld {
  std::string text;
  std::string file;  ///< Where it was read from, for links and messages; empty: as it is written.
  std::string title;
  std::string kind;                                      ///< Of its chart: "column"; may be empty.
  std::function<std::unique_ptr<tables::Rows>()> table;  ///< Opens its data; may be empty.
  /// Names and texts of more worlds, to which links of this one may lead within its page.
  std::vector<std::pair<std::string, std::string>> linked;
};

/// ".wrl, .html, .png": what WriteWorld takes.
std::string OutputSuffixes();

/// Whether `path` is of a kind that is written as it is: .wrl and "-".
bool IsWorldFile(const std::filesystem::path& path);

/// A message where the suffix of `path` is none of those, else empty.
std::string CheckSuffix(const std::string& path);

/// What to write to `path`. Raises FileError.
std::string BytesFor(const std::filesystem::path& path, const MadeWorld& world,
                     const FormatOptions& options);

}  // namespace orvane::tool
