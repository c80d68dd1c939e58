#include "orvane/graphs/surface/DensityGraph.h"

#include "orvane/automation/Arithmetic.h"
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
          .Property<float>(
              "Sigma", &Graph::Sigma, &Graph::Sigma,
              {"Width of the kernel around each point", "scene units", host::kPositive})
          .With(DescribeDrillUp<Graph>)
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

void DensityGraph::AlignXAxis() { PlaceXAxis(*m_xAxis, Grid(), Placement().xAxis); }

void DensityGraph::AlignZAxis() { PlaceZAxis(*m_zAxis, Grid(), Placement().zAxis); }

void DensityGraph::BuildSeries(LegendWiring& legend) {
  double lift = m_lift.first;
  m_surfaces.LayOut(Contents(), legend, [&](DensitySurfaceInfo& surface) {
    surface.CoverCells(Grid().XAxisCellCount(), CellWidth(Grid()), Grid().ZAxisCellCount(),
                       CellDepth(Grid()));
    surface.Sigma(m_sigma);
    surface.GenerateParzenMap(Grid().Height());
    surface.Root()->translation.Y(host::Single(lift));
    lift += m_lift.step;
  });
}

void DensityGraph::BuildNavigation() {
  Detach({m_drillUp.get()});
  if (!m_usesDrillUp) return;
  PlaceDrillUp(*m_drillUp, Grid());
  Assemble({m_drillUp.get()});
}

}  // namespace orvane
