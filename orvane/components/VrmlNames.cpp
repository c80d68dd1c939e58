#include "orvane/components/VrmlNames.h"

namespace orvane::host {

template <>
const EnumInfo& Enumeration<VRMLFontFamily>() {
  static const EnumInfo info("VRMLFontFamily",
                             {{"VRML_SERIF", 0}, {"VRML_SANS", 1}, {"VRML_TYPEWRITER", 2}});
  return info;
}

template <>
const EnumInfo& Enumeration<VRMLFontStyle>() {
  static const EnumInfo info("VRMLFontStyle", {{"VRML_PLAIN", 0}, {"VRML_BOLD", 1}});
  return info;
}

template <>
const EnumInfo& Enumeration<LegendKeyStyle>() {
  static const EnumInfo info("LegendKeyStyle", {{"BOX_STYLE", 0}, {"SPHERE_STYLE", 1}});
  return info;
}

template <>
const EnumInfo& Enumeration<VRMLPopupAlignment>() {
  static const EnumInfo info(
      "VRMLPopupAlignment",
      {{"VRML_LEFT", 0}, {"VRML_RIGHT", 1}, {"VRML_TOP", 2}, {"VRML_BOTTOM", 3}});
  return info;
}

}  // namespace orvane::host
