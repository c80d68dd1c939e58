#include "CommandLine.h"

#include "ChartCommands.h"
#include "ConvertCommand.h"
#include "ModelBuilder.h"
#include "ProtoLocation.h"
#include "TypesReference.h"
#include "WorldOutput.h"

#include "orvane/automation/AutomationError.h"
#include "orvane/scene/ProtoFiles.h"
#include "orvane/scene/Utf8.h"
#include "orvane/tables/read/Source.h"

#include <memory>
#include <new>
#include <string>
#include <system_error>

#include <CLI/CLI.hpp>

namespace orvane::tool {
namespace {

/// Exit statuses; what the command line itself gets wrong counts as bad usage.
constexpr int kDone = 0;
constexpr int kBadData = 1;
constexpr int kBadUsage = 2;

void AddBuildCommand(CLI::App& app, std::ostream& out) {
  CLI::App& command = *app.add_subcommand("build", "Build a world from a model of its objects");
  const auto model = std::make_shared<std::string>();
  const auto output = std::make_shared<WorldOutput>();
  command.add_option("model", *model, "Model: a JSON object of properties and calls")
      ->required()
      ->type_name("MODEL.json");
  AddOutputOptions(command, *output);
  command.callback([model, output, &out] {
    WriteWorld(*output, {*model}, out, [&] {
      MadeWorld world;
      world.text = BuildWorld(tables::Source::Read(*model));
      return world;
    });
  });
}

void AddProtosCommand(CLI::App& app) {
  CLI::App& command =
      *app.add_subcommand("protos", "Write the three PROTO files that every world refers to");
  const auto folder = std::make_shared<std::string>();
  command.add_option("folder", *folder, "Folder to write them to; made when missing")
      ->required()
      ->type_name("DIR");
  command.callback([folder] { WriteProtos(*folder); });
}

void AddSettingsCommand(CLI::App& app, std::ostream& out) {
  CLI::App& command =
      *app.add_subcommand("settings", "Show or set where worlds find their PROTO files");
  const auto choice = std::make_shared<ProtoChoice>();
  command
      .add_option(
          "--proto-dir", choice->protoDir,
          "Folder of the PROTO files, or the URL under which they are published, ending in /")
      ->type_name("DIR|URL");
  command.add_option("--output-dir", choice->outputDir, "Folder that worlds are written to")
      ->type_name("DIR");
  command.callback([choice, &out] {
    if (choice->protoDir || choice->outputDir) ChooseProtos(*choice);
    ShowProtoSettings(out);
  });
}

void AddTypesCommand(CLI::App& app, std::ostream& out) {
  CLI::App& command = *app.add_subcommand("types", "Print the object model as Markdown");
  const auto className = std::make_shared<std::string>();
  command.add_option("class", *className, "Only this class")->type_name("CLASS");
  command.callback([className, &out] {
    if (className->empty()) {
      WriteTypesReference(out);
    } else if (!WriteTypeReference(out, *className)) {
      throw CLI::ValidationError("there is no class \"" + *className + "\"");
    }
  });
}

}  // namespace

int RunCommandLine(int argc, const char* const* argv, std::ostream& out, std::ostream& err) try {
  CLI::App app("Three-dimensional business charts as VRML97 worlds.", "orvane");
  app.require_subcommand(1);
  AddChartCommands(app, out, err);
  AddBuildCommand(app, out);
  AddConvertCommand(app, out);
  AddProtosCommand(app);
  AddSettingsCommand(app, out);
  AddTypesCommand(app, out);

  try {
    for (int i = 1; i < argc; ++i) {
      if (!scene::IsUtf8(argv[i])) {
        throw CLI::ValidationError("argument " + std::to_string(i) + " is not UTF-8");
      }
    }
    app.parse(argc, argv);
    if (!out.flush()) throw tables::FileError("standard output: cannot be written");
    return kDone;
  } catch (const CLI::ParseError& error) {
    return app.exit(error, out, err) == 0 ? kDone : kBadUsage;
  } catch (const tables::FileError& error) {
    err << error.what() << "\n";
  } catch (const host::AutomationError& error) {
    // What is wrong with a file begins with its name.
    const bool isOfFile = error.Number() == host::ErrorNumber::FileAccess;
    err << (isOfFile ? "" : "orvane: ") << error.Description() << "\n";
  } catch (const std::system_error& error) {
    err << "orvane: " << error.what() << "\n";
  }
  return kBadData;
} catch (const std::bad_alloc&) {
  err << "orvane: out of memory\n";
  return kBadData;
}

}  // namespace orvane::tool
