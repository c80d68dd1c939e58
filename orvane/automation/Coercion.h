/// How late-bound values become typed arguments and back, one rule for each type.
///
/// Numbers, truth values and texts that read as numbers go into one another as in a scripting host:
/// whole-number targets round half to even, true is -1 as a number. What does not fit raises
/// Overflow; what has no meaning raises TypeMismatch, naming the place.
#pragma once

#include "orvane/automation/Arithmetic.h"
#include "orvane/automation/AutomationError.h"
#include "orvane/automation/Enumeration.h"
#include "orvane/automation/Export.h"
#include "orvane/automation/Object.h"
#include "orvane/automation/Value.h"

#include <concepts>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <type_traits>

namespace orvane::host {

/// Where an argument goes, for messages: "GridInfo.Width", "argument 1 (Index) of ...".
struct Place {
  const TypeInfo& type;
  const Member& member;
  std::size_t argument;  ///< 0-based; the number of parameters for the value of a let.

  const ValueType& Type() const {
    return argument < member.parameters.size() ? member.parameters[argument].type : member.type;
  }
  ORVANE_API std::string Describe() const;
};

/// `value` as people write it. Raises TypeMismatch for objects and rows.
ORVANE_API std::string ToText(const Value& value);

/// The colour that `text`, "#rrggbb", spells, if it does.
ORVANE_API std::optional<std::int32_t> ParseColor(std::string_view text);
/// `color`, 0..0xFFFFFF, as "#rrggbb".
ORVANE_API std::string ColorText(std::int32_t color);

ORVANE_API bool ToBoolean(const Value& value, const Place& place);
ORVANE_API double ToNumber(const Value& value, const Place& place);
/// Raises Overflow outside `low`..`high`, after rounding half to even.
ORVANE_API std::int32_t ToWhole(const Value& value, double low, double high, const Place& place);
/// A whole number of 32 bits; at a place for a colour, "#rrggbb" is one.
ORVANE_API std::int32_t ToInt32(const Value& value, const Place& place);
ORVANE_API std::string ToText(const Value& value, const Place& place);
ORVANE_API std::int32_t ToEnumerator(const Value& value, const EnumInfo& info, const Place& place);
[[noreturn]] ORVANE_API void RaiseMismatch(const Value& value, const std::string& expected,
                                           const Place& place);
/// Raises Overflow for what a 32-bit float cannot hold, NaN included.
ORVANE_API float ToSingle(const Value& value, const Place& place);

/// Conversion of `T` to and from Value: Type(), From(value, place) and To(t).
template <class T>
struct Automation;

template <>
struct Automation<bool> {
  static ValueType Type() { return {"Boolean", nullptr}; }
  static bool From(const Value& value, const Place& place) { return ToBoolean(value, place); }
  static Value To(bool value) { return value; }
};

template <>
struct Automation<std::int16_t> {
  static ValueType Type() { return {"Int16", nullptr}; }
  static std::int16_t From(const Value& value, const Place& place) {
    return static_cast<std::int16_t>(ToWhole(value, INT16_MIN, INT16_MAX, place));
  }
  static Value To(std::int16_t value) { return static_cast<std::int32_t>(value); }
};

template <>
struct Automation<std::int32_t> {
  static ValueType Type() { return {"Int32", nullptr}; }
  static std::int32_t From(const Value& value, const Place& place) { return ToInt32(value, place); }
  static Value To(std::int32_t value) { return value; }
};

template <>
struct Automation<float> {
  static ValueType Type() { return {"Single", nullptr}; }
  static float From(const Value& value, const Place& place) { return ToSingle(value, place); }
  static Value To(float value) { return value; }
};

template <>
struct Automation<double> {
  static ValueType Type() { return {"Double", nullptr}; }
  static double From(const Value& value, const Place& place) { return ToNumber(value, place); }
  static Value To(double value) { return value; }
};

template <>
struct Automation<std::string> {
  static ValueType Type() { return {"String", nullptr}; }
  static std::string From(const Value& value, const Place& place) { return ToText(value, place); }
  static Value To(std::string value) { return value; }
};

template <class E>
requires std::is_enum_v<E>
struct Automation<E> {
  static ValueType Type() { return {Enumeration<E>().Name(), &Enumeration<E>()}; }
  static E From(const Value& value, const Place& place) {
    return static_cast<E>(ToEnumerator(value, Enumeration<E>(), place));
  }
  static Value To(E value) { return static_cast<std::int32_t>(value); }
};

/// Objects cross by owning pointer, under the name of their class (`T::kClassName`). No object is
/// nullptr; whether that will do is for the member to say.
template <class T>
struct Automation<std::shared_ptr<T>> {
  static ValueType Type() { return {T::kClassName, nullptr}; }
  static std::shared_ptr<T> From(const Value& value, const Place& place) {
    const auto* object = value.If<std::shared_ptr<Object>>();
    if (object != nullptr && *object == nullptr) return nullptr;
    auto typed = object == nullptr ? nullptr : std::dynamic_pointer_cast<T>(*object);
    if (typed == nullptr)
      RaiseMismatch(value, std::string("an object of class ") + T::kClassName, place);
    return typed;
  }
  static Value To(const std::shared_ptr<T>& value) {
    if constexpr (std::derived_from<T, Object>) return std::shared_ptr<Object>(value);
    return std::dynamic_pointer_cast<Object>(value);
  }
};

/// What C++ is handed by reference, a late-bound caller gets as an owning pointer.
template <class T>
requires std::derived_from<T, Object>
struct Automation<T&> {
  static ValueType Type() { return {T::kClassName, nullptr}; }
  static Value To(T& value) { return value.Self(); }
};

}  // namespace orvane::host
