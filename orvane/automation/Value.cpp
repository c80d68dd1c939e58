#include "orvane/automation/Value.h"

#include "orvane/automation/AutomationError.h"
#include "orvane/automation/Coercion.h"
#include "orvane/automation/Object.h"

namespace orvane::host {

const std::shared_ptr<Object>& Value::AsObject() const {
  const auto* object = If<std::shared_ptr<Object>>();
  if (object == nullptr || *object == nullptr) {
    throw AutomationError(ErrorNumber::TypeMismatch,
                          "Type mismatch: expected an object, got " + Describe());
  }
  return *object;
}

std::string Value::Describe() const {
  if (const auto* value = If<bool>()) return *value ? "Boolean true" : "Boolean false";
  if (If<std::int32_t>() || If<float>() || If<double>()) return "number " + ToText(*this);
  if (const auto* value = If<std::string>()) return "String \"" + *value + "\"";
  if (const auto* row = If<Numbers>()) {
    return "a row of " + std::to_string(row->size()) + " number(s)";
  }
  if (const auto* value = If<std::shared_ptr<Object>>()) {
    return *value ? "an object of class " + (*value)->Type().Name() : "no object";
  }
  return "nothing";
}

}  // namespace orvane::host
