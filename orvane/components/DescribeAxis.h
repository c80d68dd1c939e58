/// The members that both kinds of axis show hosts, described once.
#pragma once

#include "orvane/automation/Describe.h"
#include "orvane/components/Axis.h"

namespace orvane {

template <class A>
void DescribeAxis(host::Describe<A>& axis) {
  axis.template Property<std::string>("Header", &A::Header, &A::Header,
                                      {"Text beside the labels; blank for none"})
      .Color("LabelColor", &A::LabelColor, &A::LabelColor, {"Colour of the labels"})
      .template Property<VRMLFontFamily>("LabelFont", &A::LabelFont, &A::LabelFont,
                                         {"Font family of the labels"})
      .template Property<VRMLFontStyle>("LabelStyle", &A::LabelStyle, &A::LabelStyle,
                                        {"Font style of the labels"})
      .template Property<float>("LabelHeight", &A::LabelHeight, &A::LabelHeight,
                                {"Height of a label", "scene units", host::kPositive})
      .Color("HeaderColor", &A::HeaderColor, &A::HeaderColor, {"Colour of the header"})
      .template Property<VRMLFontFamily>("HeaderFont", &A::HeaderFont, &A::HeaderFont,
                                         {"Font family of the header"})
      .template Property<VRMLFontStyle>("HeaderStyle", &A::HeaderStyle, &A::HeaderStyle,
                                        {"Font style of the header"})
      .template Property<float>("HeaderHeight", &A::HeaderHeight, &A::HeaderHeight,
                                {"Height of the header", "scene units", host::kPositive})
      .template Property<bool>("ShowAxis", &A::ShowAxis, &A::ShowAxis,
                               {"Whether the axis is in the scene"});
}

}  // namespace orvane
