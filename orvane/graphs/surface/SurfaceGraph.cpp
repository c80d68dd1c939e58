#include "orvane/graphs/surface/SurfaceGraph.h"

#include "orvane/graphs/grid/DescribeGridGraph.h"
#include "orvane/graphs/surface/DescribeSurface.h"

#include <utility>
#include <vector>

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
  m_xCellCountFollowed = Grid().XCellCountFollowed.Connect([this](std::int16_t count) {
    ResizeSurfaces([&](const SurfaceInfo& surface) { return surface.BlankOfXCount(count); });
  });
  m_zCellCountFollowed = Grid().ZCellCountFollowed.Connect([this](std::int16_t count) {
    ResizeSurfaces([&](const SurfaceInfo& surface) { return surface.BlankOfZCount(count); });
  });
}

void SurfaceGraph::ResizeSurfaces(
    const std::function<SurfaceInfo::Blank(const SurfaceInfo&)>& blank) {
  const auto surfaces = Indexes(SurfaceCount());
  std::vector<SurfaceInfo::Blank> blanks;
  for (const std::int16_t i : surfaces) blanks.push_back(blank(*GetSurface(i)));
  auto next = blanks.begin();
  for (const std::int16_t i : surfaces) GetSurface(i)->Take(std::move(*next++));
}

}  // namespace orvane
