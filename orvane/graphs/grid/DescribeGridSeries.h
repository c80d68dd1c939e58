/// The members that grid series show hosts, described once. Each is a step of its own, since the
/// classes put members of their own in between.
#pragma once

#include "orvane/automation/Describe.h"
#include "orvane/graphs/grid/GridSeries.h"

#include <memory>
#include <string>

namespace orvane {

template <class S>
void DescribeDepth(host::Describe<S>& series) {
  series.template Property<float>("Depth", &S::Depth, &S::Depth,
                                  {"Thickness along Z", "scene units", host::kPositive});
}

/// Material, Height, LegendText and PopupProps.
template <class S>
void DescribeData(host::Describe<S>& series) {
  series
      .template Property<std::shared_ptr<scene::Material>>(
          "Material", &S::Material, {"Colours and transparency of the series"})
      .template Property<scene::MFFloat>("Height", &S::Height,
                                         {"The values, one an X cell; a live list", "scene units"})
      .template Property<std::string>("LegendText", &S::LegendText, &S::LegendText,
                                      {"Text of the legend entry"})
      .template Property<std::shared_ptr<SeriesPopupInfo>>(
          "PopupProps", &S::PopupProps, {"The texts that pop up over the values"});
}

template <class S>
void DescribeShowInLegend(host::Describe<S>& series) {
  series.template Property<bool>("ShowInLegend", &S::ShowInLegend, &S::ShowInLegend,
                                 {"Whether the series has a legend entry and a toggle"});
}

}  // namespace orvane
