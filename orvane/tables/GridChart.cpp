#include "orvane/tables/GridChart.h"

#include "orvane/automation/Arithmetic.h"
#include "orvane/control/OrvaneScaler.h"
#include "orvane/tables/layout/GridDress.h"
#include "orvane/tables/layout/Palette.h"

#include <algorithm>
#include <cstdint>
#include <string>

namespace orvane::tables {

using host::Single;

namespace {

using std::int16_t;

constexpr HostColor kWhite = 0xFFFFFF;

void DressCells(GridInfo& grid, const GridLayout& layout, const Style& style) {
  DressGrid(grid, layout, std::min(layout.CellWidth(), layout.CellDepth()), style);
  grid.XAxisCellCount(static_cast<int16_t>(layout.xLabels.texts.size()));
  grid.YAxisCellCount(static_cast<int16_t>(layout.scale.cells));
  grid.ZAxisCellCount(static_cast<int16_t>(layout.zLabels.texts.size()));
}

void DressAxes(CategoryGraph& chart, const GridLayout& layout, const Style& style) {
  DressAxis(*chart.XAxisProps(), layout.xLabels, layout.xHeader, layout, style);
  DressAxis(*chart.YAxisProps(), layout.yLabels, layout.yHeader, layout, style);
  DressAxis(*chart.ZAxisProps(), layout.zLabels, "", layout, style);
  for (const auto& text : layout.xLabels.texts) chart.XAxisProps()->Labels().Append(text);
  for (const auto& text : layout.zLabels.texts) chart.ZAxisProps()->Labels().Append(text);
  DressValues(*chart.YAxisProps(), layout.scale);
}

/// Colours and size of popups, and whether they are there; `P` is those of series or of surfaces.
template <class P>
void DressPopups(P& popups, const GridLayout& layout, const ChartOptions& options) {
  popups.TextColor(kDarkInk);
  popups.BackgroundColor(kWhite);
  popups.BorderColor(Mix(kDarkInk, kWhite, 0.5));
  popups.TextHeight(Single(0.9 * layout.textHeight));
  popups.UsePopups(options.usePopups);
}

}  // namespace

void DressGridChart(CategoryGraph& chart, const GridLayout& layout, const ChartOptions& options) {
  const Style style(options.background);
  DressCells(*chart.GridProps(), layout, style);
  DressAxes(chart, layout, style);
  chart.Placement() = layout.placement;
  DressAroundGrid(chart, *chart.LegendProps(), layout, SubjectOf(layout), options);
  chart.LegendProps()->UseSeriesToggle(options.useToggles);
}

void DressGridSeries(GridSeries& series, std::size_t index, const Table& table,
                     const GridLayout& layout, const ChartOptions& options) {
  const TableSeries& data = table.series[index];
  series.Material()->diffuseColor.Value(SeriesColor(index));
  series.LegendText(layout.legend.texts[index]);

  // Heights count from the plane of the value 0, in which the series' root is put.
  OrvaneScaler scaler;
  scaler.FromMax(Single(layout.scale.high - layout.scale.low));
  scaler.ToMax(layout.size.height);
  series.Root()->translation.Y(scaler.ScaledValue(Single(-layout.scale.low)));

  SeriesPopupInfo& popups = *series.PopupProps();
  for (std::size_t i = 0; i < data.cells.size(); ++i) {
    series.Height().Append(scaler.ScaledValue(Single(layout.scale.InUnits(data.cells[i].number))));
    popups.PopupText().Append(table.categories[i] + "\n" + data.name + ": " + data.cells[i].text);
  }
  DressPopups(popups, layout, options);
}

void DressSurface(LatticeSurface& surface, std::size_t index, double pitch,
                  const GridLayout& layout) {
  const HostColor color = SeriesColor(index);
  surface.Material()->diffuseColor.Value(color);
  surface.Material()->ambientIntensity.Value(0.4F);  // The lower side gets no other light.
  surface.WireColor(Mix(color, kDarkInk, 0.6 * LineStrength(pitch, layout)));
  surface.LegendText(layout.legend.texts[index]);
}

void DressGridSurface(SurfaceInfo& surface, std::size_t index, const Table& data,
                      RowsAlong rowsAlong, const GridLayout& layout, const ChartOptions& options) {
  DressSurface(surface, index, std::min(layout.CellWidth(), layout.CellDepth()), layout);

  // Heights count from the floor, whatever value that stands for.
  OrvaneScaler scaler;
  scaler.FromMin(Single(layout.scale.low));
  scaler.FromMax(Single(layout.scale.high));
  scaler.ToMax(layout.size.height);
  const std::string name = data.categoryHeader.empty() ? "" : data.categoryHeader + ": ";
  for (std::size_t row = 0; row < data.categories.size(); ++row) {
    for (std::size_t column = 0; column < data.series.size(); ++column) {
      const TableCell& cell = data.series[column].cells[row];
      const auto x = static_cast<int16_t>((rowsAlong == RowsAlong::X ? row : column) + 1);
      const auto z = static_cast<int16_t>((rowsAlong == RowsAlong::X ? column : row) + 1);
      surface.Set1HeightPoint(
          x, z, scaler.ScaledValue(Single(layout.scale.InUnits(cell.number))),
          data.categories[row] + ", " + data.series[column].name + "\n" + name + cell.text);
    }
  }
  DressPopups(*surface.PopupProps(), layout, options);
}

}  // namespace orvane::tables
