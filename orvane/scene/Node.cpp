#include "orvane/scene/Node.h"

#include "orvane/automation/Describe.h"
#include "orvane/scene/SceneError.h"
#include "orvane/scene/Utf8.h"

#include <algorithm>
#include <array>
#include <utility>

namespace orvane::scene {
namespace {

/// Id of ISO/IEC 14772-1, annex A.3: no control character, space or punctuation of the grammar; not
/// a digit or sign first; not a reserved word.
bool IsId(std::string_view name) {
  static constexpr std::array<std::string_view, 14> kReserved = {
      "DEF", "EXTERNPROTO", "FALSE", "IS",      "NULL",     "PROTO",        "ROUTE",
      "TO",  "TRUE",        "USE",   "eventIn", "eventOut", "exposedField", "field"};
  const auto barred = [](char c) {
    const auto byte = static_cast<unsigned char>(c);
    return byte <= 0x20 || byte == 0x7f ||
           std::string_view("\"#',.[\\]{}").find(c) != std::string_view::npos;
  };
  if (name.empty() || std::ranges::any_of(name, barred) || !IsUtf8(name)) return false;
  const char first = name.front();
  if ((first >= '0' && first <= '9') || first == '+' || first == '-') return false;
  return std::ranges::find(kReserved, name) == kReserved.end();
}

}  // namespace

const char* ProtoFileOf(Module module) {
  switch (module) {
    case Module::Core:
      return "";
    case Module::Graph:
      return "VR_GRAPH.wrl";
    case Module::Nav:
      return "VR_NAV.wrl";
    case Module::Ui:
      return "VR_UI.wrl";
  }
  return "";
}

void Node::SetDefName(const std::string& name) {
  if (!name.empty() && !IsId(name)) {
    Raise(host::ErrorNumber::InvalidDefName,
          "\"" + name + "\" cannot be the DEF name of a " + TypeName() + ": not a VRML97 Id");
  }
  m_defName = name;
}

void LetGo(std::shared_ptr<Node>& node) noexcept {
  // The nodes that wait for their end, while one comes to it: a chain, which needs no memory.
  thread_local std::shared_ptr<Node>* waiting = nullptr;
  if (node.use_count() != 1) {
    node.reset();
  } else if (waiting != nullptr) {
    node->m_nextToGo = std::move(*waiting);
    *waiting = std::move(node);
  } else {
    auto first = std::move(node);
    waiting = &first;
    while (first != nullptr) {
      auto going = std::move(first);
      first = std::move(going->m_nextToGo);
      going.reset();
    }
    waiting = nullptr;
  }
}

host::TypeInfo Node::DescribeInterface() const {
  const auto setDefName = [](auto& node) {
    node.Method("SetDefName", &Node::SetDefName, {"name"},
                {"Names the node for DEF, USE and ROUTE"});
  };
  const bool isProto = dynamic_cast<const ProtoInstance*>(this) != nullptr;
  const host::TypeInfo base =
      isProto
          ? host::TypeInfo(host::Describe<ProtoInstance>("")
                               .With(setDefName)
                               .Method("SetProtoSource", &ProtoInstance::SetProtoSource, {"url"},
                                       {"Records where the file with the PROTO's definition is"}))
          : host::TypeInfo(host::Describe<Node>("").With(setDefName));

  host::TypeInfo type(
      TypeName(),
      std::string(isProto ? "An instance of PROTO " : "The VRML97 node ") + TypeName() + ".");
  for (const auto& member : base.Members()) type.Add(member);
  for (std::size_t i = 0; i < m_interface.size(); ++i) {
    const InterfaceEntry& entry = m_interface[i];
    if (entry.field == nullptr) continue;
    host::Member member;
    member.name = entry.name;
    member.type.name = entry.type;
    member.get = [i](Object& object, Arguments) -> host::Value {
      return static_cast<Node&>(object).m_interface[i].field->Self();
    };
    member.help.text = NameOf(entry.access);
    member.help.range = entry.field->Range();
    type.Add(std::move(member));
  }
  return type;
}

}  // namespace orvane::scene
