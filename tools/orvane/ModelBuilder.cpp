#include "ModelBuilder.h"

#include "Json.h"

#include "orvane/automation/AutomationError.h"
#include "orvane/automation/Coercion.h"
#include "orvane/control/ObjectModel.h"

#include <algorithm>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace orvane::tool {
namespace {

using host::Member;
using host::Object;
using host::Value;
using host::ValueType;

constexpr std::string_view kChartKey = "chart";
constexpr std::string_view kSeriesKey = "series";

/// A JSON value on its way into the member at `path`: "GridProps.Width", "GetSeries(2).Height[1]".
struct Input {
  const JsonValue& json;
  std::string path;

  std::string PathOf(const std::string& member) const {
    return path.empty() ? member : path + "." + member;
  }
};

Input ElementOf(const Input& input, std::size_t index) {
  const auto& elements = std::get<JsonValue::Array>(input.json.content);
  return {elements[index], input.path + "[" + std::to_string(index + 1) + "]"};
}

const Member& MemberOf(const Object& object, int id) {
  return object.Type().Members()[static_cast<std::size_t>(id)];
}

class ModelBuilder {
 public:
  explicit ModelBuilder(const tables::Source& source) : m_source(source) {}

  std::shared_ptr<Object> Build() const {
    const JsonValue model = ReadJson(m_source);
    const auto* members = model.If<JsonValue::Object>();
    if (members == nullptr) m_source.Fail(model.offset, "a model is a JSON object");
    const auto chart = std::ranges::find(*members, kChartKey, &JsonMember::key);
    if (chart == members->end()) {
      m_source.Fail(model.offset, "the model does not name the class of its \"chart\"");
    }
    auto object = MakeChart({chart->value, chart->key});
    ApplyMembers(*object, *members, {model, ""});
    return object;
  }

 private:
  [[noreturn]] void Fail(const Input& input, const std::string& problem) const {
    m_source.Fail(input.json.offset, input.path + ": " + problem);
  }

  /// `access()`, with what it raises told at the place of `input`.
  template <class F>
  auto Guarded(const Input& input, F access) const {
    try {
      return access();
    } catch (const host::AutomationError& error) {
      Fail(input, error.Description());
    }
  }

  std::shared_ptr<Object> MakeChart(const Input& input) const {
    const auto* value = input.json.If<Value>();
    const auto* name = value == nullptr ? nullptr : value->If<std::string>();
    if (name == nullptr) Fail(input, "the class of a chart is a text");
    auto chart = CreateChart(*name);
    if (chart == nullptr) Fail(input, "there is no chart class \"" + *name + "\"");
    return chart;
  }

  /// Gives `object` what stands for it in the model: its members, its elements, or its value.
  void Apply(Object& object, const Input& input) const {
    const host::TypeInfo& type = object.Type();
    if (const auto* members = input.json.If<JsonValue::Object>()) {
      ApplyMembers(object, *members, input);
    } else if (const auto* elements = input.json.If<JsonValue::Array>()) {
      ApplyElements(object, *elements, input);
    } else if (const auto& value = type.ValueMembers(); value.size() == 1) {
      ApplyProperty(object, value[0], input);
    } else {
      Fail(input, "expected a JSON object with members of " + type.Name());
    }
  }

  void ApplyMembers(Object& object, const JsonValue::Object& members, const Input& input) const {
    for (const JsonMember& member : members) {
      const Input value{member.value, input.PathOf(member.key)};
      const int id = object.Type().Find(member.key);
      if (id >= 0) {
        ApplyMember(object, id, value);
      } else if (member.key == kSeriesKey && object.Type().Find("GetSeries") >= 0) {
        ApplySeries(object, value, input);
      } else if (!input.path.empty() || member.key != kChartKey) {
        m_source.Fail(member.offset, value.path + ": " + object.Type().Name() +
                                         " has no member \"" + member.key + "\"");
      }
    }
  }

  void ApplyMember(Object& object, int id, const Input& input) const {
    const Member& member = MemberOf(object, id);
    if (!member.isMethod && member.parameters.empty()) {
      ApplyProperty(object, id, input);
      return;
    }
    const auto* row = input.json.If<JsonValue::Array>();
    if (row == nullptr) Fail(input, "expected an array of arguments");
    const auto isRow = [](const JsonValue& json) { return json.If<JsonValue::Array>() != nullptr; };
    if (row->empty() || !std::ranges::all_of(*row, isRow)) {
      ApplyRow(object, id, *row, input);
      return;
    }
    for (const JsonValue& json : *row) {
      ApplyRow(object, id, *json.If<JsonValue::Array>(), {json, input.path});
    }
  }

  /// Writes a property, or applies `input` to the object that it holds.
  void ApplyProperty(Object& object, int id, const Input& input) const {
    const bool isSingle = input.json.If<JsonValue::Object>() == nullptr &&
                          input.json.If<JsonValue::Array>() == nullptr;
    const Member& member = MemberOf(object, id);
    const auto let = [&] {
      const Value value = ToArgument(input, member.type);
      Guarded(input, [&] { object.Let(id, value); });
    };
    if (isSingle && member.let) {
      let();
      return;
    }
    const Value held = Guarded(input, [&] { return object.Get(id); });
    if (isSingle && held.If<std::shared_ptr<Object>>() == nullptr) {
      let();  // Says that the property is read-only.
    }
    Apply(*ObjectIn(held, input), input);
  }

  /// Calls a method or writes an indexed property. A JSON object behind the arguments is applied to
  /// what the call, or the property at that index, returns.
  void ApplyRow(Object& object, int id, std::span<const JsonValue> row, const Input& input) const {
    const JsonValue* members = nullptr;
    if (!row.empty() && row.back().If<JsonValue::Object>() != nullptr) {
      members = &row.back();
      row = row.first(row.size() - 1);
    }
    const Member& member = MemberOf(object, id);
    std::vector<Value> arguments;
    std::string shown;
    for (const JsonValue& json : row) {
      const std::size_t i = arguments.size();
      const bool isParameter = i < member.parameters.size();
      const Input argument{json, input.path};
      arguments.push_back(
          ToArgument(argument, isParameter ? member.parameters[i].type : member.type));
      shown += (i == 0 ? "" : ", ") + host::ToText(arguments.back());
    }
    if (members != nullptr) {
      const Value result = Guarded(input, [&] { return object.Get(id, arguments); });
      const Input applied{*members, input.path + "(" + shown + ")"};
      Apply(*ObjectIn(result, applied), applied);
    } else if (member.isMethod) {
      Guarded(input, [&] { object.Call(id, arguments); });
    } else {
      Guarded(input, [&] { object.Let(id, arguments); });
    }
  }

  /// Appends to a list, or sets the components of a rotation or vector.
  void ApplyElements(Object& object, const JsonValue::Array& elements, const Input& input) const {
    const host::TypeInfo& type = object.Type();
    if (!type.Entry().name.empty()) {
      const int append = type.IdOf("Append");
      for (std::size_t i = 0; i < elements.size(); ++i) {
        const auto* row = elements[i].If<JsonValue::Array>();
        const Input element = ElementOf(input, i);
        ApplyRow(object, append, row != nullptr ? std::span(*row) : std::span(&elements[i], 1),
                 element);
      }
      return;
    }
    const std::vector<int>& parts = type.ValueMembers();
    if (parts.size() == 1 && MemberOf(object, parts[0]).isMethod) {
      ApplyRow(object, parts[0], elements, input);
      return;
    }
    if (parts.size() < 2) Fail(input, type.Name() + " is not a list");
    if (parts.size() != elements.size()) {
      Fail(input, type.Name() + " takes " + std::to_string(parts.size()) + " numbers, got " +
                      std::to_string(elements.size()));
    }
    for (std::size_t i = 0; i < elements.size(); ++i) {
      ApplyProperty(object, parts[i], ElementOf(input, i));
    }
  }

  /// "series": [ a, b ] is short for "GetSeries": [ [1, a], [2, b] ].
  void ApplySeries(Object& object, const Input& input, const Input& owner) const {
    const auto* elements = input.json.If<JsonValue::Array>();
    if (elements == nullptr) Fail(input, "expected an array with an object for each series");
    for (std::size_t i = 0; i < elements->size(); ++i) {
      const Value index = static_cast<std::int32_t>(i + 1);
      const Input series{(*elements)[i], owner.PathOf("GetSeries(" + host::ToText(index) + ")")};
      const Value result = Guarded(series, [&] { return object.Call("GetSeries", {index}); });
      Apply(*ObjectIn(result, series), series);
    }
  }

  std::shared_ptr<Object> ObjectIn(const Value& value, const Input& input) const {
    const auto* object = value.If<std::shared_ptr<Object>>();
    if (object == nullptr || *object == nullptr) {
      Fail(input, "this is no object, so it has no members");
    }
    return *object;
  }

  /// A scalar as the argument of a call or let. The number of an enumerator must be one, which the
  /// object model itself lets pass.
  Value ToArgument(const Input& input, const ValueType& type) const {
    const auto* value = input.json.If<Value>();
    if (value == nullptr) {
      Fail(input, "expected a single value" + (type.name.empty() ? "" : " (" + type.name + ")"));
    }
    if (const auto* number = value->If<std::int32_t>(); number != nullptr && type.enumeration) {
      const auto& enumerators = type.enumeration->Enumerators();
      if (std::ranges::find(enumerators, *number, &host::EnumInfo::Enumerator::value) ==
          enumerators.end()) {
        Fail(input, std::to_string(*number) + " is not a value of " + type.name);
      }
    }
    return *value;
  }

  const tables::Source& m_source;
};

}  // namespace

std::shared_ptr<host::Object> BuildModel(const tables::Source& source) {
  return ModelBuilder(source).Build();
}

std::string BuildWorld(const tables::Source& source) {
  return host::ToText(BuildModel(source)->Call("ExportToString", {true, true}));
}

}  // namespace orvane::tool
