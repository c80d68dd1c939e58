/// One slice of a pie.
#pragma once

#include "orvane/automation/Enumeration.h"
#include "orvane/automation/Object.h"
#include "orvane/components/DrillUpInfo.h"
#include "orvane/components/ISceneRoot.h"
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

/// What a pie does with a slice. Lengths are in scene units.
class ORVANE_API IInternalSliceInfo {
 public:
  virtual ~IInternalSliceInfo() = default;

  /// Of the sector, in radians.
  virtual float Angle() const = 0;
  /// Rounding of the edges of rounded and ring slices, > 0.
  virtual float BevelRadius() const = 0;
  virtual void BevelRadius(float radius) = 0;
  /// Drags the slice along its local x.
  virtual std::shared_ptr<scene::PlaneSensor> PlaneSensorNode() const = 0;
  /// Shows the slice with all that belongs to it.
  virtual std::shared_ptr<scene::ContentToggle> ContentToggleNode() const = 0;
  /// Shows the text of the slice.
  virtual std::shared_ptr<scene::ContentToggle> SliceTextToggleNode() const = 0;
  /// What dragging moves.
  virtual std::shared_ptr<scene::Transform> InnerTransformNode() const = 0;
  /// Outer radius, > 0.
  virtual float radius() const = 0;
  virtual void radius(float value) = 0;
  /// Inner radius of ring slices, >= 0; not held against the outer one.
  virtual float InnerRadius() const = 0;
  virtual void InnerRadius(float radius) = 0;
  virtual std::shared_ptr<scene::Appearance> Appearance() const = 0;
};

/// A sector of the full turn on the XZ plane, with a text above its rim and on demand a cone that
/// sticks out of its side. Every let writes the shapes of all styles, so that changing the style
/// keeps every size.
///
/// In the frame of its inner transform the sector runs from local +X to -Angle about +Y.
class ORVANE_API PieSliceInfo final : public host::Object,
                                      public ISeriesInfo,
                                      public ISceneRoot,
                                      public IInternalSliceInfo {
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

  float Angle() const override { return m_rounded->angle.Value(); }
  float BevelRadius() const override { return m_rounded->bevelRadius.Value(); }
  void BevelRadius(float radius) override;
  std::shared_ptr<scene::PlaneSensor> PlaneSensorNode() const override { return m_sensor; }
  std::shared_ptr<scene::ContentToggle> ContentToggleNode() const override { return m_toggle; }
  std::shared_ptr<scene::ContentToggle> SliceTextToggleNode() const override {
    return m_textToggle;
  }
  std::shared_ptr<scene::Transform> InnerTransformNode() const override { return m_inner; }
  float radius() const override { return m_rounded->radius.Value(); }
  void radius(float value) override;
  float InnerRadius() const override { return m_ring->innerRadius.Value(); }
  void InnerRadius(float radius) override;
  std::shared_ptr<scene::Appearance> Appearance() const override { return m_appearance; }

  std::shared_ptr<scene::Node> RootNode() const override { return m_root; }
  /// The same node; the pie turns it.
  const std::shared_ptr<scene::Transform>& Root() const { return m_root; }

 private:
  /// The shape of `style`; nullptr outside the enumeration.
  std::shared_ptr<scene::Node> ShapeOf(SliceStyle style) const;
  void FillToggle(const std::shared_ptr<scene::Node>& shape);

  std::shared_ptr<TextInfo> m_text;
  std::shared_ptr<DrillUpInfo> m_drillDown;
  std::shared_ptr<scene::Transform> m_root;
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
