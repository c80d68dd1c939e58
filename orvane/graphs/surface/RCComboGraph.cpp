#include "orvane/graphs/surface/RCComboGraph.h"

#include "orvane/graphs/grid/DescribeGridGraph.h"
#include "orvane/graphs/surface/DescribeSurface.h"

namespace orvane {

const host::TypeInfo& RCComboGraph::Type() const {
  using Graph = RCComboGraph;
  static const host::TypeInfo type =
      host::Describe<Graph>("Surfaces and bands over a three-axis grid.")
          .With(DescribeSeries<Graph>)
          .With(DescribeSurfaces<Graph>)
          .With(DescribeExport<Graph>);
  return type;
}

}  // namespace orvane
