/// What makes nodes, free-standing fields, writers and route lists by name.
#pragma once

#include "orvane/automation/Object.h"
#include "orvane/scene/Field.h"
#include "orvane/scene/Node.h"
#include "orvane/scene/RouteList.h"

#include <memory>
#include <string>
#include <vector>

namespace orvane::scene {

/// The factory of one scene module. Every factory makes the standard nodes; that of Graph, Nav or
/// Ui also makes instances of its own PROTOs. Unknown names raise UnknownType.
class ORVANE_API Factory final : public host::Object {
 public:
  static constexpr const char* kClassName = "Factory";
  const host::TypeInfo& Type() const override;

  explicit Factory(Module module) : m_module(module) {}

  /// "SFColor", "MFVec2f" or any other field type: a field that no node owns.
  std::shared_ptr<Field> CreateField(const std::string& fieldType);
  /// A node that hangs nowhere yet, by VRML97 type or PROTO name.
  std::shared_ptr<Node> CreateNode(const std::string& typeName);
  /// "VRMLFileTraverser" or "VRMLStringTraverser".
  std::shared_ptr<host::Object> CreateTraverser(const std::string& name);
  std::shared_ptr<RouteList> CreateRouteList();

  /// Every name that CreateNode takes.
  std::vector<std::string> NodeTypes() const;
  /// Every name that CreateField takes.
  static std::vector<std::string> FieldTypes();

 private:
  Module m_module;
};

}  // namespace orvane::scene
