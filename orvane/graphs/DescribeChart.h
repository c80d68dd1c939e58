/// The members that all charts show hosts, described once, in the pieces between which the charts
/// put members of their own.
#pragma once

#include "orvane/automation/Describe.h"
#include "orvane/components/DrillUpInfo.h"
#include "orvane/graphs/Chart.h"

#include <memory>

namespace orvane {

template <class G>
void DescribeDrillUp(host::Describe<G>& graph) {
  graph
      .template Property<bool>("UseDrillUp", &G::UseDrillUp, &G::UseDrillUp,
                               {"Whether the drill-up cone is in the scene"})
      .template Property<std::shared_ptr<DrillUpInfo>>("DrillUpProps", &G::DrillUpProps,
                                                       {"The drill-up cone"});
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

}  // namespace orvane
