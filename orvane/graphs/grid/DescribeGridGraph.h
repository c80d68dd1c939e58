/// The members that grid charts show hosts, described once, in the pieces between which the charts
/// put members of their own.
#pragma once

#include "orvane/automation/Describe.h"
#include "orvane/graphs/DescribeChart.h"
#include "orvane/graphs/grid/CategoryGraph.h"

#include <memory>
#include <utility>

namespace orvane {

/// BackgroundProps to ZAxisProps. The axes along X and Z may be of categories or of values.
template <class G>
void DescribeComponents(host::Describe<G>& graph) {
  using XAxis = decltype(std::declval<const G&>().XAxisProps());
  using ZAxis = decltype(std::declval<const G&>().ZAxisProps());
  graph
      .template Property<std::shared_ptr<BackgroundInfo>>("BackgroundProps", &G::BackgroundProps,
                                                          {"The sky"})
      .template Property<std::shared_ptr<TextInfo>>("TitleProps", &G::TitleProps, {"The title"})
      .template Property<std::shared_ptr<GridInfo>>("GridProps", &G::GridProps,
                                                    {"The box of grid lines and walls"})
      .template Property<std::shared_ptr<LegendInfo>>("LegendProps", &G::LegendProps,
                                                      {"The legend"})
      .template Property<XAxis>("XAxisProps", &G::XAxisProps, {"The axis along X"})
      .template Property<std::shared_ptr<ContinuousAxis>>("YAxisProps", &G::YAxisProps,
                                                          {"The axis of the values, along Y"})
      .template Property<ZAxis>("ZAxisProps", &G::ZAxisProps, {"The axis along Z"});
}

template <class G>
void DescribeInteractivity(host::Describe<G>& graph) {
  graph.template Property<std::shared_ptr<GridInteractivityInfo>>(
      "InteractivityProps", &G::InteractivityProps, {"Cones that load other worlds"});
}

/// BackgroundProps to Lights of a chart with one series in each Z cell.
template <class G>
void DescribeSeries(host::Describe<G>& graph) {
  graph.With(DescribeComponents<G>)
      .Method("GetSeries", &G::GetSeries, {{"Index", host::UpTo("Z cells")}},
              {"One series; their number is the grid's Z cell count"})
      .With(DescribeInteractivity<G>)
      .With(DescribeViews<G>);
}

/// All members of a chart of nothing but such series.
template <class G>
void DescribeSeriesGraph(host::Describe<G>& graph) {
  graph.With(DescribeSeries<G>).With(DescribeExport<G>);
}

}  // namespace orvane
