/// What the charts over a three-axis grid share: the components, where each stands, and the order
/// of the export.
#pragma once

#include "orvane/components/ContinuousAxis.h"
#include "orvane/components/GridInfo.h"
#include "orvane/components/LegendInfo.h"
#include "orvane/graphs/Chart.h"
#include "orvane/graphs/GridPlacement.h"
#include "orvane/graphs/LegendWiring.h"

#include <memory>

namespace orvane {

/// The grid stands in the box (0, 0, 0) to (Width, Height, Depth), values along Y. The axes along X
/// and Z, and the navigation, are the chart's own.
class ORVANE_API GridGraph : public Chart {
 public:
  std::shared_ptr<GridInfo> GridProps() const { return m_grid; }
  std::shared_ptr<LegendInfo> LegendProps() const { return m_legend; }
  std::shared_ptr<ContinuousAxis> YAxisProps() const { return m_yAxis; }

  /// Where the parts stand from the next export on, for C++.
  GridPlacement& Placement() { return m_placement; }

 protected:
  GridGraph();

  /// Puts the shared parts, the chart's axes and, when there is one, its `navigation` into the
  /// scene, and behind them the Group of its series or surfaces.
  void AssembleGrid(const Axis& xAxis, const Axis& zAxis, const ISceneRoot* navigation = nullptr);

  void Arrange() override;
  virtual void AlignXAxis() = 0;
  virtual void AlignZAxis() = 0;
  /// Lays the series or surfaces out and fills the legend, which is empty.
  virtual void BuildSeries(LegendWiring& legend) = 0;
  virtual void BuildNavigation() = 0;

  GridInfo& Grid() const { return *m_grid; }
  /// The Group's list, which holds the roots of the series or surfaces.
  scene::MFNode& Contents() const { return m_contents->children; }

 private:
  std::shared_ptr<GridInfo> m_grid;
  std::shared_ptr<LegendInfo> m_legend;
  std::shared_ptr<ContinuousAxis> m_yAxis;
  std::shared_ptr<scene::Group> m_contents;
  GridPlacement m_placement;
};

}  // namespace orvane
