#include "orvane/tables/layout/GridDress.h"

#include "orvane/automation/Arithmetic.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

namespace orvane::tables {

using host::Single;

namespace {}  // namespace

void DressAroundGrid(Chart& chart, ChartLegend& legend, const GridLayout& layout,
                     const Subject& subject, const ChartOptions& options) {
  const Style style(options.background);
  const auto [width, height, depth] = layout.size;
  const Point middle{width / 2.0, height / 2.0, depth / 2.0};
  DressBackground(chart, options.background);
  DressTitle(*chart.TitleProps(), layout.title, layout.titleHeight, style);
  DressLegend(legend, layout.legend.height, style);
  AddViews(chart, ViewsOf(subject));
  AddLights(chart, middle, 4 * std::hypot(width, height, depth));
  CentreForExamining(chart, middle);
}

double LineStrength(double pitch, const GridLayout& layout) {
  return std::clamp(pitch / (0.7 * layout.textHeight), 0.1, 1.0);
}

void DressGrid(GridInfo& grid, const GridLayout& layout, double pitch, const Style& style) {
  grid.Width(layout.size.width);
  grid.Height(layout.size.height);
  grid.Depth(layout.size.depth);
  grid.WallColor(style.wall);
  grid.LineColor(Mix(style.litWall, style.line, LineStrength(pitch, layout)));
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
}

void DressValues(ContinuousAxis& axis, const ValueScale& scale) {
  axis.NumericFormat(scale.LabelPicture());
  axis.Min(Single(scale.low));
  axis.Max(Single(scale.high));
}

void DressValueGrid(GridInfo& grid, const ValueAxes& axes, const GridLayout& layout,
                    const Style& style) {
  const double pitch = std::min(static_cast<double>(layout.size.width) / axes.x.cells,
                                static_cast<double>(layout.size.depth) / axes.z.cells);
  DressGrid(grid, layout, pitch, style);
  grid.XAxisCellCount(static_cast<std::int16_t>(axes.x.cells));
  grid.YAxisCellCount(static_cast<std::int16_t>(axes.y.cells));
  grid.ZAxisCellCount(static_cast<std::int16_t>(axes.z.cells));
}

void DressValueAxes(ContinuousAxis& x, ContinuousAxis& y, ContinuousAxis& z, const ValueAxes& axes,
                    const GridLayout& layout, const Style& style) {
  DressAxis(x, layout.xLabels, layout.xHeader, layout, style);
  DressAxis(y, layout.yLabels, layout.yHeader, layout, style);
  DressAxis(z, layout.zLabels, layout.zHeader, layout, style);
  DressValues(x, axes.x);
  DressValues(y, axes.y);
  DressValues(z, axes.z);
}

}  // namespace orvane::tables
