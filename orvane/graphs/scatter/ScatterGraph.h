/// The scatter chart: free points in a box with three value axes, still or animated.
#pragma once

#include "orvane/components/ContinuousAxis.h"
#include "orvane/components/DrillUpInfo.h"
#include "orvane/components/GridInfo.h"
#include "orvane/graphs/Chart.h"
#include "orvane/graphs/GridPlacement.h"
#include "orvane/graphs/SeriesCollection.h"
#include "orvane/graphs/scatter/PointCollection.h"
#include "orvane/graphs/scatter/ScatterLegendInfo.h"
#include "orvane/graphs/scatter/SliderInfo.h"
#include "orvane/scene/SensorNodes.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

namespace orvane {

/// How the world goes from one point frame to the next.
enum class AnimationStyle : std::int32_t {
  VRML_ANALOG = 0,   ///< The points of the first frame move through the places of all frames.
  VRML_DISCRETE = 1  ///< One whole frame at a time is shown; a slider picks it.
};

/// What an animation does when it has reached the last frame.
enum class LoopStyle : std::int32_t {
  VRML_LOOP_CONTINUOUS = 0,  ///< It moves on to the first frame.
  VRML_LOOP_BREAK = 1,       ///< It jumps to the first frame.
  VRML_BACK_AND_FORTH = 2,   ///< It goes back through the frames, and forth again.
  VRML_NO_LOOP = 3           ///< It stops; it begins when "TIME_KEEPER" is sent a start time.
};

/// What a scatter chart places its parts by, in the grid's frame.
struct ScatterPlacement : GridPlacement {
  ScatterPlacement() { xAxis.edge = {0.05}; }

  /// The slider's first step, of the grid's width. Its z stays as it is where left out.
  Length sliderX{1.1};
  std::optional<double> sliderZ;
  double sliderScale = 1;    ///< The slider's size, its labels included, as a factor.
  double sliderPitch = 1.5;  ///< From one step of the slider to the next, in label heights.
  SliderLabelPlacement sliderLabels;
};

/// The grid stands in the box (0, 0, 0) to (Width, Height, Depth), and points are given in its
/// frame. With one frame the chart is still; a chart without any cannot be written in the analog
/// style, nor can an animation through more than 2^24 places: that raises Overflow.
class ORVANE_API ScatterGraph final : public Chart {
 public:
  static constexpr const char* kClassName = "ScatterGraph";
  const host::TypeInfo& Type() const override;

  ScatterGraph();

  std::shared_ptr<GridInfo> GridProps() const { return m_grid; }
  std::shared_ptr<ContinuousAxis> XAxisProps() const { return m_xAxis; }
  std::shared_ptr<ContinuousAxis> YAxisProps() const { return m_yAxis; }
  std::shared_ptr<ContinuousAxis> ZAxisProps() const { return m_zAxis; }
  std::shared_ptr<ScatterLegendInfo> LegendProps() const { return m_legend; }
  std::shared_ptr<DrillUpInfo> DrillUpProps() const { return m_drillUp; }

  /// Frame `index`, 1..PointFrameCount; a component error otherwise.
  std::shared_ptr<PointCollection> Get1PointFrame(std::int16_t index) const;
  /// Number of frames. A let, 1 or more, adds empty frames or removes trailing ones. 0 at first.
  std::int16_t PointFrameCount() const { return m_frames->Count(); }
  void PointFrameCount(std::int16_t count);

  /// Seconds from one frame to the next, >= 1 and finite. Default 1.
  double FrameTimeGap() const { return m_frameTimeGap; }
  void FrameTimeGap(double seconds);
  /// Unchecked; other values count as VRML_NO_LOOP, the default.
  LoopStyle AnimationLoopStyle() const { return m_loopStyle; }
  void AnimationLoopStyle(LoopStyle style) { m_loopStyle = style; }
  /// Unchecked; values other than VRML_ANALOG, the default, count as VRML_DISCRETE.
  AnimationStyle PointAnimationStyle() const { return m_animationStyle; }
  void PointAnimationStyle(AnimationStyle style) { m_animationStyle = style; }
  /// Whether the drill-up cone is in the scene. Default false.
  bool UseDrillUp() const { return m_usesDrillUp; }
  void UseDrillUp(bool use) { m_usesDrillUp = use; }

  /// Where the parts stand from the next export on, for C++.
  ScatterPlacement& Placement() { return m_placement; }
  /// The slider that the discrete style shows, for C++. Each export sets it anew.
  std::shared_ptr<SliderInfo> FrameSlider() const { return m_slider; }
  /// The clock of a smooth animation, for C++; it starts when its startTime is set.
  std::shared_ptr<scene::TimeSensor> TimeKeeper() const { return m_timer; }

 private:
  void Arrange() override;
  /// Takes out what an earlier export has put into the scene.
  void ClearAway();
  void BuildFrameSwitch();
  void BuildFrameSlider();
  void BuildAnimation();

  /// Indexes of the frames that one cycle of the animation passes, in order.
  std::vector<std::int16_t> FrameSequence() const;
  /// Gives the interpolator the points of `frames` and the time of each in the cycle.
  void FillInterpolator(const std::vector<std::int16_t>& frames);

  std::shared_ptr<GridInfo> m_grid;
  std::shared_ptr<ContinuousAxis> m_xAxis;
  std::shared_ptr<ContinuousAxis> m_yAxis;
  std::shared_ptr<ContinuousAxis> m_zAxis;
  std::shared_ptr<SeriesCollection> m_frames;
  std::shared_ptr<ScatterLegendInfo> m_legend;
  std::shared_ptr<SliderInfo> m_slider;
  std::shared_ptr<DrillUpInfo> m_drillUp;
  std::shared_ptr<scene::Group> m_contents;
  std::shared_ptr<scene::Group> m_sensors;
  std::shared_ptr<scene::CoordinateInterpolator> m_locationInterpolator;
  std::shared_ptr<scene::TimeSensor> m_timer;
  std::shared_ptr<scene::Switch> m_frameSwitch;
  ScatterPlacement m_placement;
  double m_frameTimeGap = 1;
  AnimationStyle m_animationStyle = AnimationStyle::VRML_ANALOG;
  LoopStyle m_loopStyle = LoopStyle::VRML_NO_LOOP;
  bool m_usesDrillUp = false;
};

}  // namespace orvane

namespace orvane::host {

template <>
ORVANE_API const EnumInfo& Enumeration<AnimationStyle>();
template <>
ORVANE_API const EnumInfo& Enumeration<LoopStyle>();

}  // namespace orvane::host
