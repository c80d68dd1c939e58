#include "orvane/tables/PieChart.h"

#include "orvane/automation/Arithmetic.h"
#include "orvane/tables/layout/ChartDress.h"
#include "orvane/tables/layout/Palette.h"
#include "orvane/tables/layout/PieLayout.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

namespace orvane::tables {

using host::Single;

namespace {

using std::int16_t;

SliceStyle StyleOf(ShapeStyle style) {
  switch (style) {
    case ShapeStyle::Rounded:
      return SliceStyle::ROUNDED_SLICE;
    case ShapeStyle::Ring:
      return SliceStyle::RING_SLICE;
    case ShapeStyle::Outlined:
      break;
  }
  return SliceStyle::OUTLINED_SLICE;
}

/// Gives the slices their shares. The pie adds up their angles in 32 bits; each share is what takes
/// that sum to where the slice should end, so that roundings never add up.
void ShareOut(const PieGraph& chart, const std::vector<PieShare>& shares) {
  chart.GetSlice(1)->Percentage(1);
  const double fullTurn = chart.GetSlice(1)->Angle();
  double before = 0;
  float end = 0;
  for (std::size_t i = 0; i < shares.size(); ++i) {
    PieSliceInfo& slice = *chart.GetSlice(static_cast<int16_t>(i + 1));
    before += shares[i].part;
    const double part = shares[i].part > 0 ? before - end / fullTurn : 0;
    slice.Percentage(Single(std::clamp(part, 0.0, 1.0)));
    end += slice.Angle();
  }
}

void DressLabel(PieSliceInfo& slice, const PieLabel& label, const PieLayout& layout,
                const Style& style) {
  TextInfo& text = *slice.SliceTextProps();
  text.Text(label.text);
  text.TextHeight(Single(layout.textHeight));
  text.TextColor(style.ink);
  text.TextFont(VRMLFontFamily::VRML_SANS);
  FaceViewer(*text.BillboardNode());
  slice.TextPlacement({{0, label.distance}, {0, label.y}});
}

void DressSlices(PieGraph& chart, const PieLayout& layout, const ChartOptions& options,
                 const Style& style) {
  for (std::size_t i = 0; i < layout.heights.size(); ++i) {
    PieSliceInfo& slice = *chart.GetSlice(static_cast<int16_t>(i + 1));
    slice.Height(Single(layout.heights[i]));
    slice.Style(StyleOf(options.style));
    slice.Material()->diffuseColor.Value(SeriesColor(i));
    slice.LegendText(layout.legend[i]);
    DressLabel(slice, layout.labels[i], layout, style);
  }
}

void DressTexts(PieGraph& chart, const PieLayout& layout, bool useToggles, const Style& style) {
  chart.Placement() = layout.placement;
  DressTitle(*chart.TitleProps(), layout.title, layout.titleHeight, style);
  LegendInfo& legend = *chart.LegendProps();
  DressLegend(legend, layout.legendTextHeight, style);
  legend.UseSeriesToggle(useToggles);
}

void LightUp(PieGraph& chart, const PieLayout& layout) {
  const Point middle{0, layout.height / 2, 0};
  const double distance = 8 * std::hypot(layout.radius, layout.radius, layout.height);
  AddLights(chart, middle, distance);
  // There is no floor: the pie can be looked at from below.
  AddLight(chart, middle, distance, {0.2, -0.89, 0.41}, 0.4);
  CentreForExamining(chart, middle);
}

}  // namespace

std::shared_ptr<PieGraph> MakePieChart(const std::vector<PieShare>& shares,
                                       const ChartOptions& options) {
  const PieLayout layout = LayOutPie(shares, options);
  const Style style(options.background);
  auto chart = std::make_shared<PieGraph>();
  chart->radius(Single(layout.radius));
  chart->InnerRadius(Single(0.5 * layout.radius));
  chart->BevelRadius(Single(0.04 * layout.radius));
  chart->SliceCount(static_cast<int16_t>(shares.size()));
  chart->UseSpinAxis(options.useSpinAxis);
  if (options.sliceLabels == SliceLabels::Always) {
    chart->SliceTextDisplayStyle(SliceTextVisibility::SHOW_ALWAYS);
  }
  ShareOut(*chart, shares);
  DressSlices(*chart, layout, options, style);
  DressBackground(*chart, options.background);
  DressTexts(*chart, layout, options.useToggles, style);
  AddViews(*chart, ViewsOf(layout));
  LightUp(*chart, layout);
  return chart;
}

}  // namespace orvane::tables
