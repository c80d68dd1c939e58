/// The members that grid charts show hosts, described once, in the pieces between which the charts
/// put members of their own.
#pragma once

#include "orvane/graphs/grid/GridGraph.h"
#include "orvane/host/Describe.h"

#include <memory>

namespace orvane {

/// BackgroundProps to ZAxisProps.
template <class G>
void DescribeComponents(host::Describe<G>& graph) {
  graph
      .template Property<std::shared_ptr<BackgroundInfo>>("BackgroundProps", &G::BackgroundProps,
                                                          {"The sky"})
      .template Property<std::shared_ptr<TextInfo>>("TitleProps", &G::TitleProps, {"The title"})
      .template Property<std::shared_ptr<GridInfo>>("GridProps", &G::GridProps,
                                                    {"The box of grid lines and walls"})
      .template Property<std::shared_ptr<LegendInfo>>("LegendProps", &G::LegendProps,
                                                      {"The legend"})
      .template Property<std::shared_ptr<DiscreteAxis>>("XAxisProps", &G::XAxisProps,
                                                        {"The axis of the categories"})
      .template Property<std::shared_ptr<ContinuousAxis>>("YAxisProps", &G::YAxisProps,
                                                          {"The axis of the values"})
      .template Property<std::shared_ptr<DiscreteAxis>>("ZAxisProps", &G::ZAxisProps,
                                                        {"The axis of the series"});
}

template <class G>
void DescribeInteractivity(host::Describe<G>& graph) {
  graph.template Property<std::shared_ptr<GridInteractivityInfo>>(
      "InteractivityProps", &G::InteractivityProps, {"Cones that load other worlds"});
}

template <class G>
void DescribeViews(host::Describe<G>& graph) {
  graph
      .template Property<std::shared_ptr<ViewpointCollection>>("Viewpoints", &G::Viewpoints,
                                                               {"The viewpoints"})
      .template Property<std::shared_ptr<LightCollection>>("Lights", &G::Lights, {"The lights"});
}

template <class G>
void DescribeExport(host::Describe<G>& graph) {
  graph
      .Method("ExportToFile", &G::ExportToFile, {"fName"},
              {"Writes the world to a file; false when it could not be written"})
      .Method("ExportToString", &G::ExportToString, {"includeBreaks", "includeTabs"},
              {"The world as text"});
}

/// All members of a chart with one series in each Z cell.
template <class G>
void DescribeSeriesGraph(host::Describe<G>& graph) {
  graph.With(DescribeComponents<G>)
      .Method("GetSeries", &G::GetSeries, {"Index"},
              {"One series; their number is the grid's Z cell count", "", "1..number of series"})
      .With(DescribeInteractivity<G>)
      .With(DescribeViews<G>)
      .With(DescribeExport<G>);
}

}  // namespace orvane
