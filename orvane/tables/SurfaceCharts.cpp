#include "orvane/tables/SurfaceCharts.h"

#include "orvane/tables/GridChart.h"
#include "orvane/tables/SeriesShapes.h"
#include "orvane/tables/layout/GridLayout.h"

#include <algorithm>
#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

namespace orvane::tables {
namespace {

void RequireSurface(const Table& grid) {
  if (grid.categories.size() >= 2 && grid.series.size() >= 2) return;
  throw FileError(grid.origin.name +
                  ": a surface needs two rows and two columns of numbers or more");
}

/// The name of a surface: the cell in its grid's corner or, where that is empty, of its file.
std::string NameOf(const Table& grid) {
  const auto& corner = grid.categoryHeader;
  return corner.empty() ? std::filesystem::path(grid.origin.name).stem().string() : corner;
}

/// A map in the shape of its grid: cells are square unless that makes it long and thin.
GridSize SizeOfMap(std::size_t xCells, std::size_t zCells) {
  constexpr double kLongest = 12;
  constexpr double kShortest = 5;
  const auto most = static_cast<double>(std::max(xCells, zCells));
  const auto extent = [&](std::size_t cells) {
    return static_cast<float>(std::max(kShortest, kLongest * static_cast<double>(cells) / most));
  };
  return {extent(xCells), 0.4F * static_cast<float>(kLongest), extent(zCells)};
}

/// The `what`s of a surface's grid must be those of its table.
void RequireSame(const Table& surface, const Table& table, const std::string& what,
                 const std::vector<std::string>& labels, const std::vector<std::string>& wanted) {
  const auto require = [&](bool isSame, const std::string& found, const std::string& expected) {
    if (isSame) return;
    throw FileError(surface.origin.name + ": " + found + ", where " + table.origin.name + " has " +
                    expected);
  };
  require(labels.size() == wanted.size(), std::to_string(labels.size()) + " " + what + "s",
          std::to_string(wanted.size()));
  for (std::size_t i = 0; i < labels.size(); ++i) {
    require(labels[i] == wanted[i], what + " " + std::to_string(i + 1) + " is \"" + labels[i] + '"',
            '"' + wanted[i] + '"');
  }
}

/// Makes a chart of class `G`; `shape(series, layout)` gives a series its shape.
template <class G, class F>
std::shared_ptr<G> MakeCombo(const Table& table, const Table& surface, const ChartOptions& options,
                             F shape) {
  RequireSurface(table);
  GridTexts texts = TextsOf(table);
  RequireSame(surface, table, "row", surface.categories, texts.x);
  RequireSame(surface, table, "column", TextsOf(surface).z, texts.z);
  texts.legend.push_back(NameOf(surface));
  const auto [lowest, highest] = RangeOf(table);
  const auto [surfaceLowest, surfaceHighest] = RangeOf(surface);
  const ValueScale scale = RoundScale(std::min(lowest, surfaceLowest),
                                      std::max(highest, surfaceHighest), kMostValueCells);
  const GridLayout layout =
      LayOutCategories(texts, scale, SizeFor(texts.x.size(), texts.z.size()), options);

  auto chart = std::make_shared<G>();
  DressGridChart(*chart, layout, options);
  for (std::size_t i = 0; i < table.series.size(); ++i) {
    const auto series = chart->GetSeries(static_cast<std::int16_t>(i + 1));
    shape(*series, layout);
    DressGridSeries(*series, i, table, layout, options);
  }
  chart->SurfaceCount(1);
  const auto surfaceInfo = chart->GetSurface(1);
  DressGridSurface(*surfaceInfo, table.series.size(), surface, RowsAlong::X, layout, options);
  surfaceInfo->Material()->transparency.Value(0.35F);  // So that it does not hide the series.
  return chart;
}

}  // namespace

std::shared_ptr<SurfaceGraph> MakeSurfaceChart(const Table& grid, const ChartOptions& options) {
  RequireSurface(grid);
  const auto [lowest, highest] = RangeOf(grid);
  const GridTexts texts{TextsOf(grid).z, grid.categories, {NameOf(grid)}, ""};
  const GridLayout layout = LayOutCategories(texts, FittedScale(lowest, highest, kMostValueCells),
                                             SizeOfMap(texts.x.size(), texts.z.size()), options);
  auto chart = std::make_shared<SurfaceGraph>();
  DressGridChart(*chart, layout, options);
  chart->SurfaceCount(1);
  DressGridSurface(*chart->GetSurface(1), 0, grid, RowsAlong::Z, layout, options);
  return chart;
}

std::shared_ptr<SCComboGraph> MakeColumnSurfaceChart(const Table& table, const Table& surface,
                                                     const ChartOptions& options) {
  return MakeCombo<SCComboGraph>(table, surface, options,
                                 [&](ColumnSeriesInfo& series, const GridLayout& layout) {
                                   ShapeColumns(series, 1, layout, options);
                                 });
}

std::shared_ptr<RCComboGraph> MakeRibbonSurfaceChart(const Table& table, const Table& surface,
                                                     const ChartOptions& options) {
  return MakeCombo<RCComboGraph>(table, surface, options,
                                 [&](RibbonSeriesInfo& series, const GridLayout& layout) {
                                   ShapeRibbon(series, layout, options);
                                 });
}

}  // namespace orvane::tables
