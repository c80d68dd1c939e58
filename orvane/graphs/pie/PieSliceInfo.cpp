#include "orvane/graphs/pie/PieSliceInfo.h"

#include "orvane/automation/Arithmetic.h"
#include "orvane/automation/AutomationError.h"
#include "orvane/automation/Describe.h"
#include "orvane/scene/frmMain.h"

namespace orvane {
namespace {

using host::Single;

/// What slices count as a full turn, a little less than 2 pi.
constexpr double kFullTurn = 6.28318;

/// How far the slice can be pulled out.
constexpr float kReach = 100;

/// Moves `transform` along one axis while it goes on turning about the slice's own axis.
void MoveAlongX(scene::Transform& transform, float x) {
  transform.translation.X(x);
  transform.center.X(-x);
}

void MoveAlongY(scene::Transform& transform, float y) {
  transform.translation.Y(y);
  transform.center.Y(-y);
}

}  // namespace

const host::TypeInfo& PieSliceInfo::Type() const {
  using Slice = PieSliceInfo;
  static const host::TypeInfo type =
      host::Describe<Slice>("One slice of a pie.")
          .Property<float>("Percentage", &Slice::Percentage, &Slice::Percentage,
                           {"Share of the full turn", "", host::kUnit})
          .Property<float>("Height", &Slice::Height, &Slice::Height,
                           {"Extent along Y", "scene units", host::kPositive})
          .Property<std::shared_ptr<scene::Material>>("Material", &Slice::Material,
                                                      {"Colours and transparency of the slice"})
          .Property<std::string>("LegendText", &Slice::LegendText, &Slice::LegendText,
                                 {"Text of the legend entry"})
          .Property<SliceStyle>("Style", &Slice::Style, &Slice::Style, {"Shape of the slice"})
          .Property<std::shared_ptr<TextInfo>>("SliceTextProps", &Slice::SliceTextProps,
                                               {"The text above the rim"})
          .Property<bool>("UseDrillDown", &Slice::UseDrillDown, &Slice::UseDrillDown,
                          {"Whether a cone on the rim loads another world"})
          .Property<std::shared_ptr<DrillUpInfo>>("DrillDownProps", &Slice::DrillDownProps,
                                                  {"The cone on the rim"})
          .Property<bool>("ShowInLegend", &Slice::ShowInLegend, &Slice::ShowInLegend,
                          {"Whether the slice has a legend entry and a toggle"});
  return type;
}

PieSliceInfo::PieSliceInfo()
    : m_text(std::make_shared<TextInfo>()),
      m_drillDown(std::make_shared<DrillUpInfo>()),
      m_inner(scene::Create<scene::Transform>()),
      m_drillDownTransform(scene::Create<scene::Transform>()),
      m_sensor(scene::Create<scene::PlaneSensor>()),
      m_outlined(scene::Create<scene::OutlinedPieSlice>()),
      m_rounded(scene::Create<scene::RoundedPieSlice>()),
      m_ring(scene::Create<scene::RoundedRingSlice>()),
      m_appearance(scene::Create<scene::Appearance>()),
      m_material(scene::Create<scene::Material>()),
      m_toggle(scene::Create<scene::ContentToggle>()),
      m_textToggle(scene::Create<scene::ContentToggle>()) {
  m_toggle->contentsExist.Value(true);
  m_textToggle->contentsExist.Value(true);
  m_sensor->maxPosition.X(kReach);
  m_sensor->maxPosition.Y(0);
  m_appearance->material.Value(m_material);
  m_outlined->appearance.Value(m_appearance);
  m_rounded->appearance.Value(m_appearance);
  m_ring->appearance.Value(m_appearance);

  Root()->children.Append(m_inner);
  m_inner->children.Append(m_sensor);
  m_inner->children.Append(m_toggle);
  m_text->IsBillboarded(true);
  m_textToggle->contents.Append(m_text->RootNode());
  FillToggle(m_outlined);
  // Lays the cone on its side, its tip towards the rim.
  m_drillDown->Root()->rotation.SetValue(0, 0, 1, kQuarterTurn);

  Percentage(0.2F);
  // Puts text and cone where they belong on a slice of the shapes' own height.
  Height(m_rounded->height.Value());
}

void PieSliceInfo::Percentage(float share) {
  host::Require(share >= 0 && share <= 1, "Invalid slice percentage, must be in the range [0..1]");
  const float angle = Single(share * kFullTurn);
  m_percentage = share;
  m_outlined->angle.Value(angle);
  m_rounded->angle.Value(angle);
  m_ring->angle.Value(angle);
  m_inner->rotation.SetValue(0, 1, 0, angle / 2);
  m_text->Root()->rotation.SetValue(0, 1, 0, -angle / 2);
  m_drillDownTransform->rotation.SetValue(0, 1, 0, -angle / 2);
}

void PieSliceInfo::Height(float height) {
  host::Require(height > 0, "Invalid slice height, must be greater than 0");
  const float textHeight = Single(m_textPlacement.height.Of(height));
  m_outlined->height.Value(height);
  m_rounded->height.Value(height);
  m_ring->height.Value(height);
  MoveAlongY(*m_text->Root(), textHeight);
  MoveAlongY(*m_drillDownTransform, Single(height * 0.5));
}

void PieSliceInfo::radius(float value) {
  host::Require(value > 0, "Invalid radius, must be greater than 0");
  const float textDistance = Single(m_textPlacement.distance.Of(value));
  const float coneHeight = Single(value * 0.1);
  const float coneDistance = Single(value * 1.05 + coneHeight / 2.0);
  // The smaller one first: it alone can come to 0 and be rejected.
  m_drillDown->ConeRadius(Single(value * 0.04));
  m_drillDown->ConeHeight(coneHeight);
  m_outlined->radius.Value(value);
  m_rounded->radius.Value(value);
  m_ring->radius.Value(value);
  MoveAlongX(*m_text->Root(), textDistance);
  MoveAlongX(*m_drillDownTransform, coneDistance);
}

void PieSliceInfo::TextPlacement(const SliceTextPlacement& placement) {
  const float distance = Single(placement.distance.Of(radius()));
  const float height = Single(placement.height.Of(Height()));
  m_textPlacement = placement;
  MoveAlongX(*m_text->Root(), distance);
  MoveAlongY(*m_text->Root(), height);
}

void PieSliceInfo::InnerRadius(float radius) {
  host::Require(radius >= 0, "Invalid inner radius, must be greater than or equal to 0");
  m_ring->innerRadius.Value(radius);
}

void PieSliceInfo::BevelRadius(float radius) {
  host::Require(radius > 0, "Invalid bevel radius, must be greater than 0");
  m_rounded->bevelRadius.Value(radius);
  m_ring->bevelRadius.Value(radius);
}

void PieSliceInfo::Style(SliceStyle style) {
  const auto shape = ShapeOf(style);
  if (style == m_style || shape == nullptr) return;
  m_style = style;
  FillToggle(shape);
}

void PieSliceInfo::UseDrillDown(bool use) {
  if (use == m_usesDrillDown) return;
  m_drillDownTransform->children.Clear();
  if (use) m_drillDownTransform->children.Append(m_drillDown->RootNode());
  m_usesDrillDown = use;
}

std::shared_ptr<scene::Node> PieSliceInfo::ShapeOf(SliceStyle style) const {
  switch (style) {
    case SliceStyle::OUTLINED_SLICE:
      return m_outlined;
    case SliceStyle::ROUNDED_SLICE:
      return m_rounded;
    case SliceStyle::RING_SLICE:
      return m_ring;
  }
  return nullptr;
}

void PieSliceInfo::FillToggle(const std::shared_ptr<scene::Node>& shape) {
  m_toggle->contents.Clear();
  m_toggle->contents.Append(shape);
  m_toggle->contents.Append(m_textToggle);
  m_toggle->contents.Append(m_drillDownTransform);
}

}  // namespace orvane

namespace orvane::host {

template <>
const EnumInfo& Enumeration<SliceStyle>() {
  static const EnumInfo info("SliceStyle",
                             {{"OUTLINED_SLICE", 0}, {"ROUNDED_SLICE", 1}, {"RING_SLICE", 2}});
  return info;
}

}  // namespace orvane::host
