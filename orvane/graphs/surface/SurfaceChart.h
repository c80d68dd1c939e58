/// What surface and combination charts share: surfaces over the cells of a chart with categories.
#pragma once

#include "orvane/graphs/GridPlacement.h"
#include "orvane/graphs/surface/SurfaceInfo.h"
#include "orvane/graphs/surface/SurfaceList.h"

#include <cstdint>
#include <memory>

namespace orvane {

/// `G` is what the chart is otherwise: a CategoryGraph, or one with series.
template <class G>
class SurfaceChart : public G {
 public:
  /// Surface `index`, 1..SurfaceCount; a component error otherwise.
  std::shared_ptr<SurfaceInfo> GetSurface(std::int16_t index) const {
    return m_surfaces.Get(index);
  }

  /// Number of surfaces, >= 0. Default 0. New ones have a point for each cell of the grid, which
  /// must have two cells or more each way; a lower number drops the trailing surfaces.
  std::int16_t SurfaceCount() const { return m_surfaces.Count(); }
  void SurfaceCount(std::int16_t count) {
    m_surfaces.Count(count, [this] {
      auto surface = std::make_shared<SurfaceInfo>();
      surface->XCount(this->Grid().XAxisCellCount());
      surface->ZCount(this->Grid().ZAxisCellCount());
      return surface;
    });
  }

 protected:
  /// Stands all surfaces over the cells and puts them into `children`.
  void LayOutSurfaces(scene::MFNode& children, LegendWiring& legend) const {
    m_surfaces.LayOut(children, legend, [this](SurfaceInfo& surface) {
      surface.StandInCells(CellWidth(this->Grid()), CellDepth(this->Grid()));
    });
  }

 private:
  SurfaceList<SurfaceInfo> m_surfaces{"surface"};
};

}  // namespace orvane
