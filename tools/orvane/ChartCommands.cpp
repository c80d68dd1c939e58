#include "ChartCommands.h"

#include "WorldOutput.h"

#include "orvane/tables/ChartOptions.h"
#include "orvane/tables/DensityChart.h"
#include "orvane/tables/PieChart.h"
#include "orvane/tables/ScatterChart.h"
#include "orvane/tables/SeriesCharts.h"
#include "orvane/tables/SurfaceCharts.h"
#include "orvane/tables/read/CloudTable.h"
#include "orvane/tables/read/Source.h"
#include "orvane/tables/read/Table.h"

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <sstream>
#include <string>
#include <vector>

namespace orvane::tool {
namespace {

/// What the commands that chart a table are given.
struct ChartRequest {
  std::string table;
  tables::ChartOptions options;
  WorldOutput output;
};

/// Lets through numbers from `least` to `most`.
CLI::Validator NumberFrom(double least, double most) {
  const auto check = [least, most](const std::string& text) {
    double number = 0;
    if (CLI::detail::lexical_cast(text, number) && number >= least && number <= most) {
      return std::string();
    }
    std::ostringstream complaint;
    complaint << text << " is not a number from " << least << " to " << most;
    return complaint.str();
  };
  return {check, ""};
}

/// Title and colours, which every chart has.
void AddLookOptions(CLI::App& command, tables::ChartOptions& options) {
  command.add_option("--title", options.title, "Title above the chart");

  const auto isColor = [](const std::string& text) {
    return tables::ParseColor(text) ? std::string() : text + " is not a colour (#rrggbb)";
  };
  const auto setBackground = [&options](const std::string& text) {
    options.background = *tables::ParseColor(text);
  };
  command
      .add_option_function<std::string>("--background", setBackground,
                                        "Colour behind the chart; texts and lines go with it")
      ->type_name("#rrggbb")
      ->check(CLI::Validator(isColor, ""));
}

void AddToggleOption(CLI::App& command, tables::ChartOptions& options) {
  command.add_flag_callback(
      "--no-toggles", [&options] { options.useToggles = false; },
      "Leave out the legend's check boxes");
}

/// What charts of all kinds but points take. `columns` says what the table holds.
void AddChartOptions(CLI::App& command, ChartRequest& request, const std::string& columns) {
  tables::ChartOptions& options = request.options;
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
      ->each([&options](const std::string&) { options.missing = tables::MissingCell::Zero; });
  AddToggleOption(command, options);
  AddOutputOptions(command, request.output);
}

void AddSizeOption(CLI::App& command, tables::ChartOptions& options) {
  const auto setSize = [&options](const std::vector<float>& extents) {
    options.size = tables::GridSize{extents[0], extents[1], extents[2]};
  };
  command
      .add_option_function<std::vector<float>>(
          "--size", setSize, "Extents of the grid in scene units; left out, fitted to the table")
      ->type_name("W,H,D")
      ->delimiter(',')
      ->expected(3)
      ->check(NumberFrom(tables::kLeastExtent, tables::kMostExtent));
}

void AddPopupOption(CLI::App& command, tables::ChartOptions& options) {
  command.add_flag_callback(
      "--no-popups", [&options] { options.usePopups = false; },
      "Leave out the texts shown at a value");
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

void AddStyleOption(CLI::App& command, tables::ChartOptions& options) {
  AddChoice(command, "--style", options.isRounded, {{"outlined", false}, {"rounded", true}},
            "outlined|rounded", "Edges of the shapes; left out, outlined");
}

void AddGroupingOptions(CLI::App& command, tables::ChartOptions& options) {
  auto* grouped = command.add_flag_callback(
      "--grouped", [&options] { options.isGrouped = true; }, "Series side by side in each cell");
  command
      .add_flag_callback(
          "--stacked-rows", [&options] { options.isGrouped = false; },
          "A row for each series, one behind the other: the default")
      ->excludes(grouped);
}

void AddSurfaceOptions(CLI::App& command, tables::ChartOptions& options) {
  command
      .add_option(
          "--surface", options.surface,
          "CSV grid of the surface: the rows and columns of the table, its name in the corner")
      ->required()
      ->type_name("GRID.csv");
  AddStyleOption(command, options);
}

tables::Table ReadSurface(const tables::ChartOptions& options) {
  return tables::ReadTable(tables::Source::Read(options.surface), options.missing);
}

using MakeChart =
    std::function<std::shared_ptr<Chart>(const tables::Table&, const tables::ChartOptions&)>;

/// Adds the command "chart `name`", which writes the world of what `makeChart` makes of its table.
/// `addOptions(command, options)` adds the options of this kind of chart.
void AddChartCommand(CLI::App& charts, const std::string& name, const std::string& text,
                     std::ostream& out, const MakeChart& makeChart,
                     const std::function<void(CLI::App&, tables::ChartOptions&)>& addOptions) {
  CLI::App& command = *charts.add_subcommand(name, text);
  const auto request = std::make_shared<ChartRequest>();
  AddChartOptions(command, *request,
                  "category labels in the first column, series names in the header");
  AddSizeOption(command, request->options);
  AddPopupOption(command, request->options);
  addOptions(command, request->options);
  command.callback([request, makeChart, &out] {
    WriteWorld(request->output, out, [&] {
      const tables::Table table =
          tables::ReadTable(tables::Source::Read(request->table), request->options.missing);
      return makeChart(table, request->options)->ExportToString(true, true);
    });
  });
}

void AddPieCommand(CLI::App& charts, std::ostream& out) {
  CLI::App& command = *charts.add_subcommand("pie", "A pie of slices that can be pulled out");
  const auto request = std::make_shared<ChartRequest>();
  const auto pie = std::make_shared<tables::PieOptions>();
  AddChartOptions(command, *request, "labels, values and, on demand, heights, below a header");
  AddChoice(command, "--style", pie->style,
            {{"outlined", tables::PieStyle::Outlined},
             {"rounded", tables::PieStyle::Rounded},
             {"ring", tables::PieStyle::Ring}},
            "outlined|rounded|ring", "Shape of the slices; left out, outlined");
  AddChoice(command, "--labels", pie->labels,
            {{"always", tables::PieLabels::Always}, {"touch", tables::PieLabels::Touch}},
            "always|touch", "When slices show their labels; left out, while they are touched");
  command.add_flag_callback(
      "--spin", [pie] { pie->useSpinAxis = true; }, "An axis that turns the pie");
  command.callback([request, pie, &out] {
    WriteWorld(request->output, out, [&] {
      const auto shares =
          tables::ReadPieTable(tables::Source::Read(request->table), request->options.missing);
      return tables::MakePieChart(shares, request->options, *pie)->ExportToString(true, true);
    });
  });
}

void AddScatterCommand(CLI::App& charts, std::ostream& out) {
  struct Request {
    std::string table;
    tables::ScatterOptions options;
    WorldOutput output;
  };
  CLI::App& command = *charts.add_subcommand("scatter", "Points in space, still or animated");
  const auto request = std::make_shared<Request>();
  tables::ScatterOptions& options = request->options;
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
  command
      .add_option("--frame-seconds", options.frameSeconds,
                  "Time from one frame to the next; left out, 1")
      ->type_name("S")
      ->check(NumberFrom(1, 3600));
  AddOutputOptions(command, request->output);
  command.callback([request, &out] {
    WriteWorld(request->output, out, [&] {
      return tables::ScatterWorld(tables::ReadPointTable(tables::Source::Read(request->table)),
                                  request->options);
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
  command
      .add_option("--sigma", *sigma,
                  "Width of the hill around a point in scene units;"
                  " left out, by Silverman's rule of thumb")
      ->type_name("WIDTH")
      ->check(NumberFrom(tables::kLeastSigma, tables::kMostExtent));
  AddOutputOptions(command, request->output);
  command.callback([request, sigma, &out, &err] {
    WriteWorld(request->output, out, [&] {
      const tables::CloudTable clouds =
          tables::ReadCloudTable(tables::Source::Read(request->table));
      const auto chart = tables::MakeDensityChart(clouds, *sigma, request->options);
      if (!*sigma) err << "--sigma " << chart->Sigma() << " by Silverman's rule of thumb\n";
      return chart->ExportToString(true, true);
    });
  });
}

}  // namespace

void AddChartCommands(CLI::App& app, std::ostream& out, std::ostream& err) {
  CLI::App& charts = *app.add_subcommand("chart", "Chart a table of numbers");
  charts.require_subcommand(1);
  AddChartCommand(charts, "area", "Areas, one behind the other", out, tables::MakeAreaChart,
                  [](CLI::App&, tables::ChartOptions&) {});
  AddChartCommand(charts, "column", "Columns, in rows or side by side", out,
                  tables::MakeColumnChart, [](CLI::App& command, tables::ChartOptions& options) {
                    AddStyleOption(command, options);
                    AddGroupingOptions(command, options);
                  });
  AddChartCommand(charts, "ribbon", "Ribbons, one behind the other", out, tables::MakeRibbonChart,
                  AddStyleOption);
  AddPieCommand(charts, out);
  AddChartCommand(charts, "surface", "A surface over a grid of numbers", out,
                  tables::MakeSurfaceChart, [](CLI::App&, tables::ChartOptions&) {});
  AddChartCommand(
      charts, "column-surface", "Columns in rows, and a surface over them", out,
      [](const tables::Table& table, const tables::ChartOptions& options) {
        return tables::MakeColumnSurfaceChart(table, ReadSurface(options), options);
      },
      AddSurfaceOptions);
  AddChartCommand(
      charts, "ribbon-surface", "Ribbons, one behind the other, and a surface over them", out,
      [](const tables::Table& table, const tables::ChartOptions& options) {
        return tables::MakeRibbonSurfaceChart(table, ReadSurface(options), options);
      },
      AddSurfaceOptions);
  AddScatterCommand(charts, out);
  AddDensityCommand(charts, out, err);
}

}  // namespace orvane::tool
