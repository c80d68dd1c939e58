#include "orvane/graphs/pie/PieGraph.h"

#include "orvane/automation/Arithmetic.h"
#include "orvane/automation/AutomationError.h"
#include "orvane/graphs/DescribeChart.h"
#include "orvane/scene/frmMain.h"

#include <algorithm>
#include <string>

namespace orvane {

using host::Single;

const host::TypeInfo& PieGraph::Type() const {
  using Graph = PieGraph;
  static const host::TypeInfo type =
      host::Describe<Graph>("A pie of slices that viewers can pull out.")
          .Property<std::shared_ptr<BackgroundInfo>>("BackgroundProps", &Graph::BackgroundProps,
                                                     {"The sky"})
          .Property<std::shared_ptr<TextInfo>>("TitleProps", &Graph::TitleProps, {"The title"})
          .Property<std::shared_ptr<LegendInfo>>("LegendProps", &Graph::LegendProps, {"The legend"})
          .Method("GetSlice", &Graph::GetSlice, {{"Index", host::UpTo("SliceCount")}},
                  {"One slice"})
          .Property<float>("radius", &Graph::radius, &Graph::radius,
                           {"Radius of all slices", "scene units", host::kPositive})
          .Property<float>("InnerRadius", &Graph::InnerRadius, &Graph::InnerRadius,
                           {"Inner radius of all ring slices", "scene units", host::kPositive})
          .Property<float>("BevelRadius", &Graph::BevelRadius, &Graph::BevelRadius,
                           {"Rounding of the edges when rounded", "scene units", host::kPositive})
          .Property<SliceTextVisibility>("SliceTextDisplayStyle", &Graph::SliceTextDisplayStyle,
                                         &Graph::SliceTextDisplayStyle,
                                         {"When the texts of the slices are shown"})
          .Property<std::int16_t>("SliceCount", &Graph::SliceCount, &Graph::SliceCount,
                                  {"Number of slices", "", host::kNotNegative})
          .Property<bool>("UseSpinAxis", &Graph::UseSpinAxis, &Graph::UseSpinAxis,
                          {"Whether an axis turns the pie"})
          .Property<bool>("UseDrillUp", &Graph::UseDrillUp, &Graph::UseDrillUp,
                          {"Whether a cone above the pie loads another world"})
          .Property<std::shared_ptr<DrillUpInfo>>("DrillUpProps", &Graph::DrillUpProps,
                                                  {"The cone above the pie"})
          .With(DescribeViews<Graph>)
          .With(DescribeExport<Graph>);
  return type;
}

PieGraph::PieGraph()
    : m_spinAxis(std::make_shared<PieSpinAxisInfo>()),
      m_legend(std::make_shared<LegendInfo>()),
      m_slices(std::make_shared<SeriesCollection>()),
      m_drillUp(std::make_shared<DrillUpInfo>()),
      m_pie(scene::Create<scene::Transform>()),
      m_drillUpHolder(scene::Create<scene::Transform>()) {
  Assemble({m_spinAxis.get(), BackgroundProps().get(), TitleProps().get(), m_legend.get(),
            Viewpoints().get(), Lights().get()});
  RootNode()->children.Append(m_pie);
  RootNode()->children.Append(m_drillUpHolder);
}

std::shared_ptr<PieSliceInfo> PieGraph::GetSlice(std::int16_t index) const {
  const auto message = "Invalid slice index, slice count = " + std::to_string(SliceCount());
  host::Require(index >= 1 && index <= SliceCount(), message.c_str());
  return Slice(index);
}

void PieGraph::radius(float value) {
  host::Require(value > 0, "Invalid radius, must be greater than 0");
  // A slice may reject what its cone cannot follow; then the first one does.
  for (const std::int16_t i : Indexes(SliceCount())) Slice(i)->radius(value);
  m_radius = Single(value);  // Without slices nothing else rejects infinity.
}

void PieGraph::InnerRadius(float radius) {
  host::Require(radius > 0, "Invalid inner radius, must be greater than 0");
  for (const std::int16_t i : Indexes(SliceCount())) Slice(i)->InnerRadius(radius);
  m_innerRadius = Single(radius);
}

void PieGraph::BevelRadius(float radius) {
  host::Require(radius > 0, "Invalid bevel radius, must be greater than 0");
  for (const std::int16_t i : Indexes(SliceCount())) Slice(i)->BevelRadius(radius);
  m_bevelRadius = Single(radius);
}

void PieGraph::SliceCount(std::int16_t count) {
  m_slices->Resize(count, [this] {
    auto slice = std::make_shared<PieSliceInfo>();
    slice->radius(m_radius);
    slice->InnerRadius(m_innerRadius);
    slice->BevelRadius(m_bevelRadius);
    return slice;
  });
}

void PieGraph::UseDrillUp(bool use) {
  if (use == m_usesDrillUp) return;
  m_drillUpHolder->children.Clear();
  if (use) m_drillUpHolder->children.Append(m_drillUp->RootNode());
  m_usesDrillUp = use;
}

void PieGraph::Arrange() {
  AlignTitle();
  AlignLegend();
  BuildSlices();
  if (UseSpinAxis()) WireSpinAxis();
  m_drillUpHolder->translation.Y(0);
  if (m_usesDrillUp) AlignDrillUp();
}

float PieGraph::MaxHeight() const {
  float height = 0;
  for (const std::int16_t i : Indexes(SliceCount())) height = std::max(height, Slice(i)->Height());
  return height;
}

void PieGraph::AlignTitle() {
  auto& translation = TitleProps()->Root()->translation;
  translation.Y(Single(m_placement.titleY.Of(MaxHeight())));
  if (m_placement.titleZ) translation.Z(Single(*m_placement.titleZ));
}

void PieGraph::AlignLegend() {
  auto& translation = m_legend->Root()->translation;
  translation.X(Single(m_placement.legendX.Of(m_radius)));
  translation.Y(Single(m_placement.legendY.Of(MaxHeight())));
}

void PieGraph::BuildSlices() {
  LegendWiring legend(*m_legend, Routes());
  m_pie->children.Clear();
  float end = 0;  // Where the slices so far end, an angle about +Y.
  for (const std::int16_t i : Indexes(SliceCount())) {
    auto& slice = *Slice(i);
    const double angle = slice.Angle();
    slice.Root()->rotation.SetValue(0, 1, 0, Single(end - angle / 2));
    end = Single(end - angle);
    m_pie->children.Append(slice.Root());
    WireSlice(slice, i, legend);
  }
  legend.Finish();
}

void PieGraph::WireSlice(PieSliceInfo& slice, std::int16_t number, LegendWiring& legend) {
  const auto suffix = std::to_string(number);
  if (slice.ShowInLegend()) {
    legend.Add(slice.Appearance(), slice.LegendText(), slice.ContentToggleNode(),
               "SLICE_TOGGLE_" + suffix);
  } else {
    LegendWiring::Skip(*slice.ContentToggleNode());
  }
  const auto sensor = slice.PlaneSensorNode();
  const auto inner = slice.InnerTransformNode();
  inner->SetDefName("INNER_TRANS_" + suffix);
  sensor->SetDefName("SLICE_DRAG_" + suffix);
  Routes().AddRoute(sensor, "translation_changed", inner, "set_translation");
  WireSliceText(slice, number);
}

void PieGraph::WireSliceText(PieSliceInfo& slice, std::int16_t number) {
  const auto toggle = slice.SliceTextToggleNode();
  switch (m_textVisibility) {
    case SliceTextVisibility::SHOW_ALWAYS:
      toggle->contentsExist.Value(true);
      toggle->SetDefName("");
      break;
    case SliceTextVisibility::SHOW_ON_TOUCH:
      toggle->contentsExist.Value(false);
      toggle->SetDefName("SLICE_TEXT_TOGGLE_" + std::to_string(number));
      Routes().AddRoute(slice.PlaneSensorNode(), "isActive", toggle, "set_contentsExist");
      break;
  }
}

void PieGraph::WireSpinAxis() {
  const double height = MaxHeight();
  m_spinAxis->Height(Single(height * 1.4));
  m_spinAxis->radius(Single(m_radius * 0.05));
  m_spinAxis->Color(TitleProps()->TextColor());
  m_spinAxis->Root()->translation.Y(Single(height / 2));
  const auto sensor = m_spinAxis->CylinderSensorNode();
  m_pie->SetDefName("PIE_TRANS");
  sensor->SetDefName("SPIN_AXIS");
  Routes().AddRoute(sensor, "rotation_changed", m_pie, "set_rotation");
}

void PieGraph::AlignDrillUp() {
  const double height = MaxHeight();
  m_drillUp->ConeRadius(Single(m_radius * 0.05));
  m_drillUp->ConeHeight(Single(m_radius * 0.12));
  // Clear of the top of the axis, when there is one.
  const double below = height * (UseSpinAxis() ? 1.25 : 1.05);
  m_drillUpHolder->translation.Y(Single(m_drillUp->ConeHeight() / 2.0 + below));
}

}  // namespace orvane

namespace orvane::host {

template <>
const EnumInfo& Enumeration<SliceTextVisibility>() {
  static const EnumInfo info("SliceTextVisibility", {{"SHOW_ON_TOUCH", 0}, {"SHOW_ALWAYS", 1}});
  return info;
}

}  // namespace orvane::host
