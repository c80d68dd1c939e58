/// The members that all legends show hosts, described once.
#pragma once

#include "orvane/automation/Describe.h"
#include "orvane/components/ChartLegend.h"

namespace orvane {

template <class L>
void DescribeLegend(host::Describe<L>& legend) {
  legend
      .template Property<LegendKeyStyle>("KeyStyle", &L::KeyStyle, &L::KeyStyle,
                                         {"Shape of the keys"})
      .template Property<bool>("IsBillboarded", &L::IsBillboarded, &L::IsBillboarded,
                               {"Whether the legend turns to face the viewer"})
      .template Property<float>("TextHeight", &L::TextHeight, &L::TextHeight,
                                {"Height of the texts; also sets the gap between entries",
                                 "scene units", host::kPositive})
      .Color("TextColor", &L::TextColor, &L::TextColor, {"Colour of the texts"});
}

}  // namespace orvane
