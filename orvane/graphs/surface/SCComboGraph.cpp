#include "orvane/graphs/surface/SCComboGraph.h"

#include "orvane/graphs/grid/DescribeColumnGraph.h"
#include "orvane/graphs/surface/DescribeSurface.h"

namespace orvane {

const host::TypeInfo& SCComboGraph::Type() const {
  using Graph = SCComboGraph;
  static const host::TypeInfo type =
      host::Describe<Graph>("Surfaces and columns over a three-axis grid.")
          .With(DescribeColumns<Graph>)
          .With(DescribeSurfaces<Graph>)
          .With(DescribeExport<Graph>)
          .With(DescribeColumnsPerCell<Graph>);
  return type;
}

}  // namespace orvane
