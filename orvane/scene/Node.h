/// Nodes: typed field objects in VRML97 order, a DEF name, and for PROTO instances their source.
#pragma once

#include "orvane/automation/Object.h"
#include "orvane/scene/Field.h"

#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace orvane::scene {

/// Which of the four scene modules supplies a node type, and with it which file holds its PROTO.
enum class Module { Core, Graph, Nav, Ui };

/// The PROTO file of a module: "VR_GRAPH.wrl", "VR_NAV.wrl" or "VR_UI.wrl"; "" for Core.
ORVANE_API const char* ProtoFileOf(Module module);

/// Which fields a node may stand in, as ISO/IEC 14772-1 says field by field. An instance of a PROTO
/// stands for the first node of the PROTO's body.
enum class NodeRole {
  Any,  ///< Of a field: one that belongs to no node.
  Child,
  Appearance,
  Material,
  Texture,
  TextureTransform,
  Geometry,
  FontStyle
};

/// A node of the scene. A node class is its declaration: one data member per VRML97 field.
class ORVANE_API Node : public host::Object {
 public:
  static constexpr const char* kClassName = "Node";

  /// The VRML97 node type or PROTO name.
  virtual const char* TypeName() const = 0;
  virtual NodeRole Role() const = 0;

  /// Fields and events in the order of ISO/IEC 14772-1, `children` first.
  const std::vector<InterfaceEntry>& Interface() const { return m_interface; }

  const std::string& DefName() const { return m_defName; }
  /// Names the node for DEF, USE and ROUTE; "" takes the name away. Raises InvalidDefName for what
  /// is no Id in the grammar of ISO/IEC 14772-1, annex A.
  void SetDefName(const std::string& name);

 protected:
  /// The late-bound interface of a node class, read off the fields of one of its nodes.
  host::TypeInfo DescribeInterface() const;

 private:
  friend class Field;
  friend void LetGo(std::shared_ptr<Node>& node) noexcept;
  template <class F>
  friend struct EventIn;
  template <class F>
  friend struct EventOut;
  void AddToInterface(const InterfaceEntry& entry) { m_interface.push_back(entry); }

  std::vector<InterfaceEntry> m_interface;
  std::string m_defName;
  std::shared_ptr<Node> m_nextToGo;
};

/// Empties `node`. Nodes that come to their end with it do so one after the other rather than one
/// inside the other, however deep they hang.
ORVANE_API void LetGo(std::shared_ptr<Node>& node) noexcept;

/// An instance of a PROTO: a node that knows the file its definition is in.
class ORVANE_API ProtoInstance : public Node {
 public:
  const std::string& ProtoSource() const { return m_protoSource; }
  /// Where the PROTO's file is, relative to the written world or absolute. The writers add the
  /// PROTO's name as the fragment of the URL.
  void SetProtoSource(const std::string& url) { m_protoSource = url; }

 private:
  std::string m_protoSource;
};

/// What every node class repeats. `Self` declares kClassName, and kRole where it is no child.
template <class Self, class Base = Node>
class NodeOf : public Base {
 public:
  static constexpr Module kModule = Module::Core;
  static constexpr NodeRole kRole = NodeRole::Child;

  const char* TypeName() const final { return Self::kClassName; }
  NodeRole Role() const final { return Self::kRole; }
  const host::TypeInfo& Type() const final {
    static const host::TypeInfo type = this->DescribeInterface();
    return type;
  }
};

template <class F>
EventIn<F>::EventIn(Node& owner, const char* name) {
  owner.AddToInterface({name, F::kClassName, AccessKind::EventIn, nullptr});
}

template <class F>
EventOut<F>::EventOut(Node& owner, const char* name) {
  owner.AddToInterface({name, F::kClassName, AccessKind::EventOut, nullptr});
}

}  // namespace orvane::scene
