#include "orvane/graphs/surface/SurfaceGraph.h"

#include "orvane/graphs/grid/DescribeGridGraph.h"
#include "orvane/graphs/surface/DescribeSurface.h"

namespace orvane {

const host::TypeInfo& SurfaceGraph::Type() const {
  using Graph = SurfaceGraph;
  static const host::TypeInfo type =
      host::Describe<Graph>("Surfaces over the floor of a three-axis grid.")
          .With(DescribeComponents<Graph>)
          .With(DescribeSurfaces<Graph>)
          .With(DescribeInteractivity<Graph>)
          .With(DescribeViews<Graph>)
          .With(DescribeExport<Graph>);
  return type;
}

SurfaceGraph::SurfaceGraph() {
  m_xCellCountChanged = Grid().XCellCountChanged.Connect(
      [this](std::int16_t newCount) { m_gridInfo_XCellCountChanged(newCount); });
  m_zCellCountChanged = Grid().ZCellCountChanged.Connect(
      [this](std::int16_t newCount) { m_gridInfo_ZCellCountChanged(newCount); });
}

void SurfaceGraph::m_gridInfo_XCellCountChanged(std::int16_t newCount) {
  for (const std::int16_t i : Indexes(SurfaceCount())) GetSurface(i)->XCount(newCount);
}

void SurfaceGraph::m_gridInfo_ZCellCountChanged(std::int16_t newCount) {
  for (const std::int16_t i : Indexes(SurfaceCount())) GetSurface(i)->ZCount(newCount);
}

}  // namespace orvane
