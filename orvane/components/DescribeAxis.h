/// The members that both kinds of axis show hosts, described once.
#pragma once

#include "orvane/automation/Describe.h"
#include "orvane/components/Axis.h"

namespace orvane {

template <class A>
void DescribeAxis(host::Describe<A>& axis) {
  axis.template Property<std::string>("Header", &A::Header, &A::Header,
                                      {"Text beside the labels; blank for none", "", "", "\"\""})
      .template Property<std::int32_t>(
          "LabelColor", &A::LabelColor, &A::LabelColor,
          {"Colour of the labels", "host RGB", "0..16777215", "16777215"})
      .template Property<VRMLFontFamily>("LabelFont", &A::LabelFont, &A::LabelFont,
                                         {"Font family of the labels", "", "", "VRML_SERIF"})
      .template Property<VRMLFontStyle>("LabelStyle", &A::LabelStyle, &A::LabelStyle,
                                        {"Font style of the labels", "", "", "VRML_PLAIN"})
      .template Property<float>("LabelHeight", &A::LabelHeight, &A::LabelHeight,
                                {"Height of a label", "scene units", "> 0", "1"})
      .template Property<std::int32_t>(
          "HeaderColor", &A::HeaderColor, &A::HeaderColor,
          {"Colour of the header", "host RGB", "0..16777215", "16777215"})
      .template Property<VRMLFontFamily>("HeaderFont", &A::HeaderFont, &A::HeaderFont,
                                         {"Font family of the header", "", "", "VRML_SERIF"})
      .template Property<VRMLFontStyle>("HeaderStyle", &A::HeaderStyle, &A::HeaderStyle,
                                        {"Font style of the header", "", "", "VRML_PLAIN"})
      .template Property<float>("HeaderHeight", &A::HeaderHeight, &A::HeaderHeight,
                                {"Height of the header", "scene units", "> 0", "1"})
      .template Property<bool>("ShowAxis", &A::ShowAxis, &A::ShowAxis,
                               {"Whether the axis is in the scene", "", "", "true"});
}

}  // namespace orvane
