#include "orvane/graphs/grid/GridGraph.h"

#include "orvane/graphs/AxisPlacement.h"
#include "orvane/host/Arithmetic.h"
#include "orvane/host/AutomationError.h"
#include "orvane/scene/frmMain.h"

namespace orvane {
namespace {

using host::Int16;
using host::Quotient;
using host::Single;

constexpr float kQuarterTurn = 1.5708F;
constexpr float kEighthTurn = 0.7854F;

/// What stands at the edge of the grid keeps clear of it by this part of the extent.
constexpr double kEdge = 1.02;

/// Height of a cone's centre above the floor, in cone heights: the tip stays just off the floor.
constexpr double kConeLift = 0.55;

}  // namespace

GridGraph::GridGraph()
    : m_grid(std::make_shared<GridInfo>()),
      m_legend(std::make_shared<LegendInfo>()),
      m_xAxis(std::make_shared<DiscreteAxis>()),
      m_yAxis(std::make_shared<ContinuousAxis>()),
      m_zAxis(std::make_shared<DiscreteAxis>()),
      m_interactivity(std::make_shared<GridInteractivityInfo>()),
      m_seriesGroup(scene::Create<scene::Group>()) {
  Assemble({BackgroundProps().get(), TitleProps().get(), m_grid.get(), m_legend.get(),
            m_xAxis.get(), m_yAxis.get(), m_zAxis.get(), m_interactivity.get(), Viewpoints().get(),
            Lights().get()});
  RootNode()->children.Append(m_seriesGroup);
}

void GridGraph::Arrange() {
  AlignTitle();
  AlignLegend();
  AlignXAxis();
  AlignYAxis();
  AlignZAxis();
  BuildSeries();
  if (m_interactivity->UseDrillUp()) AlignDrillUp();
  if (m_interactivity->UseXAxisDrillDown()) BuildXAxisDrillDown();
  if (m_interactivity->UseZAxisDrillDown()) BuildZAxisDrillDown();
}

float GridGraph::CellWidth() const {
  return Single(Quotient(m_grid->Width(), m_grid->XAxisCellCount()));
}

float GridGraph::CellDepth() const {
  return Single(Quotient(m_grid->Depth(), m_grid->ZAxisCellCount()));
}

void GridGraph::AlignTitle() {
  auto& translation = TitleProps()->Root()->translation;
  translation.X(Single(m_grid->Width() / 2.0));
  translation.Y(Single(1.1 * m_grid->Height()));
}

void GridGraph::AlignLegend() {
  auto& translation = m_legend->Root()->translation;
  translation.X(Single(1.1 * m_grid->Width()));
  translation.Y(Single(0.1 * m_grid->Height()));
}

void GridGraph::AlignXAxis() {
  const double cell = CellWidth();
  // Flat on the floor in front of the grid, reading towards the back, one label a cell.
  Place(*m_xAxis, {.count = m_grid->XAxisCellCount(),
                   .alignment = LabelAlignment::RIGHT_ALIGN,
                   .gap = CellWidth(),
                   .x = cell / 2 - m_xAxis->LabelHeight() / 2.0,
                   .y = {},
                   .z = kEdge * m_grid->Depth(),
                   .xAngle = -kQuarterTurn,
                   .yAngle = kQuarterTurn});
}

void GridGraph::AlignYAxis() {
  const double height = m_grid->Height();
  // Upright at the front left edge, turned towards the corner view, one label a grid line.
  Place(*m_yAxis,
        {.count = Int16(m_grid->YAxisCellCount() + 1),
         .alignment = LabelAlignment::RIGHT_ALIGN,
         .gap = Single(Quotient(height, m_grid->YAxisCellCount())),
         .x = -0.02 * m_grid->Width(),
         .y = height + m_yAxis->LabelHeight() / 2.0,
         .z = kEdge * m_grid->Depth(),
         .yAngle = kEighthTurn},
        LabelingOrder::MAX_TO_MIN);
}

void GridGraph::AlignZAxis() {
  const double cell = CellDepth();
  // Flat on the floor to the right of the grid, one label a cell, the first one at the back.
  Place(*m_zAxis, {.count = m_grid->ZAxisCellCount(),
                   .alignment = LabelAlignment::LEFT_ALIGN,
                   .gap = CellDepth(),
                   .x = kEdge * m_grid->Width(),
                   .y = {},
                   .z = cell / 2 - m_zAxis->LabelHeight() / 2.0,
                   .xAngle = -kQuarterTurn});
}

void GridGraph::AlignDrillUp() {
  const auto drillUp = m_interactivity->DrillUpProps();
  auto& translation = drillUp->Root()->translation;
  translation.X(m_grid->Width());
  translation.Y(Single(kConeLift * drillUp->ConeHeight()));
  translation.Z(m_grid->Depth());
}

void GridGraph::BuildXAxisDrillDown() {
  auto& cones = *m_interactivity->XAxisDrillDownProps();
  WireDrillDown(cones, m_grid->XAxisCellCount(), CellWidth(), "X_AXIS");
  auto& translation = cones.Root()->translation;
  translation.X(Single(CellWidth() / 2.0));
  translation.Z(m_grid->Depth());
}

void GridGraph::BuildZAxisDrillDown() {
  auto& cones = *m_interactivity->ZAxisDrillDownProps();
  WireDrillDown(cones, m_grid->ZAxisCellCount(), CellDepth(), "Z_AXIS");
  auto& root = *cones.Root();
  root.translation.X(m_grid->Width());
  root.translation.Z(Single(CellDepth() / 2.0));
  root.rotation.SetValue(0, 1, 0, -kQuarterTurn);  // The row runs along +Z.
}

void GridGraph::WireDrillDown(DrillDownInfo& cones, std::int16_t count, float spacing,
                              const std::string& axis) {
  cones.Count(count);
  cones.Spacing(spacing);
  cones.Root()->translation.Y(Single(kConeLift * cones.ConeHeight()));
  const auto collection = cones.ConeCollectionNode();
  const auto router = cones.RouterNode();
  collection->SetDefName(axis + "_DRILL_DOWN");
  router->SetDefName(axis + "_ROUTER");
  Routes().AddRoute(collection, "mouseClickedIndex", router, "set_linkIndex");
}

void GridGraph::ResizeRows(SeriesCollection& rows, std::int16_t count,
                           const std::function<std::shared_ptr<GridSeries>()>& make) const {
  const float depth = Single(CellDepth() / 2.0);
  while (rows.Count() > count) rows.RemoveSeries(rows.Count());
  while (rows.Count() < count) {
    const auto series = make();
    series->Depth(depth);
    rows.AddSeries(series);
  }
}

void GridGraph::RequireSeries(std::int16_t index, const SeriesCollection& rows) {
  const auto message = "Invalid series index, series count = " + std::to_string(rows.Count());
  host::Require(index >= 1 && index <= rows.Count(), message.c_str());
}

std::shared_ptr<scene::Node> GridGraph::LayOutSeries(GridSeries& series, float x, std::int16_t row,
                                                     const std::string& suffix,
                                                     LegendWiring& legend) const {
  const double cellDepth = CellDepth();
  series.Count(m_grid->XAxisCellCount());
  series.Spacing(CellWidth());
  auto& translation = series.Root()->translation;
  translation.X(x);
  translation.Z(Single((row - 1) * cellDepth + cellDepth / 2 - series.Depth() / 2.0));
  m_seriesGroup->children.Append(series.Root());
  series.Height().CopyTo(series.PopupProps()->Height());
  if (!series.ShowInLegend()) {
    LegendWiring::Skip(*series.ContentToggle());
    return nullptr;
  }
  return legend.Add(series.Appearance(), series.LegendText(), series.ContentToggle(),
                    "SERIES_TOGGLE_" + suffix);
}

}  // namespace orvane
