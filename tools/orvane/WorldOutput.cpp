#include "WorldOutput.h"

#include "Output.h"
#include "ProtoFiles.h"
#include "ProtoLocation.h"

#include "orvane/tables/read/Source.h"

#include <system_error>

namespace orvane::tool {
namespace {

namespace fs = std::filesystem;

std::vector<OutputFile> ProtosIn(const fs::path& folder) {
  std::vector<OutputFile> files;
  for (const ProtoFile& proto : ProtoFiles()) files.push_back({folder / proto.name, proto.text});
  return files;
}

}  // namespace

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
  auto files = isBesideProtos ? ProtosIn(path.parent_path()) : std::vector<OutputFile>();
  files.push_back({path, world});
  WriteFiles(files, inputs);
}

void WriteProtos(const fs::path& folder) {
  std::error_code error;
  fs::create_directories(folder, error);
  if (error) throw tables::FileError(folder.string() + ": cannot be made: " + error.message());
  WriteFiles(ProtosIn(folder));
}

}  // namespace orvane::tool
