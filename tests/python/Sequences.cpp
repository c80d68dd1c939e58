/// Applies property sequences, one a line of standard input as JSON, to charts and writes what came
/// of each, one a line: what every step gave or raised, and the world. The Python tests apply the
/// same sequences through the package and hold the two against each other.

#include "orvane/automation/AutomationError.h"
#include "orvane/automation/Object.h"
#include "orvane/control/ObjectModel.h"

#include <cstdint>
#include <cstdlib>
#include <iostream>
#include <memory>
#include <span>
#include <string>
#include <vector>

#include <nlohmann/json.hpp>

namespace {

using nlohmann::json;
using orvane::host::Object;
using orvane::host::Value;

/// A float that JSON does not know is {"number": "nan"}; a text that is no UTF-8 {"bytes": [...]}.
Value Decode(const json& from) {
  if (from.is_null()) return std::shared_ptr<Object>();
  if (from.is_boolean()) return from.get<bool>();
  if (from.is_string()) return from.get<std::string>();
  if (from.is_number_integer()) {
    const auto whole = from.get<std::int64_t>();
    if (whole < INT32_MIN || whole > INT32_MAX) return static_cast<double>(whole);
    return static_cast<std::int32_t>(whole);
  }
  if (from.is_number()) return from.get<double>();
  if (from.is_array()) {
    Value::Numbers row;
    for (const json& number : from) {
      const Value value = Decode(number);
      const auto* whole = value.If<std::int32_t>();
      row.push_back(whole != nullptr ? *whole : *value.If<double>());
    }
    return row;
  }
  if (from.contains("number")) {
    return std::strtod(from["number"].get_ref<const std::string&>().c_str(), nullptr);
  }
  const auto bytes = from["bytes"].get<std::vector<std::uint8_t>>();
  return std::string(bytes.begin(), bytes.end());
}

json Encode(const Value& value) {
  if (const auto* truth = value.If<bool>()) return *truth;
  if (const auto* whole = value.If<std::int32_t>()) return *whole;
  if (const auto* number = value.If<float>()) return static_cast<double>(*number);
  if (const auto* number = value.If<double>()) return *number;
  if (const auto* text = value.If<std::string>()) return *text;
  if (const auto* row = value.If<Value::Numbers>()) return *row;
  const auto* object = value.If<std::shared_ptr<Object>>();
  if (object == nullptr || *object == nullptr) return nullptr;
  return "an object of class " + (*object)->Type().Name();
}

Value Get(Object& object, const json& name, const json& arguments) {
  std::vector<Value> values;
  for (const json& argument : arguments) values.push_back(Decode(argument));
  return object.Get(object.Type().IdOf(name.get<std::string>()), values);
}

/// What `step` gives, or the number and message of the error that it raises.
json Apply(const std::shared_ptr<Object>& chart, const json& step) {
  try {
    Value at = chart;
    for (const json& hop : step["path"]) at = Get(*at.AsObject(), hop["name"], hop["arguments"]);
    Object& object = *at.AsObject();
    const auto name = step["name"].get<std::string>();
    if (step["do"] == "get") return Encode(Get(object, name, step["arguments"]));
    if (step["do"] == "let") {
      std::vector<Value> values;
      for (const json& argument : step["arguments"]) values.push_back(Decode(argument));
      object.Let(object.Type().IdOf(name), values);
    } else {
      object.Get(name).AsObject()->Let("Items", Decode(step["arguments"][0]));
    }
    return nullptr;
  } catch (const orvane::host::AutomationError& error) {
    return {{"number", static_cast<std::uint32_t>(error.Number())},
            {"message", error.Description()}};
  }
}

}  // namespace

int main() {
  std::string line;
  while (std::getline(std::cin, line)) {
    const json sequence = json::parse(line);
    const auto chart = orvane::CreateChart(sequence["chart"].get<std::string>());
    json results = json::array();
    for (const json& step : sequence["steps"]) results.push_back(Apply(chart, step));
    std::cout << results.dump(-1, ' ', false, json::error_handler_t::replace) << "\n";
  }
}
