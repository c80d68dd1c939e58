/// The surface chart.
#pragma once

#include "orvane/graphs/grid/CategoryGraph.h"
#include "orvane/graphs/surface/SurfaceChart.h"

#include <functional>

namespace orvane {

/// Surfaces over the floor of a three-axis grid, each with one height a cell. Changing a cell count
/// of the grid sets all heights back to 0; a count of 1 is rejected while there are surfaces.
class ORVANE_API SurfaceGraph final : public SurfaceChart<CategoryGraph> {
 public:
  static constexpr const char* kClassName = "SurfaceGraph";
  const host::TypeInfo& Type() const override;

  SurfaceGraph();

 protected:
  void BuildSeries(LegendWiring& legend) override { LayOutSurfaces(Contents(), legend); }

 private:
  /// Gives all surfaces a blank lattice that `blank` makes of each, or none of them.
  void ResizeSurfaces(const std::function<SurfaceInfo::Blank(const SurfaceInfo&)>& blank);

  host::Subscription m_xCellCountFollowed;
  host::Subscription m_zCellCountFollowed;
};

}  // namespace orvane
