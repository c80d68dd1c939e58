#include "WorldOutput.h"

#include "ProtoLocation.h"

#include "orvane/scene/ProtoFiles.h"

#include <algorithm>
#include <utility>

namespace orvane::tool {
namespace fs = std::filesystem;

void AddOutputOptions(CLI::App& command, WorldOutput& output) {
  command
      .add_option("-o,--output", output.paths,
                  "File to write, - for a world to standard output; its suffix says what: " +
                      OutputSuffixes() + ". Several -o write several files")
      ->required()
      ->expected(1)
      ->multi_option_policy(CLI::MultiOptionPolicy::TakeAll)
      ->check(CLI::Validator(CheckSuffix, ""))
      ->type_name("OUT");
  const auto endsInSeparator = [](const std::string& prefix) {
    return prefix.ends_with('/') || prefix.ends_with('\\') ? "" : "must end in / or \\";
  };
  command
      .add_option("--proto-prefix", output.protoPrefix,
                  "Folder or URL where the world finds its PROTO files, ending in / or \\;"
                  " left out, they are written beside the world, or are where the settings say")
      ->type_name("PREFIX")
      ->check(CLI::Validator(endsInSeparator, ""));
  AddFormatOptions(command, output.format);
}

void WriteWorld(const WorldOutput& output, const std::vector<fs::path>& inputs, std::ostream& out,
                const std::function<MadeWorld()>& makeWorld) {
  std::vector<host::OutputFile> files;
  std::optional<MadeWorld> world;
  std::optional<fs::path> madeFor;
  for (const fs::path path : output.paths) {
    std::optional<fs::path> folder;
    if (path != "-") folder = fs::absolute(path).parent_path();
    const bool isBesideProtos = LocateProtos(output.protoPrefix, folder);
    // Where a world finds its PROTO files depends on the folder; pages and pictures have them.
    if (!world || (IsWorldFile(path) && folder != madeFor)) {
      world = makeWorld();
      madeFor = folder;
    }
    if (!folder) {
      out << world->text;
      continue;
    }
    if (isBesideProtos && IsWorldFile(path)) {
      for (auto& proto : ProtoFilesIn(path.parent_path())) {
        const auto isThere = [&](const host::OutputFile& file) { return file.path == proto.path; };
        if (std::ranges::none_of(files, isThere)) files.push_back(std::move(proto));
      }
    }
    files.push_back({path, BytesFor(path, *world, output.format)});
  }
  host::WriteFiles(files, inputs);
}

}  // namespace orvane::tool
