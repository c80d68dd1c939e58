/// The members that surfaces, and the charts that hold them, show hosts, described once. Each is a
/// step of its own, since the classes put members of their own in between.
#pragma once

#include "orvane/automation/Describe.h"
#include "orvane/graphs/surface/SurfaceInfo.h"

#include <cstdint>
#include <memory>
#include <string>

namespace orvane {

template <class S>
void DescribeMaterial(host::Describe<S>& surface) {
  surface.template Property<std::shared_ptr<scene::Material>>(
      "Material", &S::Material, {"Colours and transparency of the surface"});
}

template <class S>
void DescribeLegendText(host::Describe<S>& surface) {
  surface.template Property<std::string>("LegendText", &S::LegendText, &S::LegendText,
                                         {"Text of the legend entry; none when it is blank"});
}

template <class S>
void DescribeWireColor(host::Describe<S>& surface) {
  surface.Color("WireColor", &S::WireColor, &S::WireColor, {"Colour of the wires"});
}

/// GetSurface and SurfaceCount of a chart.
template <class G>
void DescribeSurfaces(host::Describe<G>& graph) {
  graph
      .Method("GetSurface", &G::GetSurface, {{"Index", host::UpTo("SurfaceCount")}},
              {"One surface"})
      .template Property<std::int16_t>("SurfaceCount", &G::SurfaceCount, &G::SurfaceCount,
                                       {"Number of surfaces", "", host::kNotNegative});
}

}  // namespace orvane
