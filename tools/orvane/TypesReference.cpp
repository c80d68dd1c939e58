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

std::string Signature(const Member& member) {
  std::string text = "`" + member.name;
  if (member.isMethod || !member.parameters.empty()) {
    text += "(";
    for (const auto& parameter : member.parameters) {
      if (&parameter != &member.parameters.front()) text += ", ";
      if (parameter.isOut) text += "out ";
      text += parameter.name + ": " + parameter.type.name;
      if (!parameter.fallback.IsEmpty()) text += " = " + host::ToText(parameter.fallback);
    }
    text += ")";
  }
  return text + "`";
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

void WriteMember(std::ostream& out, const Member& member, const std::set<std::string>& linked) {
  out << "| " << Signature(member) << " | " << TypeName(member.type, linked) << " | "
      << Access(member) << " | " << member.help.text;
  if (!member.help.unit.empty()) out << ", in " << member.help.unit;
  out << " | " << member.help.range << " | " << member.help.initial << " |\n";
}

void WriteClass(std::ostream& out, const TypeInfo& type, const std::set<std::string>& linked) {
  out << "## " << type.Name() << "\n\n" << type.Text() << "\n\n";
  if (type.Members().empty()) return;
  out << "| Member | Type | Access | Meaning | Range | Initially |\n|---|---|---|---|---|---|\n";
  for (const Member& member : type.Members()) WriteMember(out, member, linked);
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
         "row of numbers. Written by `orvane types`; do not edit by hand.\n\n";
  const auto objects = ObjectModel();
  std::set<std::string> linked;
  for (const auto& object : objects) linked.insert(object->Type().Name());
  std::vector<const EnumInfo*> enumerations;
  for (const auto& object : objects) {
    WriteClass(out, object->Type(), linked);
    CollectEnumerations(object->Type(), enumerations);
  }
  WriteEnumerations(out, enumerations);
}

bool WriteTypeReference(std::ostream& out, std::string_view className) {
  for (const auto& object : ObjectModel()) {
    if (!host::EqualNoCase(object->Type().Name(), className)) continue;
    WriteClass(out, object->Type(), {});
    std::vector<const EnumInfo*> enumerations;
    CollectEnumerations(object->Type(), enumerations);
    WriteEnumerations(out, enumerations);
    return true;
  }
  return false;
}

}  // namespace orvane::tool
