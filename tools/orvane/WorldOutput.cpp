#include "WorldOutput.h"

#include "ProtoLocation.h"

#include "orvane/scene/ProtoFiles.h"

namespace orvane::tool {
namespace fs = std::filesystem;

void AddOutputOptions(CLI::App& command, WorldOutput& output) {
  command.add_option("-o,--output", output.path, "World to write, - for standard output")
      ->required()
      ->type_name("OUT.wrl");
  const auto endsInSeparator = [](const std::string& prefix) {
    return prefix.ends_with('/') || prefix.ends_with('\\') ? "" : "must end in / or \\";
  };
  command
      .add_option("--proto-prefix", output.protoPrefix,
                  "Folder or URL where the world finds its PROTO files, ending in / or \\;"
                  " left out, they are written beside the world, or are where the settings say")
      ->type_name("PREFIX")
      ->check(CLI::Validator(endsInSeparator, ""));
}

void WriteWorld(const WorldOutput& output, const std::vector<fs::path>& inputs, std::ostream& out,
                const std::function<std::string()>& makeWorld) {
  const fs::path path = output.path;
  std::optional<fs::path> folder;
  if (path != "-") folder = fs::absolute(path).parent_path();
  const bool isBesideProtos = LocateProtos(output.protoPrefix, folder);
  const std::string world = makeWorld();
  if (!folder) {
    out << world;
    return;
  }
  auto files = isBesideProtos ? ProtoFilesIn(path.parent_path()) : std::vector<host::OutputFile>();
  files.push_back({path, world});
  host::WriteFiles(files, inputs);
}

}  // namespace orvane::tool
