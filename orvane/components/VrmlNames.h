/// Enumerations and the VRML strings that stand for them in node fields.
#pragma once

#include "orvane/automation/Enumeration.h"

#include <array>
#include <cstdint>
#include <string>

namespace orvane {

enum class VRMLFontFamily : std::int32_t { VRML_SERIF = 0, VRML_SANS = 1, VRML_TYPEWRITER = 2 };
enum class VRMLFontStyle : std::int32_t { VRML_PLAIN = 0, VRML_BOLD = 1 };
enum class LegendKeyStyle : std::int32_t { BOX_STYLE = 0, SPHERE_STYLE = 1 };
enum class LabelAlignment : std::int32_t { LEFT_ALIGN = 0, RIGHT_ALIGN = 1 };
enum class LabelingOrder : std::int32_t { MIN_TO_MAX = 0, MAX_TO_MIN = 1 };
enum class VRMLPopupAlignment : std::int32_t {
  VRML_LEFT = 0,
  VRML_RIGHT = 1,
  VRML_TOP = 2,
  VRML_BOTTOM = 3
};

/// The VRML strings of enumeration `E`, in order of its values 0, 1, ...
template <class E>
inline constexpr std::array<const char*, 0> kVrmlNames{};

template <>
inline constexpr std::array kVrmlNames<VRMLFontFamily>{"SERIF", "SANS", "TYPEWRITER"};
template <>
inline constexpr std::array kVrmlNames<VRMLFontStyle>{"PLAIN", "BOLD"};
template <>
inline constexpr std::array kVrmlNames<LegendKeyStyle>{"BOX", "SPHERE"};
template <>
inline constexpr std::array kVrmlNames<LabelAlignment>{"BEGIN", "END"};
template <>
inline constexpr std::array kVrmlNames<VRMLPopupAlignment>{"LEFT", "RIGHT", "TOP", "BOTTOM"};

/// True when `value` is one of the enumerators of `E`.
template <class E>
constexpr bool IsEnumerator(E value) {
  const auto index = static_cast<std::int32_t>(value);
  return index >= 0 && index < static_cast<std::int32_t>(kVrmlNames<E>.size());
}

/// The VRML string of an enumerator.
template <class E>
constexpr const char* VrmlName(E value) {
  return kVrmlNames<E>.at(static_cast<std::size_t>(value));
}

/// The enumerator that `name` stands for; the first one for any other text.
template <class E>
E FromVrmlName(const std::string& name) {
  for (std::size_t i = 0; i < kVrmlNames<E>.size(); ++i) {
    if (name == kVrmlNames<E>[i]) return static_cast<E>(i);
  }
  return static_cast<E>(0);
}

}  // namespace orvane

namespace orvane::host {

template <>
ORVANE_API const EnumInfo& Enumeration<VRMLFontFamily>();
template <>
ORVANE_API const EnumInfo& Enumeration<VRMLFontStyle>();
template <>
ORVANE_API const EnumInfo& Enumeration<LegendKeyStyle>();
template <>
ORVANE_API const EnumInfo& Enumeration<VRMLPopupAlignment>();

}  // namespace orvane::host
