#include "ConvertCommand.h"

#include "stills/Still.h"
#include "stills/output/Model.h"
#include "stills/output/Picture.h"

#include "orvane/scene/ProtoFiles.h"
#include "orvane/tables/read/Source.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <memory>
#include <string>

namespace orvane::tool {
namespace {

struct Conversion {
  std::string world, output, view;
  stills::PictureSize picture;
  stills::ModelOptions model;
};

std::string AsPng(stills::World& world, const Conversion& choice) {
  return stills::Png(stills::Draw(world.From(choice.view), choice.picture));
}

std::string AsGlb(stills::World& world, const Conversion& choice) {
  return stills::Glb(world, choice.view, choice.model);
}

std::string AsStl(stills::World& world, const Conversion& choice) {
  return stills::Stl(world.From(choice.view), choice.model);
}

struct Format {
  const char* suffix;
  std::string (*bytes)(stills::World& world, const Conversion& choice);
};

/// What a world can be converted to, by the suffix of the file.
constexpr std::array<Format, 3> kFormats = {{{".png", AsPng}, {".glb", AsGlb}, {".stl", AsStl}}};

std::string Suffixes() {
  std::string list;
  for (const Format& format : kFormats)
    list += (list.empty() ? "" : ", ") + std::string(format.suffix);
  return list;
}

const Format& FormatOf(const std::string& output) {
  std::string suffix = std::filesystem::path(output).extension().string();
  std::ranges::transform(suffix, suffix.begin(), [](unsigned char c) { return std::tolower(c); });
  for (const Format& format : kFormats) {
    if (suffix == format.suffix) return format;
  }
  throw CLI::ValidationError("--output: " + output + " ends in none of " + Suffixes());
}

const std::string* ProtoText(std::string_view name) {
  for (const ProtoFile& file : ProtoFiles()) {
    if (file.name == name) return &file.text;
  }
  return nullptr;
}

void Convert(const Conversion& choice) {
  const Format& format = FormatOf(choice.output);
  try {
    stills::Options options;
    options.library = ProtoText;
    stills::World world = stills::World::Read(choice.world, options);
    host::WriteFiles({{choice.output, format.bytes(world, choice)}}, {choice.world});
  } catch (const stills::Error& error) {
    throw tables::FileError(error.what());
  }
}

/// Takes "1280x800".
std::string ReadSize(const std::string& text, stills::PictureSize& size) {
  int used = 0;
  const int read = std::sscanf(text.c_str(), "%5dx%5d%n", &size.width, &size.height, &used);
  const bool isWhole = read == 2 && static_cast<std::size_t>(used) == text.size();
  return isWhole && size.width > 0 && size.height > 0 ? "" : text + " is no size like 1280x800";
}

}  // namespace

void AddConvertCommand(CLI::App& app) {
  CLI::App& command = *app.add_subcommand("convert", "Make a picture or a model of a world");
  const auto choice = std::make_shared<Conversion>();
  command.add_option("world", choice->world, "World")->required()->type_name("WORLD.wrl");
  command
      .add_option("-o,--output", choice->output,
                  "File to write; its suffix says what: " + Suffixes())
      ->required()
      ->type_name("FILE");
  command.add_option("--view", choice->view, "Viewpoint by its name; left out, the first")
      ->type_name("corner|front|side|top|NAME");
  command
      .add_option_function<std::string>(
          "--pixels", [choice](const std::string& text) { ReadSize(text, choice->picture); },
          "Size of a picture; left out, 1280x800")
      ->check([choice](const std::string& text) { return ReadSize(text, choice->picture); })
      ->type_name("WxH");
  command
      .add_option(
          "--scale", choice->picture.scale,
          "Pixels of the picture for each of --pixels, for printing and dense screens; lines get "
          "as much wider")
      ->check(CLI::Range(0.1, 16.0));
  command.add_flag("--transparent", choice->picture.isTransparent, "A picture without the sky");
  command
      .add_option("--height", choice->model.height, "Height of a model in metres; left out, 0.3")
      ->check(CLI::Range(1e-3, 1e3));
  command
      .add_option_function<std::string>(
          "--lines",
          [choice](const std::string& text) { choice->model.hasTubes = text == "tubes"; },
          "How a .glb has its lines: as thin prisms, or as lines, a pixel wide in most viewers; "
          "left out, "
          "tubes")
      ->check(CLI::IsMember({"tubes", "lines"}));
  command.add_option("--part", choice->model.part, "Only that part of a model, by its name");
  command.callback([choice] { Convert(*choice); });
}

}  // namespace orvane::tool
