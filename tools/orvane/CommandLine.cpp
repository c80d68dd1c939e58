#include "CommandLine.h"

#include "ChartOptions.h"
#include "CloudTable.h"
#include "DensityChart.h"
#include "ModelBuilder.h"
#include "Output.h"
#include "PieChart.h"
#include "ProtoFiles.h"
#include "ProtoLocation.h"
#include "ScatterChart.h"
#include "SeriesCharts.h"
#include "Source.h"
#include "SurfaceCharts.h"
#include "Table.h"
#include "TypesReference.h"

#include "orvane/host/AutomationError.h"

#include <filesystem>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <system_error>
#include <vector>

#include <CLI/CLI.hpp>

namespace orvane::tool {
namespace {

namespace fs = std::filesystem;

/// Exit statuses; what the command line itself gets wrong counts as bad usage.
constexpr int kDone = 0;
constexpr int kBadData = 1;
constexpr int kBadUsage = 2;

/// Where a world goes and where it looks for its PROTO files.
struct WorldOutput {
  std::string path;                        ///< "-" for standard output.
  std::optional<std::string> protoPrefix;  ///< Left out: as the user's settings say.
};

/// What the commands that chart a table are given.
struct ChartRequest {
  std::string table;
  ChartOptions options;
  WorldOutput output;
};

std::vector<OutputFile> ProtosIn(const fs::path& folder) {
  std::vector<OutputFile> files;
  for (const ProtoFile& proto : ProtoFiles()) files.push_back({folder / proto.name, proto.text});
  return files;
}

/// Makes a world with `makeWorld` and writes it. No file is touched before all is made.
void WriteWorld(const WorldOutput& output, std::ostream& out,
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
  WriteFiles(files);
}

void WriteProtos(const fs::path& folder) {
  std::error_code error;
  fs::create_directories(folder, error);
  if (error) throw FileError(folder.string() + ": cannot be made: " + error.message());
  WriteFiles(ProtosIn(folder));
}

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

/// Title and colours, which every chart has.
void AddLookOptions(CLI::App& command, ChartOptions& options) {
  command.add_option("--title", options.title, "Title above the chart");

  const auto isColor = [](const std::string& text) {
    return ParseColor(text) ? std::string() : text + " is not a colour (#rrggbb)";
  };
  const auto setBackground = [&options](const std::string& text) {
    options.background = *ParseColor(text);
  };
  command
      .add_option_function<std::string>("--background", setBackground,
                                        "Colour behind the chart; texts and lines go with it")
      ->type_name("#rrggbb")
      ->check(CLI::Validator(isColor, ""));
}

void AddToggleOption(CLI::App& command, ChartOptions& options) {
  command.add_flag_callback(
      "--no-toggles", [&options] { options.useToggles = false; },
      "Leave out the legend's check boxes");
}

/// What charts of all kinds but points take. `columns` says what the table holds.
void AddChartOptions(CLI::App& command, ChartRequest& request, const std::string& columns) {
  ChartOptions& options = request.options;
  command.add_option("table", request.table, "CSV table: " + columns)
      ->required()
      ->type_name("DATA.csv");
  AddLookOptions(command, options);
  const auto isZero = [](const std::string& text) {
    return text == "zero" ? std::string() : text + " is not zero";
  };
  command.add_option("--missing", "What an empty cell stands for; left out, it is an error")
      ->type_name("zero")
      ->check(CLI::Validator(isZero, ""))
      ->each([&options](const std::string&) { options.missing = MissingCell::Zero; });
  AddToggleOption(command, options);
  AddOutputOptions(command, request.output);
}

void AddSizeOption(CLI::App& command, ChartOptions& options) {
  const auto isExtent = [](const std::string& text) {
    double extent = 0;
    const bool isNumber = CLI::detail::lexical_cast(text, extent);
    return isNumber && extent >= kLeastExtent && extent <= kMostExtent
               ? std::string()
               : text + " is not a number from 0.1 to 10000";
  };
  const auto setSize = [&options](const std::vector<float>& extents) {
    options.size = GridSize{extents[0], extents[1], extents[2]};
  };
  command
      .add_option_function<std::vector<float>>(
          "--size", setSize, "Extents of the grid in scene units; left out, fitted to the table")
      ->type_name("W,H,D")
      ->delimiter(',')
      ->expected(3)
      ->check(CLI::Validator(isExtent, ""));
}

void AddPopupOption(CLI::App& command, ChartOptions& options) {
  command.add_flag_callback(
      "--no-popups", [&options] { options.usePopups = false; },
      "Leave out the texts shown at a value");
}

void AddStyleOption(CLI::App& command, ChartOptions& options) {
  command
      .add_option_function<std::string>(
          "--style",
          [&options](const std::string& style) { options.isRounded = style == "rounded"; },
          "Edges of the shapes; left out, outlined")
      ->type_name("outlined|rounded")
      ->check(CLI::IsMember({"outlined", "rounded"}));
}

void AddGroupingOptions(CLI::App& command, ChartOptions& options) {
  auto* grouped = command.add_flag_callback(
      "--grouped", [&options] { options.isGrouped = true; }, "Series side by side in each cell");
  command
      .add_flag_callback(
          "--stacked-rows", [&options] { options.isGrouped = false; },
          "A row for each series, one behind the other: the default")
      ->excludes(grouped);
}

void AddSurfaceOptions(CLI::App& command, ChartOptions& options) {
  command
      .add_option(
          "--surface", options.surface,
          "CSV grid of the surface: the rows and columns of the table, its name in the corner")
      ->required()
      ->type_name("GRID.csv");
  AddStyleOption(command, options);
}

Table ReadSurface(const ChartOptions& options) {
  return ReadTable(Source::Read(options.surface), options.missing);
}

using MakeChart = std::function<std::shared_ptr<Chart>(const Table&, const ChartOptions&)>;

/// Adds the command "chart `name`", which writes the world of what `makeChart` makes of its table.
/// `addOptions(command, options)` adds the options of this kind of chart.
void AddChartCommand(CLI::App& charts, const std::string& name, const std::string& text,
                     std::ostream& out, const MakeChart& makeChart,
                     const std::function<void(CLI::App&, ChartOptions&)>& addOptions) {
  CLI::App& command = *charts.add_subcommand(name, text);
  const auto request = std::make_shared<ChartRequest>();
  AddChartOptions(command, *request,
                  "category labels in the first column, series names in the header");
  AddSizeOption(command, request->options);
  AddPopupOption(command, request->options);
  addOptions(command, request->options);
  command.callback([request, makeChart, &out] {
    WriteWorld(request->output, out, [&] {
      const Table table = ReadTable(Source::Read(request->table), request->options.missing);
      return makeChart(table, request->options)->ExportToString(true, true);
    });
  });
}

/// Adds an option that takes one of the names in `choices`.
template <class T>
void AddChoice(CLI::App& command, const std::string& name, T& choice,
               const std::map<std::string, T>& choices, const std::string& names,
               const std::string& text) {
  command
      .add_option_function<std::string>(
          name, [&choice, choices](const std::string& chosen) { choice = choices.at(chosen); },
          text)
      ->type_name(names)
      ->check(CLI::IsMember(choices));
}

void AddPieCommand(CLI::App& charts, std::ostream& out) {
  CLI::App& command = *charts.add_subcommand("pie", "A pie of slices that can be pulled out");
  const auto request = std::make_shared<ChartRequest>();
  const auto pie = std::make_shared<PieOptions>();
  AddChartOptions(command, *request, "labels, values and, on demand, heights, below a header");
  AddChoice(
      command, "--style", pie->style,
      {{"outlined", PieStyle::Outlined}, {"rounded", PieStyle::Rounded}, {"ring", PieStyle::Ring}},
      "outlined|rounded|ring", "Shape of the slices; left out, outlined");
  AddChoice(command, "--labels", pie->labels,
            {{"always", PieLabels::Always}, {"touch", PieLabels::Touch}}, "always|touch",
            "When slices show their labels; left out, while they are touched");
  command.add_flag_callback(
      "--spin", [pie] { pie->useSpinAxis = true; }, "An axis that turns the pie");
  command.callback([request, pie, &out] {
    WriteWorld(request->output, out, [&] {
      const auto shares = ReadPieTable(Source::Read(request->table), request->options.missing);
      return MakePieChart(shares, request->options, *pie)->ExportToString(true, true);
    });
  });
}

void AddScatterCommand(CLI::App& charts, std::ostream& out) {
  struct Request {
    std::string table;
    ScatterOptions options;
    WorldOutput output;
  };
  CLI::App& command = *charts.add_subcommand("scatter", "Points in space, still or animated");
  const auto request = std::make_shared<Request>();
  ScatterOptions& options = request->options;
  command
      .add_option("table", request->table,
                  "CSV table: columns x, y, z, and if need be size, color or group, and frame")
      ->required()
      ->type_name("DATA.csv");
  AddLookOptions(command, options);
  AddSizeOption(command, options);
  AddChoice<AnimationStyle>(
      command, "--animate", options.animation,
      {{"smooth", AnimationStyle::VRML_ANALOG}, {"slider", AnimationStyle::VRML_DISCRETE}},
      "smooth|slider", "Points that move, or a slider that picks the frame; left out, smooth");
  AddChoice<LoopStyle>(command, "--loop", options.loop,
                       {{"continuous", LoopStyle::VRML_LOOP_CONTINUOUS},
                        {"break", LoopStyle::VRML_LOOP_BREAK},
                        {"back-and-forth", LoopStyle::VRML_BACK_AND_FORTH},
                        {"none", LoopStyle::VRML_NO_LOOP}},
                       "continuous|break|back-and-forth|none",
                       "What points do after the last frame; left out, break");
  const auto isGap = [](const std::string& text) {
    double seconds = 0;
    const bool isNumber = CLI::detail::lexical_cast(text, seconds);
    return isNumber && seconds >= 1 && seconds <= 3600 ? std::string()
                                                       : text + " is not a number from 1 to 3600";
  };
  command
      .add_option("--frame-seconds", options.frameSeconds,
                  "Time from one frame to the next; left out, 1")
      ->type_name("S")
      ->check(CLI::Validator(isGap, ""));
  AddOutputOptions(command, request->output);
  command.callback([request, &out] {
    WriteWorld(request->output, out, [&] {
      return ScatterWorld(ReadPointTable(Source::Read(request->table)), request->options);
    });
  });
}

/// Adds "chart density", which says on `err` which kernel width it took when none was given.
void AddDensityCommand(CLI::App& charts, std::ostream& out, std::ostream& err) {
  CLI::App& command =
      *charts.add_subcommand("density", "Hills where points lie thickly, one for each group");
  const auto request = std::make_shared<ChartRequest>();
  const auto sigma = std::make_shared<std::optional<float>>();
  command
      .add_option("points", request->table,
                  "CSV table: x and z of the points and, in a third column, their groups")
      ->required()
      ->type_name("POINTS.csv");
  AddLookOptions(command, request->options);
  AddSizeOption(command, request->options);
  AddToggleOption(command, request->options);
  const auto isWidth = [](const std::string& text) {
    double width = 0;
    const bool isNumber = CLI::detail::lexical_cast(text, width);
    return isNumber && width >= kLeastSigma && width <= kMostExtent
               ? std::string()
               : text + " is not a number from 0.001 to 10000";
  };
  command
      .add_option("--sigma", *sigma,
                  "Width of the hill around a point in scene units;"
                  " left out, by Silverman's rule of thumb")
      ->type_name("WIDTH")
      ->check(CLI::Validator(isWidth, ""));
  AddOutputOptions(command, request->output);
  command.callback([request, sigma, &out, &err] {
    WriteWorld(request->output, out, [&] {
      const CloudTable clouds = ReadCloudTable(Source::Read(request->table));
      const auto chart = MakeDensityChart(clouds, *sigma, request->options);
      if (!*sigma) err << "--sigma " << chart->Sigma() << " by Silverman's rule of thumb\n";
      return chart->ExportToString(true, true);
    });
  });
}

void AddBuildCommand(CLI::App& app, std::ostream& out) {
  CLI::App& command = *app.add_subcommand("build", "Build a world from a model of its objects");
  const auto model = std::make_shared<std::string>();
  const auto output = std::make_shared<WorldOutput>();
  command.add_option("model", *model, "Model: a JSON object of properties and calls")
      ->required()
      ->type_name("MODEL.json");
  AddOutputOptions(command, *output);
  command.callback([model, output, &out] {
    WriteWorld(*output, out, [&] { return BuildWorld(Source::Read(*model)); });
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

int RunCommandLine(int argc, const char* const* argv, std::ostream& out, std::ostream& err) {
  CLI::App app("Three-dimensional business charts as VRML97 worlds.", "orvane");
  app.require_subcommand(1);
  CLI::App& charts = *app.add_subcommand("chart", "Chart a table of numbers");
  charts.require_subcommand(1);
  AddChartCommand(charts, "area", "Areas, one behind the other", out, MakeAreaChart,
                  [](CLI::App&, ChartOptions&) {});
  AddChartCommand(charts, "column", "Columns, in rows or side by side", out, MakeColumnChart,
                  [](CLI::App& command, ChartOptions& options) {
                    AddStyleOption(command, options);
                    AddGroupingOptions(command, options);
                  });
  AddChartCommand(charts, "ribbon", "Ribbons, one behind the other", out, MakeRibbonChart,
                  AddStyleOption);
  AddPieCommand(charts, out);
  AddChartCommand(charts, "surface", "A surface over a grid of numbers", out, MakeSurfaceChart,
                  [](CLI::App&, ChartOptions&) {});
  AddChartCommand(
      charts, "column-surface", "Columns in rows, and a surface over them", out,
      [](const Table& table, const ChartOptions& options) {
        return MakeColumnSurfaceChart(table, ReadSurface(options), options);
      },
      AddSurfaceOptions);
  AddChartCommand(
      charts, "ribbon-surface", "Ribbons, one behind the other, and a surface over them", out,
      [](const Table& table, const ChartOptions& options) {
        return MakeRibbonSurfaceChart(table, ReadSurface(options), options);
      },
      AddSurfaceOptions);
  AddScatterCommand(charts, out);
  AddDensityCommand(charts, out, err);
  AddBuildCommand(app, out);
  AddProtosCommand(app);
  AddSettingsCommand(app, out);
  AddTypesCommand(app, out);

  try {
    app.parse(argc, argv);
    if (!out.flush()) throw FileError("standard output: cannot be written");
    return kDone;
  } catch (const CLI::ParseError& error) {
    return app.exit(error, out, err) == 0 ? kDone : kBadUsage;
  } catch (const FileError& error) {
    err << error.what() << "\n";
  } catch (const host::AutomationError& error) {
    err << "orvane: " << error.Description() << "\n";
  } catch (const std::system_error& error) {
    err << "orvane: " << error.what() << "\n";
  }
  return kBadData;
}

}  // namespace orvane::tool
