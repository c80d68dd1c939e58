#include "GridChart.h"

#include "Palette.h"

#include "orvane/control/OrvaneScaler.h"
#include "orvane/scene/ViewNodes.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <memory>
#include <string>

namespace orvane::tool {
namespace {

using std::int16_t;

constexpr HostColor kDark = 0x40342B;
constexpr HostColor kLight = 0xFAF6F2;
constexpr HostColor kWhite = 0xFFFFFF;

/// The colours of everything but the series, derived from the background so that they go with it.
struct Style {
  explicit Style(HostColor background) {
    const bool isLight = Contrast(background, kDark) > Contrast(background, kLight);
    ink = isLight ? kDark : kLight;
    wall = Mix(background, ink, isLight ? 0.24 : 0.12);
    line = Mix(background, ink, 0.4);
  }

  HostColor ink;
  HostColor wall;
  HostColor line;
};

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

/// Moves all that hangs in `children` by (x, y) in their common frame.
void Move(scene::MFNode& children, double x, double y) {
  const auto shift = std::make_shared<scene::Transform>();
  shift->translation.X(Single(x));
  shift->translation.Y(Single(y));
  children.CopyTo(shift->children);
  children.Clear();
  children.Append(shift);
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
  grid.LineColor(style.line);
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

/// A billboard that faces the viewer also from above.
void FaceViewer(const std::shared_ptr<scene::Node>& billboard) {
  const auto node = std::dynamic_pointer_cast<scene::Billboard>(billboard);
  node->axisOfRotation.Y(0);
}

void DressTitleAndLegend(GridGraph& chart, const GridLayout& layout, const ChartOptions& options,
                         const Style& style) {
  TextInfo& title = *chart.TitleProps();
  title.Text(layout.title);
  title.TextHeight(Single(layout.titleHeight));
  title.TextColor(style.ink);
  title.TextFont(VRMLFontFamily::VRML_SANS);
  title.TextStyle(VRMLFontStyle::VRML_BOLD);
  title.Root()->translation.Z(Single(layout.titleZ));
  title.IsBillboarded(true);
  FaceViewer(title.Root()->children.Item(1));
  Move(title.Root()->children, 0, layout.titleLift);

  LegendInfo& legend = *chart.LegendProps();
  legend.TextHeight(Single(layout.legend.height));
  legend.TextColor(style.ink);
  legend.IsBillboarded(true);
  FaceViewer(legend.BillboardNode());
  legend.UseSeriesToggle(options.useToggles);
}

void AddViews(GridGraph& chart, const GridLayout& layout) {
  for (const View& view : ViewsOf(SubjectOf(layout))) {
    scene::Viewpoint& viewpoint = *chart.Viewpoints()->AddViewpoint();
    viewpoint.description.Value(view.description);
    viewpoint.position.X(Single(view.position.x));
    viewpoint.position.Y(Single(view.position.y));
    viewpoint.position.Z(Single(view.position.z));
    viewpoint.fieldOfView.Value(Single(kFieldOfView));
    viewpoint.orientation.SetFromAngles(Single(view.pitch), Single(view.yaw), 0);
  }
}

/// Lights that stay with the chart, so that no side of it is ever black, as the sides that a
/// headlight only grazes would be. Front faces and tops get the most, the left and the back the
/// least.
void AddLights(GridGraph& chart, const GridLayout& layout) {
  struct Light {
    Point direction;
    double intensity;
  };
  constexpr Light kLights[] = {{{0.35, 0.62, 0.70}, 0.85},
                               {{-0.70, 0.35, 0.62}, 0.35},
                               {{0.90, 0.20, -0.39}, 0.4},
                               {{-0.30, 0.30, -0.90}, 0.45}};
  const auto [width, height, depth] = layout.size;
  const double distance = 4 * std::hypot(width, height, depth);
  chart.Lights()->UseHeadlight(false);
  for (const auto& [direction, intensity] : kLights) {
    scene::PointLight& light = *chart.Lights()->AddLightSource();
    light.location.X(Single(width / 2 + distance * direction.x));
    light.location.Y(Single(height / 2 + distance * direction.y));
    light.location.Z(Single(depth / 2 + distance * direction.z));
    light.radius.Value(Single(2 * distance));
    light.intensity.Value(Single(intensity));
    light.ambientIntensity.Value(Single(0.4 * intensity));
  }
}

/// Lets viewers turn the chart about its middle rather than walk through it.
void CentreForExamining(GridGraph& chart, const GridLayout& layout) {
  auto& translation = chart.RootNode()->translation;
  translation.X(-layout.size.width / 2);
  translation.Y(-layout.size.height / 2);
  translation.Z(-layout.size.depth / 2);

  const auto lights = std::dynamic_pointer_cast<scene::Group>(chart.Lights()->RootNode());
  const auto navigation =
      std::dynamic_pointer_cast<scene::NavigationInfo>(lights->children.Item(1));
  navigation->type.Clear();
  navigation->type.Append("EXAMINE");
  navigation->type.Append("ANY");
}

}  // namespace

void DressGridChart(CategoryGraph& chart, const GridLayout& layout, const ChartOptions& options) {
  const Style style(options.background);
  chart.BackgroundProps()->BackgroundColor(options.background);
  chart.BackgroundProps()->UseBackgroundColorFade(false);
  DressGrid(chart, layout, style);
  DressAxes(chart, layout, style);
  DressTitleAndLegend(chart, layout, options, style);
  AddViews(chart, layout);
  AddLights(chart, layout);
  CentreForExamining(chart, layout);
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
  popups.TextColor(kDark);
  popups.BackgroundColor(kWhite);
  popups.BorderColor(Mix(kDark, kWhite, 0.5));
  popups.TextHeight(Single(0.9 * layout.textHeight));
  popups.UsePopups(options.usePopups);
}

}  // namespace orvane::tool
