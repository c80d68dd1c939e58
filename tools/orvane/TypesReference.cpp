#include "TypesReference.h"

#include "orvane/automation/Coercion.h"
#include "orvane/automation/Object.h"
#include "orvane/control/ObjectModel.h"

#include <algorithm>
#include <cctype>
#include <set>
#include <string>
#include <vector>

namespace orvane::tool {
namespace {

using host::EnumInfo;
using host::Member;
using host::TypeInfo;

std::string Signature(const std::string& name, const std::vector<host::Parameter>& parameters) {
  std::string text = "`" + name + "(";
  for (const auto& parameter : parameters) {
    if (&parameter != &parameters.front()) text += ", ";
    if (parameter.isOut) text += "out ";
    text += parameter.name + ": " + parameter.type.name;
    if (!parameter.fallback.IsEmpty()) text += " = " + host::ToText(parameter.fallback);
  }
  return text + ")`";
}

/// What the property or the parameters of the method accept.
std::string RangeOf(const Member& member) {
  std::string text = member.help.range.Text();
  for (const auto& parameter : member.parameters) {
    const std::string range = parameter.range.Text();
    if (range.empty() || parameter.isOut) continue;
    if (!text.empty()) text += ", ";
    text +=
        parameter.name + (std::isdigit(static_cast<unsigned char>(range[0])) ? ": " : " ") + range;
  }
  return text;
}

std::string Access(const Member& member) {
  if (member.isMethod) return "method";
  if (!member.let) return "get";
  return member.get ? "get, let" : "let";
}

/// The name of a type, as a link to its section when it is one of `linked`.
std::string TypeName(const host::ValueType& type, const std::set<std::string>& linked) {
  if (!linked.contains(type.name)) return type.name;
  std::string anchor = type.name;
  for (char& c : anchor) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
  return "[" + type.name + "](#" + anchor + ")";
}

void WriteMember(std::ostream& out, host::Object& fresh, const Member& member,
                 const std::set<std::string>& linked) {
  const bool isPlain = !member.isMethod && member.parameters.empty();
  out << "| " << (isPlain ? "`" + member.name + "`" : Signature(member.name, member.parameters))
      << " | " << TypeName(member.type, linked) << " | " << Access(member) << " | "
      << member.help.text;
  if (!member.help.unit.empty()) out << ", in " << member.help.unit;
  out << " | " << RangeOf(member) << " | " << InitialText(fresh, member) << " |\n";
}

void WriteClass(std::ostream& out, host::Object& fresh, const std::set<std::string>& linked) {
  const TypeInfo& type = fresh.Type();
  out << "## " << type.Name() << "\n\n" << type.Text() << "\n\n";
  if (type.Members().empty()) return;
  out << "| Member | Type | Access | Meaning | Range | Initially |\n|---|---|---|---|---|---|\n";
  for (const Member& member : type.Members()) WriteMember(out, fresh, member, linked);
  for (const auto& event : type.Events()) {
    out << "| " << Signature(event.name, event.parameters) << " |  | event | " << event.text
        << " |  |  |\n";
  }
  out << "\n";
}

/// Adds the enumerations that `type` mentions and that are not yet in `found`.
void CollectEnumerations(const TypeInfo& type, std::vector<const EnumInfo*>& found) {
  const auto add = [&](const host::ValueType& value) {
    if (value.enumeration != nullptr &&
        std::ranges::find(found, value.enumeration) == found.end()) {
      found.push_back(value.enumeration);
    }
  };
  for (const Member& member : type.Members()) {
    add(member.type);
    for (const auto& parameter : member.parameters) add(parameter.type);
  }
}

void WriteEnumerations(std::ostream& out, const std::vector<const EnumInfo*>& enumerations) {
  if (enumerations.empty()) return;
  out << "## Enumerations\n\n| Enumeration | Values |\n|---|---|\n";
  for (const EnumInfo* enumeration : enumerations) {
    out << "| " << enumeration->Name() << " |";
    for (const auto& enumerator : enumeration->Enumerators()) {
      out << (&enumerator == &enumeration->Enumerators().front() ? " " : ", ") << "`"
          << enumerator.name << "` " << enumerator.value;
    }
    out << " |\n";
  }
}

}  // namespace

void WriteTypesReference(std::ostream& out) {
  out << "# Object model\n\n"
         "Every public class, its members in slot order. Names are found in any case. A method "
         "with\n"
         "parameters marked `out` is called without them and hands back their values, in order, as "
         "a\n"
         "row of numbers. To *let* a property is to set it. A Color is a 32-bit whole number, red "
         "in bits\n"
         "0-7, green in 8-15, blue in 16-23, or a text such as \"#ff8000\". Written by `orvane "
         "types`; do\n"
         "not edit by hand.\n\n";
  const auto objects = ObjectModel();
  std::set<std::string> linked;
  for (const auto& object : objects) linked.insert(object->Type().Name());
  std::vector<const EnumInfo*> enumerations;
  for (const auto& object : objects) {
    WriteClass(out, *object, linked);
    CollectEnumerations(object->Type(), enumerations);
  }
  WriteEnumerations(out, enumerations);
}

bool WriteTypeReference(std::ostream& out, std::string_view className) {
  for (const auto& object : ObjectModel()) {
    if (!host::EqualNoCase(object->Type().Name(), className)) continue;
    WriteClass(out, *object, {});
    std::vector<const EnumInfo*> enumerations;
    CollectEnumerations(object->Type(), enumerations);
    WriteEnumerations(out, enumerations);
    return true;
  }
  return false;
}

}  // namespace orvane::tool
