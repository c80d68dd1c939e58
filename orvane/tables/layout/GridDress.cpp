#include "orvane/tables/layout/GridDress.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <memory>

namespace orvane::tables {
namespace {

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

}  // namespace

void DressAroundGrid(Chart& chart, ChartLegend& legend, const GridLayout& layout,
                     const Subject& subject, const ChartOptions& options) {
  const Style style(options.background);
  const auto [width, height, depth] = layout.size;
  const Point middle{width / 2.0, height / 2.0, depth / 2.0};
  DressBackground(chart, options.background);
  DressTitle(*chart.TitleProps(), layout.title, layout.titleHeight, layout.titleLift, layout.titleZ,
             style);
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
  CentreLabels(axis, labels);

  // The axis itself counts on narrower letters.
  double counted = 0;
  for (const std::string& text : labels.texts) {
    counted = std::max(counted, 1.1 * EstimateTextWidth(text, Single(labels.height)));
  }
  MoveHeader(axis, layout.HeaderDistance(labels) - counted, labels);
}

void SetLabelsOff(const Axis& x, const Axis& y, const Axis& z, const GridLayout& layout) {
  if (layout.labelGap == 0) return;
  Move(x.Root()->children, -layout.labelGap, 0);
  Move(y.Root()->children, -layout.YLabelGap(), 0);
  Move(z.Root()->children, layout.labelGap, 0);
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
  SetLabelsOff(x, y, z, layout);
  DressValues(x, axes.x);
  DressValues(y, axes.y);
  DressValues(z, axes.z);
}

}  // namespace orvane::tables
