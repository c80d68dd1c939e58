#include "ConvertCommand.h"

#include "WorldOutput.h"

#include "orvane/tables/read/Source.h"

#include <filesystem>
#include <memory>
#include <string>
#include <vector>

namespace orvane::tool {
namespace {

struct Conversion {
  std::vector<std::string> worlds;
  WorldOutput output;
};

MadeWorld ReadWorlds(const std::vector<std::string>& files) {
  MadeWorld world;
  world.file = files.front();
  world.text = tables::Source::Read(world.file).Text();
  for (std::size_t i = 1; i < files.size(); ++i) {
    const std::filesystem::path file = files[i];
    world.linked.emplace_back(file.filename().string(), tables::Source::Read(file).Text());
  }
  return world;
}

}  // namespace

void AddConvertCommand(CLI::App& app, std::ostream& out) {
  CLI::App& command =
      *app.add_subcommand("convert", "Make a page, a picture or a model of a world");
  const auto request = std::make_shared<Conversion>();
  command
      .add_option("worlds", request->worlds,
                  "World; a page takes several, to which the first one's links lead within it")
      ->required()
      ->type_name("WORLD.wrl");
  AddOutputOptions(command, request->output);
  command.callback([request, &out] {
    const std::vector<std::filesystem::path> inputs(request->worlds.begin(), request->worlds.end());
    WriteWorld(request->output, inputs, out, [&] { return ReadWorlds(request->worlds); });
  });
}

}  // namespace orvane::tool
