#include "ChartCommands.h"

#include "WorldOutput.h"

#include "orvane/tables/ChartKinds.h"

#include <filesystem>
#include <memory>
#include <string>

namespace orvane::tool {
namespace {

namespace fs = std::filesystem;

/// What a command that charts a table is given.
struct ChartRequest {
  std::string table;
  tables::ChartOptions options;
  WorldOutput output;
};

void AddOption(CLI::App& command, const tables::Option& option, tables::ChartOptions& options) {
  const std::string name = "--" + option.name;
  const auto set = [&option, &options, name](const std::string& text) {
    try {
      option.set(options, text);
    } catch (const tables::OptionError& error) {
      throw CLI::ValidationError(name, error.what());
    }
  };
  CLI::Option* added = option.values.empty()
                           ? command.add_flag_callback(
                                 name, [set] { set(""); }, option.help)
                           : command.add_option_function<std::string>(name, set, option.help)
                                 ->type_name(option.values);
  added->required(option.isRequired);
  if (!option.excludes.empty()) added->excludes("--" + option.excludes);
}

void AddChartCommand(CLI::App& charts, const tables::ChartKind& kind, std::ostream& out,
                     std::ostream& err) {
  CLI::App& command = *charts.add_subcommand(kind.name, kind.help);
  const auto request = std::make_shared<ChartRequest>();
  command.add_option("table", request->table, "CSV table, or - for standard input: " + kind.table)
      ->required()
      ->type_name("DATA.csv");
  for (const auto& option : kind.options) AddOption(command, option, request->options);
  AddOutputOptions(command, request->output);
  command.callback([request, &kind, &out, &err] {
    const auto& surface = request->options.surface;
    const auto inputs = {fs::path(request->table), fs::path(surface ? surface->name : "")};
    const auto table = tables::TableFile(request->table);
    bool isFirst = true;
    WriteWorld(request->output, inputs, out, [&] {
      const auto made = kind.make(table, request->options);
      for (const auto& remark : made.remarks) {
        if (isFirst) err << remark << '\n';
      }
      isFirst = false;
      MadeWorld world;
      world.text = made.chart->ExportToString(true, true);
      world.title = request->options.title;
      world.kind = kind.name;
      // Standard input has been read to its end.
      if (request->table != "-") world.table = [&] { return table.open(request->options); };
      return world;
    });
  });
}

}  // namespace

void AddChartCommands(CLI::App& app, std::ostream& out, std::ostream& err) {
  CLI::App& charts = *app.add_subcommand("chart", "Chart a table of numbers");
  // What is no kind of chart is told the kinds that there are.
  charts.require_subcommand(0, 1)->allow_extras();
  charts.callback([&charts] {
    if (!charts.get_subcommands().empty()) return;
    try {
      tables::ChartKindOf(charts.remaining_size() > 0 ? charts.remaining().front() : "");
    } catch (const tables::OptionError& error) {
      throw CLI::ValidationError(error.what());
    }
  });
  for (const auto& kind : tables::ChartKinds()) AddChartCommand(charts, kind, out, err);
}

}  // namespace orvane::tool
