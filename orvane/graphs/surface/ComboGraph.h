/// What the combination charts share: series and surfaces over one grid.
#pragma once

#include "orvane/automation/Arithmetic.h"
#include "orvane/graphs/surface/SurfaceChart.h"
#include "orvane/scene/GroupingNodes.h"
#include "orvane/scene/frmMain.h"

#include <memory>

namespace orvane {

/// `G` is the chart of its series, a ColumnGraph or a SeriesGraph. The legend lists the series,
/// then the surfaces. A surface keeps its point counts when the grid's cell counts change.
template <class G>
class ComboGraph : public SurfaceChart<G> {
 protected:
  ComboGraph() { this->RootNode()->children.Append(m_surfacesGroup); }

  void BuildSeries(LegendWiring& legend) override {
    constexpr double kPopupOffset = 0.6;  // Popups stand in front of the series.
    G::BuildSeries(legend);
    const float offset = host::Single(kPopupOffset * this->LargestDepth());
    for (const std::int16_t i : Indexes(this->SurfaceCount())) {
      this->GetSurface(i)->PopupZOffset(offset);
    }
    m_surfacesGroup->children.Clear();
    this->LayOutSurfaces(m_surfacesGroup->children, legend);
  }

 private:
  std::shared_ptr<scene::Group> m_surfacesGroup = scene::Create<scene::Group>();
};

}  // namespace orvane
