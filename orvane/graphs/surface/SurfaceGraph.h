/// The surface chart.
#pragma once

#include "orvane/graphs/grid/CategoryGraph.h"
#include "orvane/graphs/surface/SurfaceChart.h"

#include <cstdint>

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
  void m_gridInfo_XCellCountChanged(std::int16_t newCount);
  void m_gridInfo_ZCellCountChanged(std::int16_t newCount);

  host::Subscription m_xCellCountChanged;
  host::Subscription m_zCellCountChanged;
};

}  // namespace orvane
