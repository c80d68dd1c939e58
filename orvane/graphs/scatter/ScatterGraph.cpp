#include "orvane/graphs/scatter/ScatterGraph.h"

#include "orvane/automation/Arithmetic.h"
#include "orvane/automation/AutomationError.h"
#include "orvane/graphs/DescribeChart.h"
#include "orvane/scene/frmMain.h"

#include <algorithm>
#include <cmath>
#include <string>

namespace orvane {

using host::Int16;
using host::Single;

namespace {

/// DEF name of the spheres that an animation moves.
constexpr const char* kMovedPoints = "POINT_COLLECTION";

/// Seconds that a TimeSensor's cycle takes by default.
constexpr double kIdleCycle = 1;

/// The most places that an animation may pass: its lists take less than a gigabyte.
constexpr std::size_t kMostPlaces = 1 << 24;

}  // namespace

const host::TypeInfo& ScatterGraph::Type() const {
  using Graph = ScatterGraph;
  static const host::TypeInfo type =
      host::Describe<Graph>("Free points in a box with three value axes, still or animated.")
          .Property<std::shared_ptr<BackgroundInfo>>("BackgroundProps", &Graph::BackgroundProps,
                                                     {"The sky"})
          .Property<std::shared_ptr<TextInfo>>("TitleProps", &Graph::TitleProps, {"The title"})
          .Property<std::shared_ptr<GridInfo>>("GridProps", &Graph::GridProps,
                                               {"The box of grid lines and walls"})
          .Property<std::shared_ptr<ContinuousAxis>>("XAxisProps", &Graph::XAxisProps,
                                                     {"The axis along X"})
          .Property<std::shared_ptr<ContinuousAxis>>("YAxisProps", &Graph::YAxisProps,
                                                     {"The axis along Y"})
          .Property<std::shared_ptr<ContinuousAxis>>("ZAxisProps", &Graph::ZAxisProps,
                                                     {"The axis along Z"})
          .Property<std::shared_ptr<ScatterLegendInfo>>("LegendProps", &Graph::LegendProps,
                                                        {"The legend"})
          .Method("Get1PointFrame", &Graph::Get1PointFrame,
                  {{"Index", host::UpTo("PointFrameCount")}}, {"One point frame"})
          .Property<std::int16_t>(
              "PointFrameCount", &Graph::PointFrameCount, &Graph::PointFrameCount,
              {"Number of point frames; a let adds empty ones or removes trailing ones", "",
               host::kAtLeastOne})
          .Property<double>("FrameTimeGap", &Graph::FrameTimeGap, &Graph::FrameTimeGap,
                            {"Time from one frame to the next", "seconds", host::kAtLeastOne})
          .Property<LoopStyle>("AnimationLoopStyle", &Graph::AnimationLoopStyle,
                               &Graph::AnimationLoopStyle,
                               {"What an animation does after the last frame"})
          .Property<AnimationStyle>(
              "PointAnimationStyle", &Graph::PointAnimationStyle, &Graph::PointAnimationStyle,
              {"Whether points move from frame to frame, or a slider picks the frame"})
          .With(DescribeDrillUp<Graph>)
          .With(DescribeViews<Graph>)
          .With(DescribeExport<Graph>);
  return type;
}

ScatterGraph::ScatterGraph()
    : m_grid(std::make_shared<GridInfo>()),
      m_xAxis(std::make_shared<ContinuousAxis>()),
      m_yAxis(std::make_shared<ContinuousAxis>()),
      m_zAxis(std::make_shared<ContinuousAxis>()),
      m_frames(std::make_shared<SeriesCollection>()),
      m_legend(std::make_shared<ScatterLegendInfo>()),
      m_slider(std::make_shared<SliderInfo>()),
      m_drillUp(std::make_shared<DrillUpInfo>()),
      m_contents(scene::Create<scene::Group>()),
      m_sensors(scene::Create<scene::Group>()),
      m_locationInterpolator(scene::Create<scene::CoordinateInterpolator>()),
      m_timer(scene::Create<scene::TimeSensor>()),
      m_frameSwitch(scene::Create<scene::Switch>()) {
  m_locationInterpolator->SetDefName("LOC_INT");
  m_timer->SetDefName("TIME_KEEPER");
  m_frameSwitch->SetDefName("FRAME_SWITCH");
  m_sensors->children.Append(m_locationInterpolator);
  m_sensors->children.Append(m_timer);
  Assemble({BackgroundProps().get(), TitleProps().get(), m_grid.get(), m_xAxis.get(), m_yAxis.get(),
            m_zAxis.get(), Viewpoints().get(), Lights().get()});
  RootNode()->children.Append(m_contents);
}

std::shared_ptr<PointCollection> ScatterGraph::Get1PointFrame(std::int16_t index) const {
  return m_frames->Get<PointCollection>(index);
}

void ScatterGraph::PointFrameCount(std::int16_t count) {
  host::Require(count >= 1, "There must be at least one point frame in the scene");
  m_frames->Resize(count, [] { return std::make_shared<PointCollection>(); });
}

void ScatterGraph::FrameTimeGap(double seconds) {
  host::Require(seconds >= 1, "The frame time gap must take at least 1 second");
  if (std::isinf(seconds)) {
    throw host::AutomationError(host::ErrorNumber::Overflow,
                                "Overflow: the frame time gap must be finite");
  }
  m_frameTimeGap = seconds;
}

void ScatterGraph::Arrange() {
  ClearAway();
  PlaceTitle(*TitleProps(), *m_grid, m_placement);
  PlaceXAxis(*m_xAxis, *m_grid, m_placement.xAxis);
  PlaceYAxis(*m_yAxis, *m_grid, m_placement.yAxis);
  PlaceZAxis(*m_zAxis, *m_grid, m_placement.zAxis);
  PlaceLegend(*m_legend->Root(), *m_grid, m_placement);
  Assemble({m_legend.get()});
  if (m_usesDrillUp) {
    PlaceDrillUp(*m_drillUp, *m_grid);
    Assemble({m_drillUp.get()});
  }
  if (m_animationStyle == AnimationStyle::VRML_ANALOG) {
    BuildAnimation();
  } else {
    BuildFrameSwitch();
    BuildFrameSlider();
  }
}

void ScatterGraph::ClearAway() {
  Detach({m_legend.get(), m_drillUp.get(), m_slider.get()});
  m_contents->children.Clear();
  m_frameSwitch->choice.Clear();
  m_locationInterpolator->key.Clear();
  m_locationInterpolator->keyValue.Clear();
  m_timer->cycleInterval.Value(kIdleCycle);
  if (PointFrameCount() == 0) return;
  const auto spheres = Get1PointFrame(1)->SphereCollectionNode();
  if (spheres->DefName() == kMovedPoints) spheres->SetDefName("");
}

void ScatterGraph::BuildFrameSwitch() {
  for (const std::int16_t i : Indexes(PointFrameCount())) {
    m_frameSwitch->choice.Append(Get1PointFrame(i)->RootNode());
  }
  m_frameSwitch->whichChoice.Value(0);
  m_contents->children.Append(m_frameSwitch);
}

void ScatterGraph::BuildFrameSlider() {
  const std::int16_t count = PointFrameCount();
  if (count < 2) return;
  const float labelHeight = m_xAxis->LabelHeight();
  m_slider->LabelColor(TitleProps()->TextColor());
  m_slider->LabelHeight(labelHeight);
  m_slider->SliderOrientation(SliderAlignment::ZERO_AT_TOP);
  m_slider->SliderMin(0);
  m_slider->SliderMax(Int16(count - 1));
  m_slider->Labels().Clear();
  for (const std::int16_t i : Indexes(count)) {
    const auto description = Get1PointFrame(i)->Description();
    m_slider->Labels().Append(description.empty() ? "Point frame " + std::to_string(i)
                                                  : description);
  }
  const float textLength = Single(static_cast<double>(labelHeight) * count);
  m_slider->SliderLength(Single(textLength * m_placement.sliderPitch));
  m_slider->SliderRadius(0.2F);
  m_slider->TextAlignment(SliderTextAlignment::RIGHT_ALIGN_TEXT);
  m_slider->LabelPlacement() = m_placement.sliderLabels;
  m_slider->AlignSlider();

  // On the floor, from the first frame on to the right.
  auto& root = *m_slider->Root();
  const double scale = m_placement.sliderScale;
  root.translation.X(
      Single(m_placement.sliderX.Of(m_grid->Width()) + scale * m_slider->SliderLength()));
  if (m_placement.sliderZ) root.translation.Z(Single(*m_placement.sliderZ));
  ScaleBy(root, scale);
  root.rotation.SetFromAngles(-kQuarterTurn, kQuarterTurn, 0);
  Assemble({m_slider.get()});
  Routes().AddRoute(m_slider->SliderNode(), "value_changed", m_frameSwitch, "set_whichChoice");
}

void ScatterGraph::BuildAnimation() {
  const auto first = Get1PointFrame(1);
  if (PointFrameCount() >= 2) {
    const auto frames = FrameSequence();
    FillInterpolator(frames);
    m_timer->cycleInterval.Value(static_cast<double>(frames.size() - 1) * m_frameTimeGap);
    const auto spheres = first->SphereCollectionNode();
    spheres->SetDefName(kMovedPoints);
    Routes().AddRoute(m_timer, "fraction_changed", m_locationInterpolator, "set_fraction");
    Routes().AddRoute(m_locationInterpolator, "value_changed", spheres, "set_locations");
  }
  const bool isEndless = m_loopStyle == LoopStyle::VRML_LOOP_CONTINUOUS ||
                         m_loopStyle == LoopStyle::VRML_LOOP_BREAK ||
                         m_loopStyle == LoopStyle::VRML_BACK_AND_FORTH;
  m_timer->loop.Value(isEndless);
  m_contents->children.Append(m_sensors);
  m_contents->children.Append(first->RootNode());
}

std::vector<std::int16_t> ScatterGraph::FrameSequence() const {
  const std::int16_t count = PointFrameCount();
  std::vector<std::int16_t> frames = Indexes(count);
  if (m_loopStyle == LoopStyle::VRML_LOOP_CONTINUOUS) frames.push_back(1);
  if (m_loopStyle == LoopStyle::VRML_BACK_AND_FORTH) {
    for (std::int16_t i = Int16(count - 1); i >= 1; --i) frames.push_back(i);
  }
  return frames;
}

void ScatterGraph::FillInterpolator(const std::vector<std::int16_t>& frames) {
  std::size_t mostPoints = 0;
  for (const std::int16_t i : Indexes(PointFrameCount())) {
    mostPoints = std::max(mostPoints, Get1PointFrame(i)->Locations().size());
  }

  if (frames.size() * mostPoints > kMostPlaces) {
    throw host::AutomationError(host::ErrorNumber::Overflow,
                                "Overflow: an animation of " + std::to_string(frames.size()) +
                                    " frames of " + std::to_string(mostPoints) +
                                    " points does not fit in memory");
  }

  // All keys need as many points: a frame with fewer repeats the last point that there was. The
  // last key is 0.99, so that a cycle ends with a moment of rest.
  const bool isSummed = m_loopStyle == LoopStyle::VRML_LOOP_CONTINUOUS ||
                        m_loopStyle == LoopStyle::VRML_BACK_AND_FORTH;
  const float step = Single(0.99 / static_cast<double>(frames.size() - 1));
  float sum = 0;
  scene::Vec3f last;
  auto& points = m_locationInterpolator->keyValue;
  for (std::size_t j = 0; j < frames.size(); ++j) {
    const auto& locations = Get1PointFrame(frames[j])->Locations();
    for (std::size_t i = 0; i < mostPoints; ++i) {
      if (i < locations.size()) last = locations[i];
      points.Append(last.x, last.y, last.z);
    }
    m_locationInterpolator->key.Append(isSummed ? sum : static_cast<float>(j) * step);
    sum += step;
  }
}

}  // namespace orvane

namespace orvane::host {

template <>
const EnumInfo& Enumeration<AnimationStyle>() {
  static const EnumInfo info("AnimationStyle", {{"VRML_ANALOG", 0}, {"VRML_DISCRETE", 1}});
  return info;
}

template <>
const EnumInfo& Enumeration<LoopStyle>() {
  static const EnumInfo info("LoopStyle", {{"VRML_LOOP_CONTINUOUS", 0},
                                           {"VRML_LOOP_BREAK", 1},
                                           {"VRML_BACK_AND_FORTH", 2},
                                           {"VRML_NO_LOOP", 3}});
  return info;
}

}  // namespace orvane::host
