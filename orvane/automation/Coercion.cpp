#include "orvane/automation/Coercion.h"

#include <charconv>
#include <cmath>
#include <limits>

namespace orvane::host {
namespace {

/// The number that the whole of `text` spells, if it does.
bool ReadNumber(std::string_view text, double& number) {
  const char* end = text.data() + text.size();
  const auto result = std::from_chars(text.data(), end, number);
  return result.ec == std::errc() && result.ptr == end;
}

[[noreturn]] void RaiseOverflow(const std::string& problem, const Place& place) {
  throw AutomationError(ErrorNumber::Overflow, "Overflow: " + place.Describe() + ": " + problem);
}

template <class T>
std::string Shortest(T number) {
  char buffer[32];
  return {buffer, std::to_chars(buffer, buffer + sizeof buffer, number).ptr};
}

}  // namespace

std::string Place::Describe() const {
  auto name = type.Name() + "." + member.name;
  if (argument >= member.parameters.size()) return name;
  return "argument " + std::to_string(argument + 1) + " (" + member.parameters[argument].name +
         ") of " + name;
}

void RaiseMismatch(const Value& value, const std::string& expected, const Place& place) {
  throw AutomationError(
      ErrorNumber::TypeMismatch,
      "Type mismatch: " + place.Describe() + " expects " + expected + ", got " + value.Describe());
}

std::string ToText(const Value& value) {
  if (const auto* text = value.If<std::string>()) return *text;
  if (const auto* truth = value.If<bool>()) return *truth ? "True" : "False";
  if (const auto* whole = value.If<std::int32_t>()) return Shortest(*whole);
  if (const auto* number = value.If<float>()) return Shortest(*number);
  if (const auto* number = value.If<double>()) return Shortest(*number);
  throw AutomationError(ErrorNumber::TypeMismatch,
                        "Type mismatch: expected a String, got " + value.Describe());
}

std::string ToText(const Value& value, const Place& place) {
  if (value.IsEmpty() || value.If<Value::Numbers>() || value.If<std::shared_ptr<Object>>()) {
    RaiseMismatch(value, "a String", place);
  }
  return ToText(value);
}

bool ToBoolean(const Value& value, const Place& place) {
  if (const auto* truth = value.If<bool>()) return *truth;
  if (const auto* text = value.If<std::string>()) {
    if (EqualNoCase(*text, "true")) return true;
    if (EqualNoCase(*text, "false")) return false;
    RaiseMismatch(value, "a Boolean", place);
  }
  return ToNumber(value, place) != 0;
}

double ToNumber(const Value& value, const Place& place) {
  if (const auto* number = value.If<double>()) return *number;
  if (const auto* number = value.If<float>()) return static_cast<double>(*number);
  if (const auto* whole = value.If<std::int32_t>()) return *whole;
  if (const auto* truth = value.If<bool>()) return *truth ? -1 : 0;
  double number = 0;
  const auto* text = value.If<std::string>();
  if (text == nullptr || !ReadNumber(*text, number)) RaiseMismatch(value, "a number", place);
  return number;
}

float ToSingle(const Value& value, const Place& place) {
  const double number = ToNumber(value, place);
  if (!(std::abs(number) <= std::numeric_limits<float>::max())) {
    RaiseOverflow(Shortest(number) + " does not fit a 32-bit float", place);
  }
  return Single(number);
}

std::int32_t ToWhole(const Value& value, double low, double high, const Place& place) {
  const double whole = std::nearbyint(ToNumber(value, place));
  if (!(whole >= low && whole <= high)) {
    RaiseOverflow(
        Shortest(whole) + " is not in the range [" + Shortest(low) + ".." + Shortest(high) + "]",
        place);
  }
  return static_cast<std::int32_t>(whole);
}

std::int32_t ToInt32(const Value& value, const Place& place) {
  const auto* text = value.If<std::string>();
  if (text != nullptr && place.Type() == kColorType && text->starts_with('#')) {
    if (const auto color = ParseColor(*text)) return *color;
    RaiseMismatch(value, "a colour (#rrggbb)", place);
  }
  return ToWhole(value, INT32_MIN, INT32_MAX, place);
}

std::optional<std::int32_t> ParseColor(std::string_view text) {
  if (text.size() != 7 || text[0] != '#') return {};
  std::uint32_t rgb = 0;
  const auto result = std::from_chars(text.data() + 1, text.data() + text.size(), rgb, 16);
  if (result.ec != std::errc() || result.ptr != text.data() + text.size()) return {};
  return static_cast<std::int32_t>(rgb >> 16 | (rgb & 0xFF00) | (rgb & 0xFF) << 16);
}

std::string ColorText(std::int32_t color) {
  constexpr std::string_view kDigits = "0123456789abcdef";
  std::string text = "#";
  for (const int shift : {4, 0, 12, 8, 20, 16}) text += kDigits[color >> shift & 0xF];
  return text;
}

std::int32_t ToEnumerator(const Value& value, const EnumInfo& info, const Place& place) {
  if (const auto* text = value.If<std::string>()) {
    if (const auto number = info.ValueOf(*text)) return *number;
    double ignored = 0;
    if (!ReadNumber(*text, ignored)) {
      std::string expected = "one of";
      for (const auto& enumerator : info.Enumerators()) expected += " " + enumerator.name;
      RaiseMismatch(value, expected, place);
    }
  }
  return ToWhole(value, INT32_MIN, INT32_MAX, place);
}

}  // namespace orvane::host
