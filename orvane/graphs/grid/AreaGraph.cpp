#include "orvane/graphs/grid/AreaGraph.h"

#include "orvane/graphs/grid/DescribeGridGraph.h"

namespace orvane {

const host::TypeInfo& AreaGraph::Type() const {
  static const host::TypeInfo type = host::Describe<AreaGraph>("Areas over a three-axis grid.")
                                         .With(DescribeSeriesGraph<AreaGraph>);
  return type;
}

}  // namespace orvane
