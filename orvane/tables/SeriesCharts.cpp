#include "orvane/tables/SeriesCharts.h"

#include "orvane/tables/GridChart.h"
#include "orvane/tables/SeriesShapes.h"

#include <algorithm>
#include <cstdint>

namespace orvane::tables {
namespace {

using std::int16_t;

/// Makes a chart of class `G`; `dress(chart, i, layout)` gives the series of the table's column
/// `i`, from 0, its shape and returns it.
template <class G, class F>
std::shared_ptr<G> MakeChart(const Table& table, const ChartOptions& options, F dress) {
  auto chart = std::make_shared<G>();
  const GridLayout layout = LayOutSeries(table, options);
  DressGridChart(*chart, layout, options);
  for (std::size_t i = 0; i < table.series.size(); ++i) {
    DressGridSeries(*dress(*chart, i, layout), i, table, layout, options);
  }
  return chart;
}

/// Depth of areas and ribbons. It is one for both: their popups and places follow from it, and one
/// table is to give one world but for the shapes.
float BandDepth(const GridLayout& layout) { return static_cast<float>(0.6 * layout.CellDepth()); }

int16_t Row(std::size_t series) { return static_cast<int16_t>(series + 1); }

}  // namespace

std::shared_ptr<AreaGraph> MakeAreaChart(const Table& table, const ChartOptions& options) {
  return MakeChart<AreaGraph>(table, options,
                              [](AreaGraph& chart, std::size_t i, const auto& layout) {
                                auto series = chart.GetSeries(Row(i));
                                series->Depth(BandDepth(layout));
                                return series;
                              });
}

std::shared_ptr<ColumnGraph> MakeColumnChart(const Table& table, const ChartOptions& options) {
  return MakeChart<ColumnGraph>(
      table, options, [&](ColumnGraph& chart, std::size_t i, const auto& layout) {
        const auto slots = options.isGrouped ? table.series.size() : 1;
        chart.ColumnsPerCell(static_cast<int16_t>(slots));
        chart.ColumnSpacingStyle(ColumnCellSpacing::ADJACENT);
        auto series = options.isGrouped ? chart.GetSeries(1, Row(i)) : chart.GetSeries(Row(i));
        ShapeColumns(*series, slots, layout, options);
        return series;
      });
}

std::shared_ptr<RibbonGraph> MakeRibbonChart(const Table& table, const ChartOptions& options) {
  return MakeChart<RibbonGraph>(table, options,
                                [&](RibbonGraph& chart, std::size_t i, const auto& layout) {
                                  auto series = chart.GetSeries(Row(i));
                                  ShapeRibbon(*series, layout, options);
                                  return series;
                                });
}

void ShapeColumns(ColumnSeriesInfo& series, std::size_t slots, const GridLayout& layout,
                  const ChartOptions& options) {
  // The columns of a cell fill the same part of it, however many they are.
  const double width =
      (options.isGrouped ? 0.8 : 0.6) * layout.CellWidth() / static_cast<double>(slots);
  const double depth = std::min(0.6 * layout.CellDepth(), 1.5 * width);
  series.Width(static_cast<float>(width));
  series.Depth(static_cast<float>(depth));
  series.BevelRadius(static_cast<float>(0.15 * std::min(width, depth)));
  if (options.style == ShapeStyle::Rounded) series.Style(ColumnStyle::ROUNDED_COLUMN);
}

void ShapeRibbon(RibbonSeriesInfo& series, const GridLayout& layout, const ChartOptions& options) {
  const double thickness = 0.025 * layout.size.height;
  series.Depth(BandDepth(layout));
  series.Thickness(static_cast<float>(thickness));
  series.BevelRadius(static_cast<float>(0.4 * thickness));
  if (options.style == ShapeStyle::Rounded) series.Style(RibbonStyle::ROUNDED_RIBBON);
}

}  // namespace orvane::tables
