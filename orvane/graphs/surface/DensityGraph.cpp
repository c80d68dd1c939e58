#include "orvane/graphs/surface/DensityGraph.h"

#include "orvane/graphs/GridPlacement.h"
#include "orvane/graphs/grid/DescribeGridGraph.h"
#include "orvane/graphs/surface/DescribeSurface.h"

namespace orvane {

const host::TypeInfo& DensityGraph::Type() const {
  using Graph = DensityGraph;
  static const host::TypeInfo type =
      host::Describe<Graph>("Where points lie thickly on the floor of a three-axis grid.")
          .With(DescribeComponents<Graph>)
          .With(DescribeSurfaces<Graph>)
          .Property<float>("Sigma", &Graph::Sigma, &Graph::Sigma,
                           {"Width of the kernel around each point", "scene units", "> 0", "0.8"})
          .Property<bool>("UseDrillUp", &Graph::UseDrillUp, &Graph::UseDrillUp,
                          {"Whether the drill-up cone is in the scene", "", "", "false"})
          .Property<std::shared_ptr<DrillUpInfo>>("DrillUpProps", &Graph::DrillUpProps,
                                                  {"The drill-up cone"})
          .With(DescribeViews<Graph>)
          .With(DescribeExport<Graph>);
  return type;
}

DensityGraph::DensityGraph() { AssembleGrid(*m_xAxis, *m_zAxis); }

void DensityGraph::SurfaceCount(std::int16_t count) {
  m_surfaces.Count(count, [] { return std::make_shared<DensitySurfaceInfo>(); });
}

void DensityGraph::Sigma(float sigma) {
  DensitySurfaceInfo::RequireSigma(sigma);
  m_sigma = sigma;
}

void DensityGraph::AlignXAxis() {
  Place(*m_xAxis, XAxisPlacement(*m_xAxis, Grid(), LabelsAt::Lines), LabelingOrder::MIN_TO_MAX);
}

void DensityGraph::AlignZAxis() {
  Place(*m_zAxis, ZAxisPlacement(*m_zAxis, Grid(), LabelsAt::Lines), LabelingOrder::MIN_TO_MAX);
}

void DensityGraph::BuildSeries(LegendWiring& legend) {
  constexpr float kLift = 0.02F;  // Clear of the floor.
  m_surfaces.LayOut(Contents(), legend, [this](DensitySurfaceInfo& surface) {
    surface.CoverCells(Grid().XAxisCellCount(), CellWidth(Grid()), Grid().ZAxisCellCount(),
                       CellDepth(Grid()));
    surface.Sigma(m_sigma);
    surface.GenerateParzenMap(Grid().Height());
    surface.Root()->translation.Y(kLift);
  });
}

void DensityGraph::BuildNavigation() {
  Detach({m_drillUp.get()});
  if (!m_usesDrillUp) return;
  PlaceDrillUp(*m_drillUp, Grid());
  Assemble({m_drillUp.get()});
}

}  // namespace orvane
