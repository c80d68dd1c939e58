#include "orvane/graphs/grid/GridGraph.h"

#include "orvane/scene/frmMain.h"

namespace orvane {

GridGraph::GridGraph()
    : m_grid(std::make_shared<GridInfo>()),
      m_legend(std::make_shared<LegendInfo>()),
      m_yAxis(std::make_shared<ContinuousAxis>()),
      m_contents(scene::Create<scene::Group>()) {}

void GridGraph::AssembleGrid(const Axis& xAxis, const Axis& zAxis, const ISceneRoot* navigation) {
  Assemble({BackgroundProps().get(), TitleProps().get(), m_grid.get(), m_legend.get(), &xAxis,
            m_yAxis.get(), &zAxis});
  if (navigation != nullptr) Assemble({navigation});
  Assemble({Viewpoints().get(), Lights().get()});
  RootNode()->children.Append(m_contents);
}

void GridGraph::Arrange() {
  PlaceTitle(*TitleProps(), *m_grid, m_placement);
  PlaceLegend(*m_legend->Root(), *m_grid, m_placement);
  AlignXAxis();
  PlaceYAxis(*m_yAxis, *m_grid, m_placement.yAxis);
  AlignZAxis();
  LegendWiring legend(*m_legend, Routes());
  Contents().Clear();
  BuildSeries(legend);
  legend.Finish();
  BuildNavigation();
}

}  // namespace orvane
