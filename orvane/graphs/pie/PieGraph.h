/// The pie chart.
#pragma once

#include "orvane/components/DrillUpInfo.h"
#include "orvane/components/LegendInfo.h"
#include "orvane/components/Placement.h"
#include "orvane/graphs/Chart.h"
#include "orvane/graphs/LegendWiring.h"
#include "orvane/graphs/SeriesCollection.h"
#include "orvane/graphs/pie/PieSliceInfo.h"
#include "orvane/graphs/pie/PieSpinAxisInfo.h"

#include <cstdint>
#include <memory>
#include <optional>

namespace orvane {

enum class SliceTextVisibility : std::int32_t { SHOW_ON_TOUCH = 0, SHOW_ALWAYS = 1 };

/// What a pie places its title and legend by.
struct PiePlacement {
  /// The title's height, of the tallest slice's. Its z stays as it is where left out.
  Length titleY{2};
  std::optional<double> titleZ;
  Length legendX{1.4};  ///< Of the pie's radius.
  Length legendY{0.2};  ///< Of the tallest slice's height.
};

/// Slices round the origin on the XZ plane, the first one from +X on, each following in the
/// negative sense of rotation about +Y. A viewer can pull each out of the pie.
class ORVANE_API PieGraph final : public Chart {
 public:
  static constexpr const char* kClassName = "PieGraph";
  const host::TypeInfo& Type() const override;

  /// A pie without slices.
  PieGraph();

  std::shared_ptr<LegendInfo> LegendProps() const { return m_legend; }
  /// Slice `index`, 1..SliceCount; a component error otherwise.
  std::shared_ptr<PieSliceInfo> GetSlice(std::int16_t index) const;

  /// Of all slices, those to come included, in scene units, > 0. Default 3.
  float radius() const { return m_radius; }
  void radius(float value);
  /// Of all ring slices, in scene units, > 0. Default 1.5; not held against the radius.
  float InnerRadius() const { return m_innerRadius; }
  void InnerRadius(float radius);
  /// Rounding of the edges of all rounded and ring slices, in scene units, > 0. Default 0.2.
  float BevelRadius() const { return m_bevelRadius; }
  void BevelRadius(float radius);

  /// When the texts of the slices are shown. Default SHOW_ON_TOUCH; not checked. It shows at the
  /// next export.
  SliceTextVisibility SliceTextDisplayStyle() const { return m_textVisibility; }
  void SliceTextDisplayStyle(SliceTextVisibility visibility) { m_textVisibility = visibility; }

  /// Number of slices, >= 0. Default 0. A lower number drops the last ones.
  std::int16_t SliceCount() const { return m_slices->Count(); }
  void SliceCount(std::int16_t count);

  /// Whether there is an axis by which viewers turn the pie. Default false. A pie without slices
  /// has no height, and cannot be exported with an axis.
  bool UseSpinAxis() const { return m_spinAxis->UseSpinAxis(); }
  void UseSpinAxis(bool use) { m_spinAxis->UseSpinAxis(use); }
  /// Whether a cone above the pie loads another world. Default false.
  bool UseDrillUp() const { return m_usesDrillUp; }
  void UseDrillUp(bool use);
  std::shared_ptr<DrillUpInfo> DrillUpProps() const { return m_drillUp; }

  /// Where title and legend stand from the next export on, for C++.
  PiePlacement& Placement() { return m_placement; }

 protected:
  void Arrange() override;

 private:
  std::shared_ptr<PieSliceInfo> Slice(std::int16_t index) const {
    return m_slices->Get<PieSliceInfo>(index);
  }
  /// Height of the tallest slice; 0 without slices.
  float MaxHeight() const;
  void AlignTitle();
  void AlignLegend();
  void BuildSlices();
  void WireSlice(PieSliceInfo& slice, std::int16_t number, LegendWiring& legend);
  void WireSliceText(PieSliceInfo& slice, std::int16_t number);
  void WireSpinAxis();
  void AlignDrillUp();

  std::shared_ptr<PieSpinAxisInfo> m_spinAxis;
  std::shared_ptr<LegendInfo> m_legend;
  std::shared_ptr<SeriesCollection> m_slices;
  std::shared_ptr<DrillUpInfo> m_drillUp;
  std::shared_ptr<scene::Transform> m_pie;
  std::shared_ptr<scene::Transform> m_drillUpHolder;
  PiePlacement m_placement;
  float m_radius = 3;
  float m_innerRadius = 1.5F;
  float m_bevelRadius = 0.2F;
  SliceTextVisibility m_textVisibility = SliceTextVisibility::SHOW_ON_TOUCH;
  bool m_usesDrillUp = false;
};

}  // namespace orvane

namespace orvane::host {

template <>
ORVANE_API const EnumInfo& Enumeration<SliceTextVisibility>();

}  // namespace orvane::host
