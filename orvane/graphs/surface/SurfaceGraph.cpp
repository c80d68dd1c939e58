#include "orvane/graphs/surface/SurfaceGraph.h"

#include "orvane/graphs/grid/DescribeGridGraph.h"
#include "orvane/graphs/surface/DescribeSurface.h"

#include <memory>
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
  std::vector<std::pair<std::shared_ptr<SurfaceInfo>, SurfaceInfo::Blank>> resized;
  for (const std::int16_t i : Indexes(SurfaceCount())) {
    const auto surface = GetSurface(i);
    resized.emplace_back(surface, blank(*surface));
  }
  for (auto& [surface, lattice] : resized) surface->Take(std::move(lattice));
}

}  // namespace orvane
