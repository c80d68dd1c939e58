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

/// A kind whose chart `makeChart(Table, options)` makes.
template <class F>
ChartKind OfSeries(const std::string& name, const std::string& graph, const std::string& help,
                   OptionNames names, F makeChart) {
  return {name,
          graph,
          help,
          kCategories,
          OptionsNamed(names),
          [makeChart](const Source& source, const ChartOptions& options) -> TableChart {
            return {makeChart(ReadTable(source, options.missing), options), {}};
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
        return makeChart(table, ReadTable(*options.surface, options.missing), options);
      });
}

TableChart MakeDensity(const Source& source, const ChartOptions& options) {
  const auto chart = MakeDensityChart(ReadCloudTable(source), options);
  TableChart made{chart, {}};
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
       OptionsNamed(
           {"title", "background", "missing", "slice-style", "labels", "spin", "no-toggles"}),
       [](const Source& source, const ChartOptions& options) -> TableChart {
         return {MakePieChart(ReadPieTable(source, options.missing), options), {}};
       }},
      {"scatter", "ScatterGraph", "Points in space, still or animated",
       "columns x, y, z, and if need be size, color or group, and frame",
       OptionsNamed({"title", "background", "size", "animate", "loop", "frame-seconds"}),
       [](const Source& source, const ChartOptions& options) -> TableChart {
         return {MakeScatterChart(ReadPointTable(source), options), {}};
       }},
      OfSeries("surface", "SurfaceGraph", "A surface over a grid of numbers",
               {"title", "background", "missing", "size", "no-toggles", "no-popups"},
               MakeSurfaceChart),
      {"density", "DensityGraph", "Hills where points lie thickly, one for each group",
       "x and z of the points and, in a third column, their groups",
       OptionsNamed({"title", "background", "size", "sigma", "no-toggles"}), MakeDensity},
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
