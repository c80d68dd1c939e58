#include "GridChart.h"

#include "ChartDress.h"
#include "Palette.h"

#include "orvane/control/OrvaneScaler.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <memory>
#include <string>

namespace orvane::tool {
namespace {

using std::int16_t;

constexpr HostColor kWhite = 0xFFFFFF;

float Single(double value) { return static_cast<float>(value); }

std::shared_ptr<scene::Transform> TransformIn(const scene::MFNode& children, int index) {
  return std::dynamic_pointer_cast<scene::Transform>(children.Item(index));
}

/// Puts the labels of `axis` on the middle of their cells or lines. Its chart puts the first
/// baseline half a height above that; capitals and digits, 0.7 of the height, are in the middle
/// when the baseline is 0.35 below it.
void CentreLabels(const Axis& axis, const LabelColumn& labels) {
  TransformIn(axis.Root()->children, 1)->translation.Y(Single(-0.85 * labels.height));
}

/// Moves the header of `axis` out by `distance`, away from the labels, and, like the labels, half a
/// height along the axis.
void MoveHeader(const Axis& axis, double distance, const LabelColumn& labels) {
  Move(TransformIn(axis.Root()->children, 2)->children, labels.height / 2, -distance);
}

void DressAxis(Axis& axis, const LabelColumn& labels, const std::string& header,
               const GridLayout& layout, const Style& style) {
  axis.LabelHeight(Single(labels.height));
  axis.LabelColor(style.ink);
  axis.LabelFont(VRMLFontFamily::VRML_SANS);
  axis.Header(header);
  axis.HeaderHeight(Single(layout.textHeight));
  axis.HeaderColor(style.ink);
  axis.HeaderFont(VRMLFontFamily::VRML_SANS);
  axis.HeaderStyle(VRMLFontStyle::VRML_BOLD);
  CentreLabels(axis, labels);

  // The axis itself counts on narrower letters.
  double counted = 0;
  for (const std::string& text : labels.texts) {
    counted = std::max(counted, 1.1 * EstimateTextWidth(text, Single(labels.height)));
  }
  MoveHeader(axis, layout.HeaderDistance(labels) - counted, labels);
}

void DressGrid(GridGraph& chart, const GridLayout& layout, const Style& style) {
  GridInfo& grid = *chart.GridProps();
  grid.Width(layout.size.width);
  grid.Height(layout.size.height);
  grid.Depth(layout.size.depth);
  grid.XAxisCellCount(static_cast<int16_t>(layout.xLabels.texts.size()));
  grid.YAxisCellCount(static_cast<int16_t>(layout.scale.cells));
  grid.ZAxisCellCount(static_cast<int16_t>(layout.zLabels.texts.size()));
  grid.WallColor(style.wall);
  // Lines that stand close together would hide the walls: the closer, the fainter they are.
  constexpr double kClear = 0.4;
  const double pitch = std::min(layout.CellWidth(), layout.CellDepth());
  grid.LineColor(Mix(style.wall, style.line, std::clamp(pitch / kClear, 0.2, 1.0)));
}

void DressAxes(CategoryGraph& chart, const GridLayout& layout, const Style& style) {
  DressAxis(*chart.XAxisProps(), layout.xLabels, layout.xHeader, layout, style);
  DressAxis(*chart.YAxisProps(), layout.yLabels, layout.yHeader, layout, style);
  DressAxis(*chart.ZAxisProps(), layout.zLabels, "", layout, style);
  for (const auto& text : layout.xLabels.texts) chart.XAxisProps()->Labels().Append(text);
  for (const auto& text : layout.zLabels.texts) chart.ZAxisProps()->Labels().Append(text);

  ContinuousAxis& values = *chart.YAxisProps();
  values.NumericFormat(layout.scale.LabelPicture());
  values.Min(Single(layout.scale.low));
  values.Max(Single(layout.scale.high));
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
  const auto [width, height, depth] = layout.size;
  const Point middle{width / 2.0, height / 2.0, depth / 2.0};
  DressBackground(chart, options.background);
  DressGrid(chart, layout, style);
  DressAxes(chart, layout, style);
  DressTitle(*chart.TitleProps(), layout.title, layout.titleHeight, layout.titleLift, layout.titleZ,
             style);
  DressLegend(*chart.LegendProps(), layout.legend.height, options.useToggles, style);
  AddViews(chart, ViewsOf(SubjectOf(layout)));
  AddLights(chart, middle, 4 * std::hypot(width, height, depth));
  CentreForExamining(chart, middle);
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

void DressGridSurface(SurfaceInfo& surface, std::size_t index, const Table& data,
                      RowsAlong rowsAlong, const GridLayout& layout, const ChartOptions& options) {
  const HostColor color = SeriesColor(index);
  surface.Material()->diffuseColor.Value(color);
  surface.WireColor(Mix(color, kDarkInk, 0.6));
  surface.LegendText(layout.legend.texts[index]);

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

}  // namespace orvane::tool
