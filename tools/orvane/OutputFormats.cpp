#include "OutputFormats.h"

#include "orvane/scene/ProtoFiles.h"
#include "orvane/tables/read/Source.h"

#include <algorithm>
#include <cctype>
#include <cstddef>
#include <cstdio>
#include <vector>
#ifdef ORVANE_PAGES
#include "pages/Page.h"
#endif
#ifdef ORVANE_STILLS
#include "stills/Still.h"
#endif

namespace orvane::tool {
namespace {

namespace fs = std::filesystem;

struct Format {
  const char* suffix;
  std::string (*bytes)(const fs::path& path, const MadeWorld& world, const FormatOptions& options);
};

std::string AsWorld(const fs::path&, const MadeWorld& world, const FormatOptions&) {
  return world.text;
}

#ifdef ORVANE_STILLS
stills::World Evaluated(const fs::path& path, const MadeWorld& world) {
  stills::Options options;
  options.library = [](std::string_view name) -> const std::string* {
    for (const ProtoFile& file : ProtoFiles()) {
      if (file.name == name) return &file.text;
    }
    return nullptr;
  };
  return stills::World::Parse(world.text, world.file.empty() ? path.string() : world.file, options);
}

template <class F>
std::string WithErrors(F make) try {
  return make();
} catch (const stills::Error& error) {
  throw tables::FileError(error.what());
}

std::string AsPng(const fs::path& path, const MadeWorld& world, const FormatOptions& options) {
  return WithErrors([&] {
    return stills::Png(stills::Draw(Evaluated(path, world).From(options.view), options.picture));
  });
}

std::string AsGlb(const fs::path& path, const MadeWorld& world, const FormatOptions& options) {
  return WithErrors([&] {
    auto evaluated = Evaluated(path, world);
    return stills::Glb(evaluated, options.view, options.model);
  });
}

std::string AsStl(const fs::path& path, const MadeWorld& world, const FormatOptions& options) {
  return WithErrors(
      [&] { return stills::Stl(Evaluated(path, world).From(options.view), options.model); });
}

/// Takes "1280x800".
std::string ReadSize(const std::string& text, stills::PictureSize& size) {
  int used = 0;
  const int read = std::sscanf(text.c_str(), "%5dx%5d%n", &size.width, &size.height, &used);
  const bool isWhole = read == 2 && static_cast<std::size_t>(used) == text.size();
  return isWhole && size.width > 0 && size.height > 0 ? "" : text + " is no size like 1280x800";
}
#endif

#ifdef ORVANE_PAGES
std::string AsPage(const fs::path& path, const MadeWorld& world,
                   [[maybe_unused]] const FormatOptions& options) {
  pages::PageFacts facts;
  if (world.table) facts = pages::FactsOf(world.kind, *world.table());
  facts.title = world.title;
#ifdef ORVANE_STILLS
  // For readers whose browser cannot draw; small, since every page carries it.
  FormatOptions small = options;
  small.picture.width = 360;
  small.picture.height = 225;
  facts.picture = AsPng(path, world, small);
#endif
  const fs::path file = world.file.empty() ? path.stem().string() + ".wrl" : world.file;
  std::vector<pages::PageWorld> worlds = {{file.filename().string(), world.text}};
  for (const auto& [name, text] : world.linked) worlds.push_back({name, text});
  return pages::Page(worlds, facts);
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

void AddFormatOptions([[maybe_unused]] CLI::App& command, [[maybe_unused]] FormatOptions& options) {
#ifdef ORVANE_STILLS
  command
      .add_option("--view", options.view, "Viewpoint of a picture by its name; left out, the first")
      ->type_name("corner|front|side|top|NAME");
  command
      .add_option_function<std::string>(
          "--pixels", [&options](const std::string& text) { ReadSize(text, options.picture); },
          "Size of a picture; left out, 1280x800")
      ->check([](const std::string& text) {
        stills::PictureSize ignored;
        return ReadSize(text, ignored);
      })
      ->type_name("WxH");
  command
      .add_option("--scale", options.picture.scale,
                  "Pixels of the picture for each of --pixels, for printing and dense screens")
      ->check(CLI::Range(0.1, 16.0));
  command.add_flag("--transparent", options.picture.isTransparent, "A picture without the sky");
  command
      .add_option("--height", options.model.height, "Height of a model in metres; left out, 0.3")
      ->check(CLI::Range(1e-3, 1e3));
  command
      .add_option_function<std::string>(
          "--lines",
          [&options](const std::string& text) { options.model.hasTubes = text == "tubes"; },
          "How a .glb has its lines: as thin prisms, or as lines, a pixel wide in most viewers;"
          " left out, tubes")
      ->check(CLI::IsMember({"tubes", "lines"}));
  command.add_option("--part", options.model.part, "Only that part of a model, by its name");
#endif
}

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

std::string BytesFor(const fs::path& path, const MadeWorld& world, const FormatOptions& options) {
  if (IsWorldFile(path)) return world.text;
  return FormatOf(path)->bytes(path, world, options);
}

}  // namespace orvane::tool
