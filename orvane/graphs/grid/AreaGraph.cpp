#include "orvane/graphs/grid/AreaGraph.h"

#include "orvane/graphs/grid/DescribeGridGraph.h"

namespace orvane {

const host::TypeInfo& AreaGraph::Type() const {
  static const host::TypeInfo type =
      host::Describe<AreaGraph>("Areas over a three-axis grid.")
          .With(DescribeComponents<AreaGraph>)
          .Method(
              "GetSeries", &AreaGraph::GetSeries, {"Index"},
              {"One series; their number is the grid's Z cell count", "", "1..number of series"})
          .With(DescribeInteractivity<AreaGraph>)
          .With(DescribeViews<AreaGraph>)
          .With(DescribeExport<AreaGraph>);
  return type;
}

}  // namespace orvane
