/// One slice of a pie.
#pragma once

#include "orvane/automation/Enumeration.h"
#include "orvane/automation/Object.h"
#include "orvane/components/DrillUpInfo.h"
#include "orvane/components/ISceneRoot.h"
#include "orvane/components/Placement.h"
#include "orvane/components/TextInfo.h"
#include "orvane/graphs/SeriesCollection.h"
#include "orvane/scene/GraphProtos.h"
#include "orvane/scene/SensorNodes.h"
#include "orvane/scene/ShapeNodes.h"
#include "orvane/scene/UiProtos.h"

#include <cstdint>
#include <memory>
#include <string>

namespace orvane {

enum class SliceStyle : std::int32_t { OUTLINED_SLICE = 0, ROUNDED_SLICE = 1, RING_SLICE = 2 };

/// Where the text of a slice stands.
struct SliceTextPlacement {
  Length distance{1};  ///< From the slice's axis, of its radius.
  Length height{1.1};  ///< Of the baseline above the floor, of the slice's height.
};

/// A sector of the full turn on the XZ plane, with a text above its rim and on demand a cone that
/// sticks out of its side. Every let writes the shapes of all styles, so that changing the style
/// keeps every size.
///
/// In the frame of its inner transform the sector runs from local +X to -Angle about +Y.
class ORVANE_API PieSliceInfo final : public host::Object,
                                      public ISeriesInfo,
                                      public RootedAt<scene::Transform> {
 public:
  static constexpr const char* kClassName = "PieSliceInfo";
  const host::TypeInfo& Type() const override;

  PieSliceInfo();

  /// Share of the full turn, 0..1. Default 0.2. Nothing makes the slices of a pie add up to 1.
  float Percentage() const { return m_percentage; }
  void Percentage(float share);
  /// Extent along Y in scene units, > 0. Default 1.
  float Height() const { return m_rounded->height.Value(); }
  void Height(float height);
  /// Colours and transparency of the slice.
  std::shared_ptr<scene::Material> Material() const { return m_material; }
  /// Text of the legend entry. Default "".
  std::string LegendText() const { return m_legendText; }
  void LegendText(const std::string& text) { m_legendText = text; }
  /// The shape that is shown. Default OUTLINED_SLICE; values outside the enumeration are ignored.
  SliceStyle Style() const { return m_style; }
  void Style(SliceStyle style);
  /// The text above the rim, at the middle of the sector.
  std::shared_ptr<TextInfo> SliceTextProps() const { return m_text; }
  /// Whether the slice has a cone that loads another world. Default false.
  bool UseDrillDown() const { return m_usesDrillDown; }
  void UseDrillDown(bool use);
  std::shared_ptr<DrillUpInfo> DrillDownProps() const { return m_drillDown; }
  /// Whether the slice has a legend entry, and with it a toggle. Default true.
  bool ShowInLegend() const { return m_showInLegend; }
  void ShowInLegend(bool show) { m_showInLegend = show; }

  /// Of the sector, in radians.
  float Angle() const { return m_rounded->angle.Value(); }
  /// Rounding of the edges of rounded and ring slices in scene units, > 0.
  float BevelRadius() const { return m_rounded->bevelRadius.Value(); }
  void BevelRadius(float radius);
  /// Drags the slice along its local x.
  std::shared_ptr<scene::PlaneSensor> PlaneSensorNode() const { return m_sensor; }
  /// Shows the slice with all that belongs to it.
  std::shared_ptr<scene::ContentToggle> ContentToggleNode() const { return m_toggle; }
  /// Shows the text of the slice.
  std::shared_ptr<scene::ContentToggle> SliceTextToggleNode() const { return m_textToggle; }
  /// What dragging moves.
  std::shared_ptr<scene::Transform> InnerTransformNode() const { return m_inner; }
  /// Outer radius in scene units, > 0.
  float radius() const { return m_rounded->radius.Value(); }
  void radius(float value);
  /// Inner radius of ring slices in scene units, >= 0; not held against the outer one.
  float InnerRadius() const { return m_ring->innerRadius.Value(); }
  void InnerRadius(float radius);
  /// Where the text stands, for C++.
  const SliceTextPlacement& TextPlacement() const { return m_textPlacement; }
  void TextPlacement(const SliceTextPlacement& placement);
  std::shared_ptr<scene::Appearance> Appearance() const { return m_appearance; }

 private:
  /// The shape of `style`; nullptr outside the enumeration.
  std::shared_ptr<scene::Node> ShapeOf(SliceStyle style) const;
  void FillToggle(const std::shared_ptr<scene::Node>& shape);

  std::shared_ptr<TextInfo> m_text;
  SliceTextPlacement m_textPlacement;
  std::shared_ptr<DrillUpInfo> m_drillDown;
  std::shared_ptr<scene::Transform> m_inner;
  std::shared_ptr<scene::Transform> m_drillDownTransform;
  std::shared_ptr<scene::PlaneSensor> m_sensor;
  std::shared_ptr<scene::OutlinedPieSlice> m_outlined;
  std::shared_ptr<scene::RoundedPieSlice> m_rounded;
  std::shared_ptr<scene::RoundedRingSlice> m_ring;
  std::shared_ptr<scene::Appearance> m_appearance;
  std::shared_ptr<scene::Material> m_material;
  std::shared_ptr<scene::ContentToggle> m_toggle;
  std::shared_ptr<scene::ContentToggle> m_textToggle;
  float m_percentage = 0;
  SliceStyle m_style = SliceStyle::OUTLINED_SLICE;
  bool m_usesDrillDown = false;
  bool m_showInLegend = true;
  std::string m_legendText;
};

}  // namespace orvane

namespace orvane::host {

template <>
ORVANE_API const EnumInfo& Enumeration<SliceStyle>();

}  // namespace orvane::host
