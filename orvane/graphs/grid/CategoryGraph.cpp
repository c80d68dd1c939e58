#include "orvane/graphs/grid/CategoryGraph.h"

#include "orvane/automation/Arithmetic.h"
#include "orvane/automation/AutomationError.h"
#include "orvane/graphs/GridPlacement.h"

#include <algorithm>

namespace orvane {

using host::Single;

CategoryGraph::CategoryGraph() { AssembleGrid(*m_xAxis, *m_zAxis, m_interactivity.get()); }

void CategoryGraph::AlignXAxis() { PlaceXAxis(*m_xAxis, Grid(), Placement().xAxis); }

void CategoryGraph::AlignZAxis() { PlaceZAxis(*m_zAxis, Grid(), Placement().zAxis); }

void CategoryGraph::BuildNavigation() {
  if (m_interactivity->UseDrillUp()) PlaceDrillUp(*m_interactivity->DrillUpProps(), Grid());
  if (m_interactivity->UseXAxisDrillDown()) BuildXAxisDrillDown();
  if (m_interactivity->UseZAxisDrillDown()) BuildZAxisDrillDown();
}

void CategoryGraph::BuildXAxisDrillDown() {
  auto& cones = *m_interactivity->XAxisDrillDownProps();
  WireDrillDown(cones, Grid().XAxisCellCount(), CellWidth(Grid()), "X_AXIS");
  auto& translation = cones.Root()->translation;
  translation.X(Single(CellWidth(Grid()) / 2.0));
  translation.Z(Grid().Depth());
}

void CategoryGraph::BuildZAxisDrillDown() {
  auto& cones = *m_interactivity->ZAxisDrillDownProps();
  WireDrillDown(cones, Grid().ZAxisCellCount(), CellDepth(Grid()), "Z_AXIS");
  auto& root = *cones.Root();
  root.translation.X(Grid().Width());
  root.translation.Z(Single(CellDepth(Grid()) / 2.0));
  root.rotation.SetValue(0, 1, 0, -kQuarterTurn);  // The row runs along +Z.
}

void CategoryGraph::WireDrillDown(DrillDownInfo& cones, std::int16_t count, float spacing,
                                  const std::string& axis) {
  cones.LayOutCones(count, spacing);
  cones.Root()->translation.Y(ConeLift(cones.ConeHeight()));
  const auto collection = cones.ConeCollectionNode();
  const auto router = cones.RouterNode();
  collection->SetDefName(axis + "_DRILL_DOWN");
  router->SetDefName(axis + "_ROUTER");
  Routes().AddRoute(collection, "mouseClickedIndex", router, "set_linkIndex");
}

SeriesCollection::Items CategoryGraph::ResizedRows(
    const SeriesCollection& rows, std::int16_t count,
    const std::function<std::shared_ptr<GridSeries>()>& make) const {
  const float depth = Single(CellDepth(Grid()) / 2.0);
  return rows.Resized(count, [&] {
    auto series = make();
    series->Depth(depth);
    return series;
  });
}

void CategoryGraph::RequireSeries(std::int16_t index, const SeriesCollection& rows) {
  const auto message = "Invalid series index, series count = " + std::to_string(rows.Count());
  host::Require(index >= 1 && index <= rows.Count(), message.c_str());
}

float CategoryGraph::LargestDepthIn(const SeriesCollection& rows) {
  float depth = 0;
  for (const std::int16_t i : Indexes(rows.Count())) {
    depth = std::max(depth, rows.Get<GridSeries>(i)->Depth());
  }
  return depth;
}

std::shared_ptr<scene::Node> CategoryGraph::LayOutSeries(GridSeries& series, float x,
                                                         std::int16_t row,
                                                         const std::string& suffix,
                                                         LegendWiring& legend) const {
  const double cellDepth = CellDepth(Grid());
  series.Count(Grid().XAxisCellCount());
  series.Spacing(CellWidth(Grid()));
  auto& translation = series.Root()->translation;
  translation.X(x);
  translation.Z(Single((row - 1) * cellDepth + cellDepth / 2 - series.Depth() / 2.0));
  Contents().Append(series.Root());
  series.Height().CopyTo(series.PopupProps()->Height());
  if (!series.ShowInLegend()) {
    LegendWiring::Skip(*series.ContentToggle());
    return nullptr;
  }
  return legend.Add(series.Appearance(), series.LegendText(), series.ContentToggle(),
                    "SERIES_TOGGLE_" + suffix);
}

}  // namespace orvane
