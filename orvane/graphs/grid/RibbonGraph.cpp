#include "orvane/graphs/grid/RibbonGraph.h"

#include "orvane/graphs/grid/DescribeGridGraph.h"

namespace orvane {

const host::TypeInfo& RibbonGraph::Type() const {
  static const host::TypeInfo type = host::Describe<RibbonGraph>("Bands over a three-axis grid.")
                                         .With(DescribeSeriesGraph<RibbonGraph>);
  return type;
}

}  // namespace orvane
