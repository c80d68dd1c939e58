#include "orvane/tables/ChartKinds.h"

#include "orvane/tables/DensityChart.h"
#include "orvane/tables/OptionTable.h"
#include "orvane/tables/PieChart.h"
#include "orvane/tables/ScatterChart.h"
#include "orvane/tables/SeriesCharts.h"
#include "orvane/tables/SurfaceCharts.h"

#include <sstream>

namespace orvane::tables {
namespace {

constexpr const char* kCategories =
    "category labels in the first column, series names in the header";

/// The options of these names, and those about the reading of the table; a table of numbers may
/// have to be chosen from a longer one.
std::vector<Option> WithReading(OptionNames names, bool isChosen) {
  auto options = OptionsNamed(names);
  const auto append = [&](OptionNames more) {
    for (auto& option : OptionsNamed(more)) options.push_back(std::move(option));
  };
  append({"separator", "decimal", "encoding", "no-header", "columns", "rows"});
  if (isChosen) {
    append({"category", "series", "value", "aggregate", "by", "date-format", "fill-dates", "sort",
            "top", "percent", "transpose"});
  }
  return options;
}

/// Charts over a grid have a value everywhere. Values before the first one cannot be filled in.
void RequireNumbers(const Table& table) {
  for (const TableSeries& series : table.series) {
    for (std::size_t i = 0; i < series.cells.size(); ++i) {
      if (!series.cells[i].IsGap()) continue;
      table.origin.Fail(series.cells[i].place, "no value for \"" + table.categories[i] + "\", \"" +
                                                   series.name +
                                                   "\" (--missing zero reads it as 0)");
    }
  }
}

/// A kind whose chart `makeChart(Table, options)` makes.
template <class F>
ChartKind OfSeries(const std::string& name, const std::string& graph, const std::string& help,
                   OptionNames names, F makeChart) {
  return {name,
          graph,
          help,
          kCategories,
          WithReading(names, true),
          [makeChart](const TableInput& input, const ChartOptions& options) -> TableChart {
            const Table table = ReadTable(*input.open(options), options);
            RequireNumbers(table);
            return {makeChart(table, options), table.warnings};
          }};
}

/// A kind whose chart `makeChart(Table, surface, options)` makes.
template <class F>
ChartKind OfSeriesAndSurface(const std::string& name, const std::string& graph,
                             const std::string& help, F makeChart) {
  return OfSeries(
      name, graph, help,
      {"surface", "title", "background", "missing", "size", "style", "no-toggles", "no-popups"},
      [makeChart](const Table& table, const ChartOptions& options) {
        if (!options.surface) throw OptionError("surface is required");
        // Which columns, rows and values of the table are taken says nothing about the grid.
        ReadOptions grid;
        grid.separator = options.separator;
        grid.decimal = options.decimal;
        grid.encoding = options.encoding;
        grid.missing = options.missing;
        const Table surface = ReadTable(*options.surface->open(grid), grid);
        RequireNumbers(surface);
        return makeChart(table, surface, options);
      });
}

TableChart MakeDensity(const TableInput& input, const ChartOptions& options) {
  const CloudTable clouds = ReadCloudTable(*input.open(options), options);
  const auto chart = MakeDensityChart(clouds, options);
  TableChart made{chart, clouds.warnings};
  if (!options.sigma) {
    std::ostringstream remark;
    remark << "--sigma " << chart->Sigma() << " by Silverman's rule of thumb";
    made.remarks.push_back(remark.str());
  }
  return made;
}

std::vector<ChartKind> AllKinds() {
  return {
      OfSeries("area", "AreaGraph", "Areas, one behind the other",
               {"title", "background", "missing", "size", "no-toggles", "no-popups"},
               MakeAreaChart),
      OfSeries("column", "ColumnGraph", "Columns, in rows or side by side",
               {"title", "background", "missing", "size", "style", "grouped", "stacked-rows",
                "no-toggles", "no-popups"},
               MakeColumnChart),
      OfSeries("ribbon", "RibbonGraph", "Ribbons, one behind the other",
               {"title", "background", "missing", "size", "style", "no-toggles", "no-popups"},
               MakeRibbonChart),
      {"pie", "PieGraph", "A pie of slices that can be pulled out",
       "labels, values and, on demand, heights, below a header",
       WithReading(
           {"title", "background", "missing", "slice-style", "labels", "spin", "no-toggles"}, true),
       [](const TableInput& input, const ChartOptions& options) -> TableChart {
         const Table table = ReadTable(*input.open(options), options);
         return {MakePieChart(PieSharesOf(table), options), table.warnings};
       }},
      {"scatter", "ScatterGraph", "Points in space, still or animated",
       "columns x, y, z, and if need be size, color or group, and frame",
       WithReading({"title", "background", "size", "animate", "loop", "frame-seconds"}, false),
       [](const TableInput& input, const ChartOptions& options) -> TableChart {
         const PointTable table = ReadPointTable(*input.open(options), options);
         return {MakeScatterChart(table, options), table.warnings};
       }},
      OfSeries("surface", "SurfaceGraph", "A surface over a grid of numbers",
               {"title", "background", "missing", "size", "no-toggles", "no-popups"},
               MakeSurfaceChart),
      {"density", "DensityGraph", "Hills where points lie thickly, one for each group",
       "x and z of the points and, in a third column, their groups",
       WithReading({"title", "background", "size", "sigma", "no-toggles"}, false), MakeDensity},
      OfSeriesAndSurface("column-surface", "SCComboGraph",
                         "Columns in rows, and a surface over them", MakeColumnSurfaceChart),
      OfSeriesAndSurface("ribbon-surface", "RCComboGraph",
                         "Ribbons, one behind the other, and a surface over them",
                         MakeRibbonSurfaceChart),
  };
}

}  // namespace

const std::vector<ChartKind>& ChartKinds() {
  static const std::vector<ChartKind> kinds = AllKinds();
  return kinds;
}

const ChartKind& ChartKindOf(std::string_view name) {
  std::string names;
  for (const ChartKind& kind : ChartKinds()) {
    if (kind.name == name) return kind;
    names += (names.empty() ? "" : ", ") + kind.name;
  }
  throw OptionError("there is no chart \"" + std::string(name) + "\"; there are " + names);
}

void SetOption(const ChartKind& kind, ChartOptions& options, std::string_view name,
               const std::string& text) {
  std::string names;
  for (const Option& option : kind.options) {
    if (option.name == name) {
      try {
        return option.set(options, text);
      } catch (const OptionError& error) {
        throw OptionError(option.name + ": " + error.what());
      }
    }
    names += (names.empty() ? "" : ", ") + option.name;
  }
  throw OptionError("a chart of kind " + kind.name + " has no option \"" + std::string(name) +
                    "\"; it has " + names);
}

}  // namespace orvane::tables
