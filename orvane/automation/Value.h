/// A late-bound value: what a scripting host hands in and gets back.
#pragma once

#include "orvane/automation/Export.h"

#include <cstdint>
#include <memory>
#include <string>
#include <utility>
#include <variant>
#include <vector>

namespace orvane::host {

class Object;

/// Nothing, a truth value, a whole number, a 32-bit or 64-bit float, a text, a row of numbers, or
/// an object.
class ORVANE_API Value {
 public:
  using Numbers = std::vector<double>;

  Value() = default;
  // NOLINTBEGIN(google-explicit-constructor): values are written as arguments.
  Value(bool value) : m_storage(value) {}
  Value(std::int32_t value) : m_storage(value) {}
  Value(float value) : m_storage(value) {}
  Value(double value) : m_storage(value) {}
  Value(std::string value) : m_storage(std::move(value)) {}
  Value(const char* value) : m_storage(std::string(value)) {}
  Value(Numbers value) : m_storage(std::move(value)) {}
  Value(std::shared_ptr<Object> value) : m_storage(std::move(value)) {}
  // NOLINTEND(google-explicit-constructor)

  bool IsEmpty() const { return std::holds_alternative<std::monostate>(m_storage); }

  /// The value when it is of exactly this type, else nullptr.
  template <class T>
  const T* If() const {
    return std::get_if<T>(&m_storage);
  }

  /// The object held. Raises TypeMismatch when the value is none.
  const std::shared_ptr<Object>& AsObject() const;

  /// For people: `number 2.5`, `String "abc"`, `an object of class GridInfo`.
  std::string Describe() const;

  friend bool operator==(const Value&, const Value&) = default;

 private:
  std::variant<std::monostate, bool, std::int32_t, float, double, std::string, Numbers,
               std::shared_ptr<Object>>
      m_storage;
};

}  // namespace orvane::host
