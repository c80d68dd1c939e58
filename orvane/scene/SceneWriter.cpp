#include "orvane/scene/SceneWriter.h"

#include "orvane/scene/Node.h"
#include "orvane/scene/RouteList.h"
#include "orvane/scene/SceneError.h"
#include "orvane/scene/Utf8.h"

#include <algorithm>

namespace orvane::scene {

using host::ErrorNumber;

SceneWriter::SceneWriter(TextLayout layout)
    : m_layout(layout), m_block(std::make_unique<char[]>(kBlockSize)), m_at(m_block.get()) {}

std::string SceneWriter::Write(const Node& root, const RouteList& routes, TextLayout layout) {
  SceneWriter writer(layout);
  writer.Visit(root);
  writer.NameSharedNodes();
  writer.CheckRoutes(routes);
  writer.m_text.reserve(writer.m_expectedSize);

  // The header is a comment: it ends with its line, whatever the layout.
  writer.Put("#VRML V2.0 utf8\n");
  for (const auto& proto : writer.m_protos) writer.PutExternProto(proto);
  writer.PutNode(root);
  writer.PutRoutes(routes);
  writer.Put("\n");
  writer.Flush();
  return std::move(writer.m_text);
}

void SceneWriter::Visit(const Node& node) {
  const auto [entry, isNew] = m_uses.try_emplace(&node);
  NodeUse& use = entry->second;
  if (use.open) {
    const auto name = node.DefName().empty() ? "" : " \"" + node.DefName() + "\"";
    Raise(ErrorNumber::SceneCycle,
          std::string("The ") + node.TypeName() + name + " contains itself");
  }
  if (!isNew) {
    if (!use.shared && use.defName.empty()) m_unnamedShared.push_back(&node);
    use.shared = true;
    return;
  }
  use.defName = node.DefName();
  if (!use.defName.empty() && !m_names.try_emplace(use.defName, &node).second) {
    const char* other = m_names.at(use.defName)->TypeName();
    Raise(ErrorNumber::DuplicateDefName, "A " + std::string(other) + " and a " + node.TypeName() +
                                             " both have the DEF name \"" + use.defName + "\"");
  }
  if (const auto* proto = dynamic_cast<const ProtoInstance*>(&node)) {
    const auto sameType = [&](const ProtoUse& known) {
      return std::string_view(known.instance->TypeName()) == proto->TypeName();
    };
    auto known = std::ranges::find_if(m_protos, sameType);
    if (known == m_protos.end()) known = m_protos.insert(known, {proto, {}});
    if (std::ranges::find(known->locations, proto->ProtoSource()) == known->locations.end()) {
      known->locations.push_back(proto->ProtoSource());
    }
  }
  use.open = true;
  if (++m_level > kMostLevels) {
    Raise(ErrorNumber::SceneTooDeep,
          "More than " + std::to_string(kMostLevels) + " nodes hang one below the other");
  }
  for (const auto& member : node.Interface()) {
    if (member.field == nullptr) continue;
    m_expectedSize += member.field->ExpectedSize();
    member.field->VisitNodes([this](const Node& child) { Visit(child); });
  }
  --m_level;
  m_uses.at(&node).open = false;
}

void SceneWriter::NameSharedNodes() {
  std::unordered_map<std::string_view, int> numbers;  // The last one of each type.
  for (const Node* node : m_unnamedShared) {
    std::string name;
    int& number = numbers[node->TypeName()];
    do {
      name = std::string(node->TypeName()) + "_" + std::to_string(++number);
    } while (!m_names.try_emplace(name, node).second);
    m_uses.at(node).defName = name;
  }
}

void SceneWriter::CheckRoutes(const RouteList& routes) const {
  const auto check = [this](const Node& node, const std::string& event) {
    const auto end = "The ROUTE end " + std::string(node.TypeName()) + "." + event;
    if (node.DefName().empty()) {
      Raise(ErrorNumber::RouteOutsideScene, end + " has no DEF name");
    }
    if (!m_uses.contains(&node)) {
      Raise(ErrorNumber::RouteOutsideScene,
            end + " (\"" + node.DefName() + "\") is not in the scene");
    }
  };
  for (const auto& route : routes.Routes()) {
    check(*route.fromNode, route.fromEventOut);
    check(*route.toNode, route.toEventIn);
  }
}

void SceneWriter::PutExternProto(const ProtoUse& proto) {
  const std::string name = proto.instance->TypeName();
  Put("EXTERNPROTO " + name + " [");
  Indent();
  for (const auto& member : proto.instance->Interface()) {
    NewLine();
    Put(NameOf(member.access));
    Put(" ");
    Put(member.type);
    Put(" ");
    Put(member.name);
  }
  Outdent();
  NewLine();
  Put("] [ ");
  for (std::size_t i = 0; i < proto.locations.size(); ++i) {
    if (i > 0) Put(", ");
    // Without the fragment a browser takes the first PROTO of the file.
    PutString(proto.locations[i] + "#" + name);
  }
  Put(" ]");
  NewLine();
}

void SceneWriter::PutNode(const Node& node) {
  NodeUse& use = m_uses.at(&node);
  if (use.written) {
    Put("USE ");
    Put(use.defName);
    return;
  }
  use.written = true;
  if (!use.defName.empty()) {
    Put("DEF ");
    Put(use.defName);
    Put(" ");
  }
  Put(node.TypeName());
  Put(" {");
  Indent();
  bool isEmpty = true;
  for (const auto& member : node.Interface()) {
    if (member.field == nullptr || member.field->IsDefault()) continue;
    isEmpty = false;
    NewLine();
    Put(member.name);
    Put(" ");
    member.field->Write(*this);
  }
  Outdent();
  if (isEmpty) {
    Put(" ");
  } else {
    NewLine();
  }
  Put("}");
}

void SceneWriter::PutRoutes(const RouteList& routes) {
  for (const auto& route : routes.Routes()) {
    NewLine();
    Put("ROUTE " + route.fromNode->DefName() + "." + route.fromEventOut + " TO " +
        route.toNode->DefName() + "." + route.toEventIn);
  }
}

void SceneWriter::PutString(std::string_view text) {
  Put("\"");
  while (!text.empty()) {
    const std::size_t length = Utf8Length(text);
    if (length == 0 || text.front() == '\0') {
      Put("\xEF\xBF\xBD");
    } else {
      if (text.front() == '"' || text.front() == '\\') Put("\\");
      Put(text.substr(0, length));
    }
    text.remove_prefix(std::max<std::size_t>(1, length));
  }
  Put("\"");
}

void SceneWriter::NewLine() {
  Put(m_layout.breaks ? "\n" : " ");
  if (m_layout.tabs) {
    for (int i = 0; i < m_depth; ++i) Put("\t");
  }
}

void SceneWriter::Flush() {
  m_text.append(m_block.get(), m_at);
  m_at = m_block.get();
}

}  // namespace orvane::scene
