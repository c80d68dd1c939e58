/// The members that all legends show hosts, described once.
#pragma once

#include "orvane/automation/Describe.h"
#include "orvane/components/ChartLegend.h"

namespace orvane {

template <class L>
void DescribeLegend(host::Describe<L>& legend) {
  legend
      .template Property<LegendKeyStyle>("KeyStyle", &L::KeyStyle, &L::KeyStyle,
                                         {"Shape of the keys", "", "", "BOX_STYLE"})
      .template Property<bool>("IsBillboarded", &L::IsBillboarded, &L::IsBillboarded,
                               {"Whether the legend turns to face the viewer", "", "", "false"})
      .template Property<float>(
          "TextHeight", &L::TextHeight, &L::TextHeight,
          {"Height of the texts; also sets the gap between entries", "scene units", "> 0", "1"})
      .template Property<std::int32_t>(
          "TextColor", &L::TextColor, &L::TextColor,
          {"Colour of the texts", "host RGB", "0..16777215", "16777215"});
}

}  // namespace orvane
