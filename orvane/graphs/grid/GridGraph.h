/// What the charts over a three-axis grid share: the components, where each stands, and the order
/// of the export.
#pragma once

#include "orvane/components/ContinuousAxis.h"
#include "orvane/components/DiscreteAxis.h"
#include "orvane/components/GridInfo.h"
#include "orvane/components/GridInteractivityInfo.h"
#include "orvane/components/LegendInfo.h"
#include "orvane/graphs/Chart.h"
#include "orvane/graphs/LegendWiring.h"
#include "orvane/graphs/SeriesCollection.h"
#include "orvane/graphs/grid/GridSeries.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <string>

namespace orvane {

/// The grid stands in the box (0, 0, 0) to (Width, Height, Depth): categories along X, values along
/// Y, series along Z.
class ORVANE_API GridGraph : public Chart {
 public:
  std::shared_ptr<GridInfo> GridProps() const { return m_grid; }
  std::shared_ptr<LegendInfo> LegendProps() const { return m_legend; }
  std::shared_ptr<DiscreteAxis> XAxisProps() const { return m_xAxis; }
  std::shared_ptr<ContinuousAxis> YAxisProps() const { return m_yAxis; }
  std::shared_ptr<DiscreteAxis> ZAxisProps() const { return m_zAxis; }
  std::shared_ptr<GridInteractivityInfo> InteractivityProps() const { return m_interactivity; }

 protected:
  GridGraph();

  void Arrange() override;
  /// Lays the series out and fills the legend.
  virtual void BuildSeries() = 0;

  GridInfo& Grid() const { return *m_grid; }
  LegendInfo& Legend() const { return *m_legend; }
  scene::Group& SeriesGroup() const { return *m_seriesGroup; }

  /// Extent of one cell along X and along Z.
  float CellWidth() const;
  float CellDepth() const;

  /// Brings the series of `rows` to one a Z row: adds new ones of half a cell's depth, made by
  /// `make`, or removes trailing ones.
  void ResizeRows(SeriesCollection& rows, std::int16_t count,
                  const std::function<std::shared_ptr<GridSeries>()>& make) const;

  /// Raises the component error for a series index outside 1..the number of series in `rows`.
  static void RequireSeries(std::int16_t index, const SeriesCollection& rows);

  /// Puts one series into the scene: `x` is where its first value stands, `row` its Z cell from 1.
  /// Names of its toggle end in `suffix`. Returns its check box when it has one, else nullptr.
  std::shared_ptr<scene::Node> LayOutSeries(GridSeries& series, float x, std::int16_t row,
                                            const std::string& suffix, LegendWiring& legend) const;

 private:
  void AlignTitle();
  void AlignLegend();
  void AlignXAxis();
  void AlignYAxis();
  void AlignZAxis();
  void AlignDrillUp();
  void BuildXAxisDrillDown();
  void BuildZAxisDrillDown();
  void WireDrillDown(DrillDownInfo& cones, std::int16_t count, float spacing,
                     const std::string& axis);

  std::shared_ptr<GridInfo> m_grid;
  std::shared_ptr<LegendInfo> m_legend;
  std::shared_ptr<DiscreteAxis> m_xAxis;
  std::shared_ptr<ContinuousAxis> m_yAxis;
  std::shared_ptr<DiscreteAxis> m_zAxis;
  std::shared_ptr<GridInteractivityInfo> m_interactivity;
  std::shared_ptr<scene::Group> m_seriesGroup;
};

}  // namespace orvane
