#include "OutputFormats.h"

#include "orvane/scene/ProtoFiles.h"
#include "orvane/tables/read/Source.h"

#include <algorithm>
#include <cctype>
#include <vector>
#ifdef ORVANE_PAGES
#include "pages/Page.h"
#endif
#ifdef ORVANE_STILLS
#include "stills/Still.h"
#include "stills/output/Model.h"
#include "stills/output/Picture.h"
#endif

namespace orvane::tool {
namespace {

namespace fs = std::filesystem;

struct Format {
  const char* suffix;
  std::string (*bytes)(const fs::path& path, const MadeWorld& world);
};

std::string AsWorld(const fs::path&, const MadeWorld& world) { return world.text; }

#ifdef ORVANE_STILLS
stills::World Evaluated(const fs::path& path, const MadeWorld& world) {
  stills::Options options;
  options.library = [](std::string_view name) -> const std::string* {
    for (const ProtoFile& file : ProtoFiles()) {
      if (file.name == name) return &file.text;
    }
    return nullptr;
  };
  return stills::World::Parse(world.text, path.string(), options);
}

template <class F>
std::string WithErrors(F make) try {
  return make();
} catch (const stills::Error& error) {
  throw tables::FileError(error.what());
}

std::string AsPng(const fs::path& path, const MadeWorld& world) {
  return WithErrors([&] { return stills::Png(stills::Draw(Evaluated(path, world).From(""), {})); });
}

std::string AsGlb(const fs::path& path, const MadeWorld& world) {
  return WithErrors([&] {
    auto evaluated = Evaluated(path, world);
    return stills::Glb(evaluated, "", {});
  });
}

std::string AsStl(const fs::path& path, const MadeWorld& world) {
  return WithErrors([&] { return stills::Stl(Evaluated(path, world).From(""), {}); });
}
#endif

#ifdef ORVANE_PAGES
std::string AsPage(const fs::path& path, const MadeWorld& world) {
  pages::PageFacts facts;
  if (world.table) facts = pages::FactsOf(world.kind, *world.table());
  facts.title = world.title;
  return pages::Page({{path.stem().string() + ".wrl", world.text}}, facts);
}
#endif

const std::vector<Format>& Formats() {
  static const std::vector<Format> formats = {
      {".wrl", AsWorld},
#ifdef ORVANE_PAGES
      {".html", AsPage},
#endif
#ifdef ORVANE_STILLS
      {".png", AsPng},   {".glb", AsGlb}, {".stl", AsStl},
#endif
  };
  return formats;
}

const Format* FormatOf(const fs::path& path) {
  std::string suffix = path.extension().string();
  std::ranges::transform(suffix, suffix.begin(), [](unsigned char c) { return std::tolower(c); });
  for (const Format& format : Formats()) {
    if (suffix == format.suffix) return &format;
  }
  return nullptr;
}

}  // namespace

std::string OutputSuffixes() {
  std::string list;
  for (const Format& format : Formats())
    list += (list.empty() ? "" : ", ") + std::string(format.suffix);
  return list;
}

bool IsWorldFile(const fs::path& path) {
  std::error_code ignored;
  // A pipe or a terminal has no suffix that could say anything, and a folder gets its own message.
  if (path == "-" || (fs::exists(path, ignored) && !fs::is_regular_file(path, ignored)))
    return true;
  const Format* format = FormatOf(path);
  return format && format->bytes == AsWorld;
}

std::string CheckSuffix(const std::string& path) {
  if (IsWorldFile(path) || FormatOf(path)) return "";
  return path + " ends in none of " + OutputSuffixes();
}

std::string BytesFor(const fs::path& path, const MadeWorld& world) {
  if (IsWorldFile(path)) return world.text;
  return FormatOf(path)->bytes(path, world);
}

}  // namespace orvane::tool
