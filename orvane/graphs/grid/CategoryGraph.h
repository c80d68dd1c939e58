/// The grid chart with categories along X and Z: area, column, ribbon, surface and combination
/// charts.
#pragma once

#include "orvane/components/DiscreteAxis.h"
#include "orvane/components/GridInteractivityInfo.h"
#include "orvane/graphs/SeriesCollection.h"
#include "orvane/graphs/grid/GridGraph.h"
#include "orvane/graphs/grid/GridSeries.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <string>

namespace orvane {

/// Categories along X, values along Y, series or further categories along Z, and cones beside the
/// cells that load other worlds.
class ORVANE_API CategoryGraph : public GridGraph {
 public:
  std::shared_ptr<DiscreteAxis> XAxisProps() const { return m_xAxis; }
  std::shared_ptr<DiscreteAxis> ZAxisProps() const { return m_zAxis; }
  std::shared_ptr<GridInteractivityInfo> InteractivityProps() const { return m_interactivity; }

 protected:
  CategoryGraph();

  void AlignXAxis() override;
  void AlignZAxis() override;
  void BuildNavigation() override;

  /// The series of `rows` for `count` Z rows: with new ones of half a cell's depth, made by `make`,
  /// or without trailing ones.
  SeriesCollection::Items ResizedRows(
      const SeriesCollection& rows, std::int16_t count,
      const std::function<std::shared_ptr<GridSeries>()>& make) const;

  /// Raises the component error for a series index outside 1..the number of series in `rows`.
  static void RequireSeries(std::int16_t index, const SeriesCollection& rows);

  static float LargestDepthIn(const SeriesCollection& rows);

  /// Puts one series into the scene: `x` is where its first value stands, `row` its Z cell from 1.
  /// Names of its toggle end in `suffix`. Returns its check box when it has one, else nullptr.
  std::shared_ptr<scene::Node> LayOutSeries(GridSeries& series, float x, std::int16_t row,
                                            const std::string& suffix, LegendWiring& legend) const;

 private:
  void BuildXAxisDrillDown();
  void BuildZAxisDrillDown();
  void WireDrillDown(DrillDownInfo& cones, std::int16_t count, float spacing,
                     const std::string& axis);

  std::shared_ptr<DiscreteAxis> m_xAxis = std::make_shared<DiscreteAxis>();
  std::shared_ptr<DiscreteAxis> m_zAxis = std::make_shared<DiscreteAxis>();
  std::shared_ptr<GridInteractivityInfo> m_interactivity =
      std::make_shared<GridInteractivityInfo>();
};

}  // namespace orvane
