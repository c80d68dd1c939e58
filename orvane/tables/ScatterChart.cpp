#include "orvane/tables/ScatterChart.h"

#include "orvane/automation/Arithmetic.h"
#include "orvane/scene/SensorNodes.h"
#include "orvane/scene/frmMain.h"
#include "orvane/tables/layout/GridDress.h"
#include "orvane/tables/layout/Palette.h"
#include "orvane/tables/layout/Texts.h"
#include "orvane/tables/layout/ValueScale.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>
#include <numbers>
#include <utility>
#include <vector>

namespace orvane::tables {

using host::Single;

namespace {

using std::int16_t;

/// Labels of a slider begin this far from its middle, in scene units: a little farther than a chart
/// puts them, so that the knob does not hide their ends.
constexpr double kLabelClearance = 0.4;

bool IsAnimated(const PointTable& table, const ChartOptions& options) {
  return table.frames.size() > 1 && options.animation == AnimationStyle::VRML_ANALOG;
}

bool HasStarter(const PointTable& table, const ChartOptions& options) {
  return IsAnimated(table, options) && options.loop == LoopStyle::VRML_NO_LOOP;
}

bool HasSlider(const PointTable& table, const ChartOptions& options) {
  return table.frames.size() > 1 && options.animation == AnimationStyle::VRML_DISCRETE;
}

template <class F>
void ForEachPoint(const PointTable& table, F visit) {
  for (const PointFrame& frame : table.frames) {
    for (const PointRow& point : frame.points) visit(point);
  }
}

ValueScale ScaleOf(const PointTable& table, double PointRow::*coordinate) {
  constexpr int kMostSteps = 6;
  double lowest = std::numeric_limits<double>::infinity();
  double highest = -lowest;
  ForEachPoint(table, [&](const PointRow& point) {
    lowest = std::min(lowest, point.*coordinate);
    highest = std::max(highest, point.*coordinate);
  });
  return TightScale(lowest, highest, kMostSteps);
}

/// Where everything of a scatter chart is. Lengths are in scene units.
struct ScatterLayout {
  ValueAxes axes;
  GridLayout grid;
  double largestRadius = 0;
  double largestSize = 0;  ///< In the table, above 0 but for a table of zeros.

  LabelColumn frames;  ///< Labels of the slider.
  double sliderLength = 0;
  double starterSize = 0;
  ScatterPlacement placement;

  /// The point of the grid's frame that stands for `row`.
  Point PlaceOf(const PointRow& row) const {
    return {axes.x.Share(row.x) * grid.size.width, axes.y.Share(row.y) * grid.size.height,
            axes.z.Share(row.z) * grid.size.depth};
  }
  /// Volumes go with sizes, but no sphere is too small to be seen.
  double RadiusOf(const PointRow& row) const {
    constexpr double kLeast = 0.22;
    const double share = largestSize > 0 ? std::cbrt(row.size / largestSize) : 1;
    return largestRadius * std::max(share, kLeast);
  }
};

/// A slider of the length that its chart gives it lies in front of the grid, made smaller where it
/// is longer.
void LayOutSlider(ScatterLayout& layout, const PointTable& table) {
  const auto count = static_cast<double>(table.frames.size());
  const double width = layout.grid.size.width;
  const double labelHeight = layout.grid.xLabels.height;
  ScatterPlacement& placement = layout.placement;
  const double length = placement.sliderPitch * count * labelHeight;
  const double scale = std::min(1.0, width / length);
  placement.sliderX = {0.5, -scale * length / 2};
  placement.sliderZ = layout.grid.FrontEdge();
  placement.sliderScale = scale;
  // Labels stand within the slider's length, its steps at the ends as well: made larger by this
  // factor, the labels stand at their steps. Digits reach less far down than letters: a hair
  // higher, they stand in the middle.
  const double stretch = length / (length - labelHeight);
  const double lift = length / 2 * (1 - stretch) + 0.15 * labelHeight;
  placement.sliderLabels = {{0, kLabelClearance}, lift, stretch};
  layout.sliderLength = length;
  layout.frames.height = scale * stretch * labelHeight;
  for (const PointFrame& frame : table.frames) layout.frames.texts.push_back(Label(frame.name));
}

/// Large enough to be seen, and small enough that most of many points can be told apart.
double LargestRadius(const PointTable& table, const GridSize& size) {
  const double extent = std::min({size.width, size.height, size.depth});
  if (table.hasSizes) return 0.08 * extent;
  std::size_t mostPoints = 0;
  for (const PointFrame& frame : table.frames) {
    mostPoints = std::max(mostPoints, frame.points.size());
  }
  const double room = std::cbrt(static_cast<double>(size.width) * size.height * size.depth /
                                static_cast<double>(mostPoints));
  return std::clamp(0.12 * room, 0.006 * extent, 0.02 * extent);
}

ScatterLayout LayOutScatter(const PointTable& table, const ChartOptions& options) {
  ScatterLayout layout;
  ValueAxes& axes = layout.axes;
  axes.x = ScaleOf(table, &PointRow::x);
  axes.y = ScaleOf(table, &PointRow::y);
  axes.z = ScaleOf(table, &PointRow::z);
  axes.xHeader = ValueAxes::HeaderOf(table.xHeader, axes.x);
  axes.yHeader = ValueAxes::HeaderOf(table.yHeader, axes.y);
  axes.zHeader = ValueAxes::HeaderOf(table.zHeader, axes.z);
  layout.grid = LayOutValues(axes, table.groups, {9, 6, 9}, options, layout.placement);
  const GridLayout& grid = layout.grid;
  static_cast<GridPlacement&>(layout.placement) = grid.placement;

  layout.largestRadius = LargestRadius(table, grid.size);
  ForEachPoint(table, [&](const PointRow& point) {
    layout.largestSize = std::max(layout.largestSize, point.size);
  });
  if (HasSlider(table, options)) LayOutSlider(layout, table);
  if (HasStarter(table, options)) layout.starterSize = 1.5 * grid.textHeight;
  return layout;
}

Subject SubjectOf(const ScatterLayout& layout) {
  Subject subject = SubjectOf(layout.grid);
  if (layout.sliderLength > 0) {
    const double left = layout.placement.sliderX.Of(layout.grid.size.width);
    const double right = left + layout.placement.sliderScale * layout.sliderLength;
    const double end = layout.grid.FrontEdge() + kLabelClearance + layout.frames.Width();
    for (const double x : {left - layout.frames.height, right + layout.frames.height}) {
      subject.points.push_back({x, 0, end});
    }
  }
  if (layout.starterSize > 0) {
    subject.points.push_back(
        {layout.grid.size.width / 2, 0, layout.grid.FrontEdge() + layout.starterSize});
  }
  return subject;
}

HostColor ColorOf(const PointRow& point) { return point.color.value_or(SeriesColor(point.group)); }

void AddPoint(PointCollection& frame, const Point& place, const PointRow& look,
              const ScatterLayout& layout) {
  frame.AddPoint(Single(place.x), Single(place.y), Single(place.z), Single(layout.RadiusOf(look)),
                 ColorOf(look), 0);
}

/// Gives the first frame a sphere for each row that later frames have more: an animation moves the
/// spheres of the first frame, and these wait where its last one is.
void AddLatecomers(PointCollection& first, const PointTable& table, const ScatterLayout& layout) {
  const auto& start = table.frames.front().points;
  std::size_t count = start.size();
  for (const PointFrame& frame : table.frames) {
    for (; count < frame.points.size(); ++count) {
      AddPoint(first, layout.PlaceOf(start.back()), frame.points[count], layout);
    }
  }
}

void AddFrames(ScatterGraph& chart, const PointTable& table, const ScatterLayout& layout) {
  chart.PointFrameCount(static_cast<int16_t>(table.frames.size()));
  for (std::size_t i = 0; i < table.frames.size(); ++i) {
    PointCollection& frame = *chart.Get1PointFrame(static_cast<int16_t>(i + 1));
    for (const PointRow& point : table.frames[i].points) {
      AddPoint(frame, layout.PlaceOf(point), point, layout);
    }
    if (layout.sliderLength > 0) frame.Description(layout.frames.texts[i]);
  }
}

/// Starts an animation that does not loop: a flat cone that lies in front of the grid and points to
/// the right, as on a button that says "play".
void AddStarter(ScatterGraph& chart, const ScatterLayout& layout) {
  const double size = layout.starterSize;
  const auto cone = scene::Create<scene::Cone>();
  cone->height.Value(Single(size));
  cone->bottomRadius.Value(Single(size / 2));
  const auto material = scene::Create<scene::Material>();
  material->diffuseColor.Value(SeriesColor(0));
  const auto appearance = scene::Create<scene::Appearance>();
  appearance->material.Value(material);
  const auto shape = scene::Create<scene::Shape>();
  shape->geometry.Value(cone);
  shape->appearance.Value(appearance);
  const auto sensor = scene::Create<scene::TouchSensor>();
  sensor->SetDefName("START");

  const auto starter = scene::Create<scene::Transform>();
  starter->children.Append(sensor);
  starter->children.Append(shape);
  starter->rotation.SetFromAngles(0, 0, Single(-std::numbers::pi / 2));
  constexpr double kFlatness = 0.3;  // The cone's own x points down.
  starter->scale.X(Single(kFlatness));
  starter->translation.X(Single(layout.grid.size.width / 2));
  starter->translation.Y(Single(kFlatness * size / 2));
  starter->translation.Z(Single(layout.grid.FrontEdge() + size / 2));
  chart.RootNode()->children.Append(starter);
  chart.ExtraRoutes().AddRoute(sensor, "touchTime", chart.TimeKeeper(), "set_startTime");
}

}  // namespace

std::shared_ptr<ScatterGraph> MakeScatterChart(const PointTable& table,
                                               const ChartOptions& options) {
  auto chart = std::make_shared<ScatterGraph>();
  const ScatterLayout layout = LayOutScatter(table, options);
  const Style style(options.background);
  DressValueGrid(*chart->GridProps(), layout.axes, layout.grid, style);
  DressValueAxes(*chart->XAxisProps(), *chart->YAxisProps(), *chart->ZAxisProps(), layout.axes,
                 layout.grid, style);
  for (std::size_t i = 0; i < table.groups.size(); ++i) {
    chart->LegendProps()->AddLegendEntry(SeriesColor(i), layout.grid.legend.texts[i]);
  }
  chart->LegendProps()->KeyStyle(LegendKeyStyle::SPHERE_STYLE);
  chart->Placement() = layout.placement;
  DressAroundGrid(*chart, *chart->LegendProps(), layout.grid, SubjectOf(layout), options);

  AddFrames(*chart, table, layout);
  if (IsAnimated(table, options)) AddLatecomers(*chart->Get1PointFrame(1), table, layout);
  chart->PointAnimationStyle(options.animation);
  chart->AnimationLoopStyle(options.loop);
  chart->FrameTimeGap(options.frameSeconds);
  if (layout.starterSize > 0) AddStarter(*chart, layout);
  return chart;
}

}  // namespace orvane::tables
