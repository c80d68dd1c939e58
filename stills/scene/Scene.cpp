#include "stills/scene/Scene.h"

#include "stills/scene/BuiltinEvents.h"
#include "stills/scene/ScriptHost.h"
#include "stills/vrml/Parser.h"

namespace orvane::stills {

namespace {

/// Of PROTOs in each other's bodies, and of events that set each other off: more than any real
/// world has, less than the stack holds.
constexpr int kMostDepth = 200;

/// Counts how deep calls are nested.
class Deeper {
 public:
  Deeper(int& depth, const Place& place, const char* what) : m_depth(depth) {
    if (++m_depth > kMostDepth) {
      --m_depth;
      throw Error(place.Text() + ": " + what + " more than " + std::to_string(kMostDepth) +
                  " deep");
    }
  }
  ~Deeper() { --m_depth; }
  Deeper(const Deeper&) = delete;
  Deeper& operator=(const Deeper&) = delete;

 private:
  int& m_depth;
};

}  // namespace

Scene::Scene(const Limits& limits, FileLoader loader)
    : m_budget(limits),
      m_loader(std::move(loader)),
      m_host(std::make_unique<ScriptHost>(*this, m_budget)) {}

Scene::~Scene() = default;

void Scene::Load(const WorldText& world) {
  Names names;
  m_roots = MakeAll(world.nodes, names, nullptr);
  AddRoutes(world.routes, names);
  Start(0);
}

std::vector<Node*> Scene::MakeFragment(const WorldText& text) {
  Names names;
  const std::size_t firstScript = m_scripts.size();
  std::vector<Node*> nodes = MakeAll(text.nodes, names, nullptr);
  AddRoutes(text.routes, names);
  Start(firstScript);
  return nodes;
}

void Scene::Start(std::size_t firstScript) {
  for (std::size_t i = firstScript; i < m_scripts.size(); ++i) m_host->Add(*m_scripts[i]);
  for (std::size_t i = firstScript; i < m_scripts.size(); ++i) m_host->Initialize(*m_scripts[i]);
  Finish();
}

std::vector<Node*> Scene::MakeAll(const NodeTexts& texts, Names& names, Node* proto) {
  std::vector<Node*> nodes;
  nodes.reserve(texts.size());
  for (const auto& text : texts) nodes.push_back(text ? Make(*text, names, proto) : nullptr);
  return nodes;
}

Node* Scene::Make(const NodeText& text, Names& names, Node* proto) {
  m_budget.CheckTime();
  if (!text.type) {
    const auto found = names.find(text.name);
    if (found == names.end()) {
      throw Error(text.place.Text() + ": USE " + text.name + " comes before any DEF of that name");
    }
    return found->second;
  }
  const Deeper deeper(m_depth, text.place, "nodes and PROTOs are nested");
  Node& node = m_nodes.emplace_back(text.type);
  m_budget.Take(sizeof(Node) + static_cast<std::size_t>(node.FieldCount()) * sizeof(FieldState));
  node.name = text.name;
  node.place = text.place;
  if (!text.name.empty()) names[text.name] = &node;
  SetUp(node, text, names, proto);
  return &node;
}

void Scene::SetUp(Node& node, const NodeText& text, Names& names, Node* proto) {
  const auto& declared = node.Type().interface.fields;
  std::vector<bool> isSet(declared.size());
  for (const SetField& set : text.fields) {
    isSet[static_cast<std::size_t>(set.index)] = true;
    if (!set.is.empty()) {
      Connect(*proto, proto->Find(set.is), node, set.index);
    } else if (declared[static_cast<std::size_t>(set.index)].type == FieldType::SFNode ||
               declared[static_cast<std::size_t>(set.index)].type == FieldType::MFNode) {
      Store(node, set.index, MakeAll(set.nodes, names, proto));
    } else {
      Store(node, set.index, set.value);
    }
  }
  if (node.Type().isScript) m_scripts.push_back(&node);
  if (!node.Type().proto) return;

  const NodeType& type = Resolve(node.Type());
  for (const FieldText& field : type.interface.fields) {
    const int index = node.Find(field.name);
    if (index < 0 || isSet[static_cast<std::size_t>(index)]) continue;
    if (node.Declared(index).type != field.type) {
      throw Error(text.place.Text() + ": \"" + field.name + "\" of " + node.TypeName() +
                  " has another type than at " + field.place.Text());
    }
    Names own;
    if (field.type == FieldType::SFNode || field.type == FieldType::MFNode) {
      Value nodes = MakeAll(field.nodes, own, nullptr);
      if (field.type == FieldType::SFNode) std::get<std::vector<Node*>>(nodes).resize(1);
      Store(node, index, std::move(nodes));
    } else {
      Store(node, index, field.value);
    }
  }
  Names inside;
  node.body = MakeAll(type.proto->body.nodes, inside, &node);
  AddRoutes(type.proto->body.routes, inside);
}

void Scene::Connect(Node& proto, int outer, Node& node, int inner) {
  if (outer < 0) return;  // an EXTERNPROTO that does not declare the field leaves it as it is
  const Access outside = proto.Declared(outer).access, inside = node.Declared(inner).access;
  const bool hasValue = outside == Access::Field || outside == Access::ExposedField;
  if (hasValue && inside != Access::EventIn && inside != Access::EventOut) {
    Store(node, inner, proto.Field(outer).value);
  }
  const bool takes = outside == Access::EventIn || outside == Access::ExposedField;
  const bool sends = outside == Access::EventOut || outside == Access::ExposedField;
  if (takes && (inside == Access::EventIn || inside == Access::ExposedField)) {
    proto.Field(outer).inside.push_back({&node, inner});
  }
  if (sends && (inside == Access::EventOut || inside == Access::ExposedField)) {
    node.Field(inner).outside.push_back({&proto, outer});
  }
}

void Scene::AddRoutes(const std::vector<RouteText>& routes, const Names& names) {
  for (const RouteText& route : routes) {
    const auto from = names.find(route.fromNode), to = names.find(route.toNode);
    if (from == names.end() || to == names.end()) {
      throw Error(route.place.Text() + ": there is no node " +
                  (from == names.end() ? route.fromNode : route.toNode) + " for the ROUTE");
    }
    const int out = from->second->Find(route.fromField), in = to->second->Find(route.toField);
    if (out < 0 || in < 0) {
      throw Error(
          route.place.Text() + ": there is no event " +
          (out < 0 ? route.fromNode + "." + route.fromField : route.toNode + "." + route.toField));
    }
    if (from->second->Declared(out).type != to->second->Declared(in).type) {
      throw Error(route.place.Text() + ": the ends of the ROUTE have different types");
    }
    from->second->Field(out).routes.push_back({to->second, in});
  }
}

const NodeType& Scene::Resolve(const NodeType& type) {
  if (type.proto->urls.empty()) return type;
  ProtoText& proto = *type.proto;
  if (!proto.found) {
    for (const std::string& link : proto.urls) {
      const std::size_t hash = link.find('#');
      const WorldText& library = Library(link.substr(0, hash), *proto.place.file);
      const std::string wanted = hash == std::string::npos ? "" : link.substr(hash + 1);
      for (const auto& offered : library.protos) {
        if (wanted.empty() || offered->interface.name == wanted) proto.found = offered;
        if (proto.found) break;
      }
      if (proto.found) break;
    }
  }
  if (!proto.found) {
    std::string tried;
    for (const std::string& link : proto.urls) tried += " " + link;
    throw Error(proto.place.Text() + ": there is no PROTO " + type.interface.name + " at" + tried);
  }
  const Deeper deeper(m_depth, proto.place, "EXTERNPROTOs lead to each other");
  return Resolve(*proto.found);
}

const WorldText& Scene::Library(const std::string& url, const std::string& from) {
  std::string text, name;
  static const WorldText nothing;
  if (!m_loader || !m_loader(url, from, text, name)) return nothing;
  const auto known = m_libraries.find(name);
  if (known != m_libraries.end()) return known->second;
  return m_libraries.emplace(name, ParseWorld(text, name, m_budget)).first->second;
}

void Scene::Store(Node& node, int field, Value value) {
  FieldState& state = node.Field(field);
  if (node.Declared(field).type == FieldType::SFNode) std::get<std::vector<Node*>>(value).resize(1);
  ++node.revision;
  m_budget.GiveBack(SizeOf(state.value));
  state.value = std::move(value);
  m_budget.Take(SizeOf(state.value));
}

void Scene::Receive(Node& node, int field, Value value) {
  FieldState& state = node.Field(field);
  const Access access = node.Declared(field).access;
  if (access == Access::EventOut || state.isBusy) return;
  const Deeper deeper(m_depth, node.place, "events set each other off");
  m_budget.CheckTime();
  Store(node, field, std::move(value));
  state.isBusy = true;
  if (node.Type().proto) {
    for (const Link& link : state.inside) Receive(*link.node, link.field, state.value);
    if (access == Access::ExposedField) Pass(node, field);
  } else if (access == Access::ExposedField) {
    Pass(node, field);
  } else if (node.Type().isScript) {
    m_host->Deliver(node, field);
  } else if (auto reaction = React(node, field, state.value)) {
    if (reaction->isSent)
      Emit(node, reaction->field, std::move(reaction->value));
    else
      Store(node, reaction->field, std::move(reaction->value));
  }
  state.isBusy = false;
}

void Scene::Emit(Node& node, int field, Value value) {
  FieldState& state = node.Field(field);
  if (state.isBusy) return;
  const Deeper deeper(m_depth, node.place, "events set each other off");
  m_budget.CheckTime();
  Store(node, field, std::move(value));
  state.isBusy = true;
  Pass(node, field);
  state.isBusy = false;
}

void Scene::Pass(Node& node, int field) {
  // By index: a script may add ROUTEs' ends meanwhile.
  const FieldState& state = node.Field(field);
  for (std::size_t i = 0; i < state.routes.size(); ++i) {
    Receive(*state.routes[i].node, state.routes[i].field, state.value);
  }
  for (std::size_t i = 0; i < state.outside.size(); ++i) {
    Emit(*state.outside[i].node, state.outside[i].field, state.value);
  }
}

void Scene::Raise(Node& node, std::string_view field, Value value) {
  Emit(node, node.Find(field), std::move(value));
  Finish();
}

void Scene::Finish() { m_host->Finish(); }

}  // namespace orvane::stills
