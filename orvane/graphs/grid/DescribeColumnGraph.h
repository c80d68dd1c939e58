/// The members that charts of columns show hosts, described once.
#pragma once

#include "orvane/graphs/grid/ColumnGraph.h"
#include "orvane/graphs/grid/DescribeGridGraph.h"

#include <cstdint>

namespace orvane {

/// BackgroundProps to Lights.
template <class G>
void DescribeColumns(host::Describe<G>& graph) {
  graph.With(DescribeComponents<G>)
      .Method("GetSeries", &G::GetSeries,
              {{"Index", host::UpTo("Z cells")}, {"cellIndex", host::UpTo("ColumnsPerCell"), 1}},
              {"The series of one Z row and slot"})
      .With(DescribeInteractivity<G>)
      .template Property<ColumnCellSpacing>("ColumnSpacingStyle", &G::ColumnSpacingStyle,
                                            &G::ColumnSpacingStyle, {"How the slots share a cell"})
      .With(DescribeViews<G>);
}

template <class G>
void DescribeColumnsPerCell(host::Describe<G>& graph) {
  graph.template Property<std::int16_t>("ColumnsPerCell", &G::ColumnsPerCell, &G::ColumnsPerCell,
                                        {"Slots side by side in each cell", "", host::kAtLeastOne});
}

}  // namespace orvane
