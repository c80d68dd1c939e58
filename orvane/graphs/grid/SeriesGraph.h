/// A grid chart with one series in each Z cell.
#pragma once

#include "orvane/automation/Arithmetic.h"
#include "orvane/graphs/GridPlacement.h"
#include "orvane/graphs/grid/CategoryGraph.h"

#include <cstdint>
#include <memory>
#include <string>

namespace orvane {

/// `S` is the class of its series. Their number follows the grid's Z cell count.
template <class S>
class SeriesGraph : public CategoryGraph {
 public:
  /// Series `index`, 1..the number of series; a component error otherwise.
  std::shared_ptr<S> GetSeries(std::int16_t index) const {
    RequireSeries(index, *m_series);
    return m_series->Get<S>(index);
  }

 protected:
  SeriesGraph() {
    m_zCellCountFollowed = Grid().ZCellCountFollowed.Connect([this](std::int16_t count) {
      m_series->Replace(ResizedRows(*m_series, count, [] { return std::make_shared<S>(); }));
    });
  }

  void BuildSeries(LegendWiring& legend) override {
    const float x = host::Single(CellWidth(Grid()) / 2.0);
    for (const std::int16_t i : Indexes(m_series->Count())) {
      LayOutSeries(*m_series->Get<S>(i), x, i, std::to_string(i), legend);
    }
  }

  /// The depth of the deepest series, 0 when there is none.
  float LargestDepth() const { return LargestDepthIn(*m_series); }

 private:
  std::shared_ptr<SeriesCollection> m_series = std::make_shared<SeriesCollection>();
  host::Subscription m_zCellCountFollowed;
};

}  // namespace orvane
