/// A live node: its values, and where its events go.
#pragma once

#include "stills/vrml/Texts.h"

#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace orvane::stills {

class Node;

/// The end of a ROUTE or of an IS.
struct Link {
  Node* node;
  int field;
};

struct FieldState {
  Value value;  ///< of an event the last one
  std::vector<Link>
      inside;  ///< fields in a PROTO's body that take what this field of the PROTO takes
  std::vector<Link> routes;   ///< where what this field sends goes
  std::vector<Link> outside;  ///< fields of the PROTO around that send what this field sends
  bool isBusy = false;        ///< an event is on its way from here; a second one closes a loop
};

class Node {
 public:
  explicit Node(std::shared_ptr<const NodeType> type);

  const NodeType& Type() const { return *m_type; }
  const std::string& TypeName() const { return m_type->interface.name; }
  bool Is(std::string_view type) const { return m_type->interface.name == type && !m_type->proto; }

  FieldState& Field(int index) { return m_fields[static_cast<std::size_t>(index)]; }
  const FieldState& Field(int index) const { return m_fields[static_cast<std::size_t>(index)]; }
  int FieldCount() const { return static_cast<int>(m_fields.size()); }
  const FieldText& Declared(int index) const {
    return m_type->interface.fields[static_cast<std::size_t>(index)];
  }
  /// Index of the field, or -1; see Interface::Find.
  int Find(std::string_view name) const { return m_type->interface.Find(name); }

  /// Values of a node of the standard by name, all of which are there.
  const std::vector<float>& Floats(std::string_view name) const { return Get<float>(name); }
  float Float(std::string_view name) const { return Get<float>(name)[0]; }
  const std::vector<std::int32_t>& Ints(std::string_view name) const {
    return Get<std::int32_t>(name);
  }
  const std::vector<double>& Doubles(std::string_view name) const { return Get<double>(name); }
  bool Bool(std::string_view name) const { return Ints(name)[0] != 0; }
  const std::vector<std::string>& Strings(std::string_view name) const {
    return Get<std::string>(name);
  }
  const std::vector<Node*>& Nodes(std::string_view name) const { return Get<Node*>(name); }
  /// The node of a field, behind PROTOs the first of their body; none for NULL.
  const Node* Child(std::string_view name) const;
  /// Behind PROTOs the first node of their body; none for an empty body.
  const Node* Shown() const;

  std::string name;              ///< after DEF; empty for none
  Place place;                   ///< where the node was written
  std::vector<Node*> body;       ///< of a PROTO, the nodes that it consists of
  std::uint32_t revision = 0;    ///< grows whenever a field takes a value
  void* scriptObject = nullptr;  ///< what scripts see of the node, once one has

 private:
  template <typename T>
  const std::vector<T>& Get(std::string_view name) const {
    return std::get<std::vector<T>>(Field(Find(name)).value);
  }

  std::shared_ptr<const NodeType> m_type;
  std::vector<FieldState> m_fields;
};

}  // namespace orvane::stills
