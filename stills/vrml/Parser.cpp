#include "stills/vrml/Parser.h"

#include "stills/vrml/Lexer.h"

#include <map>

namespace orvane::stills {

namespace {

constexpr int kMostNesting = 400;

/// A PROTO or a world: the types that are known in it, on top of those around it.
struct Scope {
  Scope* outer = nullptr;
  const Interface* interface = nullptr;  ///< of the PROTO, to which IS refers; none in a world
  std::map<std::string, std::shared_ptr<const NodeType>, std::less<>> types;
};

class Parser {
 public:
  Parser(std::string_view text, const Place& start, Budget& budget)
      : m_lexer(text, start), m_budget(budget) {}

  WorldText World() {
    Scope scope;
    WorldText world;
    Statements(scope, world);
    if (!m_lexer.AtEnd()) m_lexer.Fail("\"}\" or \"]\" without its counterpart");
    return world;
  }

 private:
  /// Up to the end of the text or of a PROTO's body.
  void Statements(Scope& scope, WorldText& world) {
    while (!m_lexer.AtEnd() && m_lexer.Peek() != '}' && m_lexer.Peek() != ']') {
      if (!Statement(scope, world)) world.nodes.push_back(AnyNode(scope, world));
    }
  }

  /// A PROTO or a ROUTE, if that is next.
  bool Statement(Scope& scope, WorldText& world) {
    if (m_lexer.TakeWord("PROTO"))
      Proto(scope, world);
    else if (m_lexer.TakeWord("EXTERNPROTO"))
      ExternProto(scope, world);
    else if (m_lexer.TakeWord("ROUTE"))
      Route(world);
    else
      return false;
    return true;
  }

  void Proto(Scope& scope, WorldText& world) {
    auto type = std::make_shared<NodeType>();
    type->proto = std::make_shared<ProtoText>();
    type->proto->place = m_lexer.Here();
    type->interface.name = m_lexer.Word("the name of a PROTO");
    m_lexer.Expect('[');
    while (!m_lexer.Take(']')) type->interface.fields.push_back(Declaration(scope, world, true));
    m_lexer.Expect('{');
    Scope body;
    body.outer = &scope;
    body.interface = &type->interface;
    Nested([&] { Statements(body, type->proto->body); });
    m_lexer.Expect('}');
    scope.types[type->interface.name] = type;
    world.protos.push_back(type);
  }

  void ExternProto(Scope& scope, WorldText& world) {
    auto type = std::make_shared<NodeType>();
    type->proto = std::make_shared<ProtoText>();
    type->proto->place = m_lexer.Here();
    type->interface.name = m_lexer.Word("the name of an EXTERNPROTO");
    m_lexer.Expect('[');
    while (!m_lexer.Take(']')) type->interface.fields.push_back(Declaration(scope, world, false));
    if (m_lexer.Take('[')) {
      while (!m_lexer.Take(']')) type->proto->urls.push_back(m_lexer.String());
    } else {
      type->proto->urls.push_back(m_lexer.String());
    }
    scope.types[type->interface.name] = type;
    world.protos.push_back(type);
  }

  /// A line of an interface.
  FieldText Declaration(Scope& scope, WorldText& world, bool hasValue) {
    FieldText field;
    field.place = m_lexer.Here();
    const std::string_view access = m_lexer.Word("eventIn, eventOut, field or exposedField");
    if (access == "eventIn")
      field.access = Access::EventIn;
    else if (access == "eventOut")
      field.access = Access::EventOut;
    else if (access == "field")
      field.access = Access::Field;
    else if (access == "exposedField")
      field.access = Access::ExposedField;
    else
      m_lexer.Fail("expected eventIn, eventOut, field or exposedField but found \"" +
                   std::string(access) + "\"");
    const std::string_view typeName = m_lexer.Word("a field type");
    const auto type = FieldTypeNamed(typeName);
    if (!type) m_lexer.Fail("there is no field type \"" + std::string(typeName) + "\"");
    field.type = *type;
    field.name = m_lexer.Word("the name of a field");
    field.value = DefaultOf(field.type);
    const bool isEvent = field.access == Access::EventIn || field.access == Access::EventOut;
    if (hasValue && !isEvent) ReadValue(field.type, field.value, field.nodes, scope, world);
    return field;
  }

  void Route(WorldText& world) {
    RouteText route;
    route.place = m_lexer.Here();
    route.fromNode = m_lexer.Word("the name of a node");
    m_lexer.Expect('.');
    route.fromField = m_lexer.Word("the name of an event");
    if (!m_lexer.TakeWord("TO")) m_lexer.Fail("expected TO in a ROUTE");
    route.toNode = m_lexer.Word("the name of a node");
    m_lexer.Expect('.');
    route.toField = m_lexer.Word("the name of an event");
    world.routes.push_back(std::move(route));
  }

  /// A node, USE or NULL.
  std::shared_ptr<const NodeText> AnyNode(Scope& scope, WorldText& world) {
    if (m_lexer.TakeWord("NULL")) return nullptr;
    auto node = std::make_shared<NodeText>();
    node->place = m_lexer.Here();
    if (m_lexer.TakeWord("USE")) {
      node->name = m_lexer.Word("a name after USE");
      return node;
    }
    if (m_lexer.TakeWord("DEF")) node->name = m_lexer.Word("a name after DEF");
    const std::string_view typeName = m_lexer.Word("a node");
    node->type = TypeNamed(typeName, scope);
    if (!node->type) m_lexer.Fail("there is no node type \"" + std::string(typeName) + "\"");
    m_budget.Take(sizeof(NodeText));
    m_budget.CheckTime();
    Nested([&] { Body(*node, scope, world); });
    return node;
  }

  void Body(NodeText& node, Scope& scope, WorldText& world) {
    m_lexer.Expect('{');
    std::shared_ptr<NodeType> own;  // a Script has a type of its own
    if (node.type->isScript) node.type = own = std::make_shared<NodeType>(*node.type);
    while (!m_lexer.Take('}')) {
      if (Statement(scope, world)) continue;
      const std::string_view word = m_lexer.PeekWord();
      const bool declares = own && (word == "eventIn" || word == "eventOut" || word == "field");
      if (declares) {
        own->interface.fields.push_back(ScriptField(node, scope, world));
      } else {
        Field(node, scope, world);
      }
    }
  }

  /// A Script's field or event, which takes its value or IS at once.
  FieldText ScriptField(NodeText& node, Scope& scope, WorldText& world) {
    FieldText field = Declaration(scope, world, false);
    const bool isEvent = field.access != Access::Field;
    SetField set;
    set.index = static_cast<int>(node.type->interface.fields.size());
    set.place = field.place;
    if (m_lexer.TakeWord("IS")) {
      set.is = m_lexer.Word("a field of the PROTO after IS");
      CheckIs(set.is, field.type, scope);
      node.fields.push_back(std::move(set));
    } else if (!isEvent) {
      ReadValue(field.type, field.value, field.nodes, scope, world);
      set.value = field.value;
      set.nodes = std::move(field.nodes);
      node.fields.push_back(std::move(set));
    }
    return field;
  }

  void Field(NodeText& node, Scope& scope, WorldText& world) {
    SetField set;
    set.place = m_lexer.Here();
    const std::string_view name = m_lexer.Word("the name of a field");
    const Interface& interface = node.type->interface;
    set.index = interface.Find(name);
    if (set.index < 0) {
      m_lexer.Fail(interface.name + " has no field \"" + std::string(name) + "\"");
    }
    const FieldText& field = interface.fields[static_cast<std::size_t>(set.index)];
    if (m_lexer.TakeWord("IS")) {
      set.is = m_lexer.Word("a field of the PROTO after IS");
      CheckIs(set.is, field.type, scope);
    } else {
      if (field.access == Access::EventIn || field.access == Access::EventOut) {
        m_lexer.Fail("\"" + field.name + "\" is an event and takes no value");
      }
      ReadValue(field.type, set.value, set.nodes, scope, world);
      m_budget.Take(SizeOf(set.value));
    }
    node.fields.push_back(std::move(set));
  }

  void CheckIs(const std::string& name, FieldType type, const Scope& scope) {
    if (!scope.interface) m_lexer.Fail("IS stands outside of a PROTO");
    const int index = scope.interface->Find(name);
    if (index < 0) {
      m_lexer.Fail("PROTO " + scope.interface->name + " has no field \"" + name + "\"");
    }
    if (scope.interface->fields[static_cast<std::size_t>(index)].type != type) {
      m_lexer.Fail("\"" + name + "\" of PROTO " + scope.interface->name + " is not of the type " +
                   std::string(NameOf(type)));
    }
  }

  static std::shared_ptr<const NodeType> TypeNamed(std::string_view name, const Scope& scope) {
    for (const Scope* at = &scope; at; at = at->outer) {
      const auto found = at->types.find(name);
      if (found != at->types.end()) return found->second;
    }
    return StandardType(name);
  }

  void ReadValue(FieldType type, Value& value, NodeTexts& nodes, Scope& scope, WorldText& world) {
    if (type == FieldType::SFNode || type == FieldType::MFNode) {
      value = std::vector<Node*>();
      List(type, [&] { nodes.push_back(AnyNode(scope, world)); });
      return;
    }
    value = DefaultOf(type);
    std::visit([this, type](auto& list) { ReadList(type, list); }, value);
  }

  template <typename T>
  void ReadList(FieldType type, std::vector<T>& list) {
    list.clear();
    const std::size_t arity = Arity(type);
    if (type == FieldType::SFImage) {
      for (int i = 0; i < 3; ++i) ReadElement(type, list);
      if constexpr (std::is_same_v<T, std::int32_t>) {
        for (std::int64_t i = std::int64_t{list[0]} * list[1]; i > 0; --i) ReadElement(type, list);
      }
      return;
    }
    List(type, [&] {
      for (std::size_t i = 0; i < arity; ++i) ReadElement(type, list);
    });
  }

  void ReadElement(FieldType, std::vector<float>& list) { list.push_back(m_lexer.Float()); }
  void ReadElement(FieldType, std::vector<double>& list) { list.push_back(m_lexer.Double()); }
  void ReadElement(FieldType, std::vector<std::string>& list) { list.push_back(m_lexer.String()); }
  void ReadElement(FieldType, std::vector<Node*>&) {}
  void ReadElement(FieldType type, std::vector<std::int32_t>& list) {
    if (type != FieldType::SFBool) {
      list.push_back(m_lexer.Int32());
    } else if (m_lexer.TakeWord("TRUE")) {
      list.push_back(1);
    } else if (m_lexer.TakeWord("FALSE")) {
      list.push_back(0);
    } else {
      m_lexer.Fail("expected TRUE or FALSE");
    }
  }

  /// One element, or for a multiple type any number in brackets.
  template <typename Read>
  void List(FieldType type, Read&& read) {
    if (!IsMultiple(type) || !m_lexer.Take('[')) {
      read();
      return;
    }
    while (!m_lexer.Take(']')) {
      if (m_lexer.AtEnd()) m_lexer.Fail("a list that began before has no \"]\"");
      m_budget.CheckTime();
      read();
    }
  }

  template <typename Read>
  void Nested(Read&& read) {
    if (++m_nesting > kMostNesting) {
      m_lexer.Fail("nodes are nested more than " + std::to_string(kMostNesting) + " deep");
    }
    read();
    --m_nesting;
  }

  Lexer m_lexer;
  Budget& m_budget;
  int m_nesting = 0;
};

}  // namespace

int Interface::Find(std::string_view wanted) const {
  for (std::size_t i = 0; i < fields.size(); ++i) {
    if (fields[i].name == wanted) return static_cast<int>(i);
  }
  for (std::size_t i = 0; i < fields.size(); ++i) {
    if (fields[i].access != Access::ExposedField) continue;
    const std::string& name = fields[i].name;
    const bool isSet = wanted.size() == name.size() + 4 && wanted.starts_with("set_");
    const bool isChanged = wanted.size() == name.size() + 8 && wanted.ends_with("_changed");
    if ((isSet && wanted.ends_with(name)) || (isChanged && wanted.starts_with(name))) {
      return static_cast<int>(i);
    }
  }
  return -1;
}

WorldText ParseWorld(std::string_view text, const std::string& file, Budget& budget) {
  const Place start{std::make_shared<const std::string>(file), 1};
  if (text.starts_with("\xEF\xBB\xBF")) text.remove_prefix(3);
  if (!text.starts_with("#VRML V2.0 utf8")) {
    throw Error(start.Text() + ": the first line of a VRML97 world is \"#VRML V2.0 utf8\"");
  }
  return Parser(text, start, budget).World();
}

WorldText ParseFragment(std::string_view text, const Place& start, Budget& budget) {
  return Parser(text, start, budget).World();
}

WorldText ParseDeclarations(std::string_view text, Budget& budget) {
  return ParseFragment(text, {std::make_shared<const std::string>("standard"), 1}, budget);
}

}  // namespace orvane::stills
