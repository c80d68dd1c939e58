/// The two writers: a scene as a VRML97 file, or as a string.
#pragma once

#include "orvane/automation/Object.h"
#include "orvane/scene/Node.h"
#include "orvane/scene/RouteList.h"
#include "orvane/scene/SceneWriter.h"

#include <memory>
#include <string>

namespace orvane::scene {

class ORVANE_API VRMLFileTraverser final : public host::Object {
 public:
  static constexpr const char* kClassName = "VRMLFileTraverser";
  const host::TypeInfo& Type() const override;

  /// Writes the scene below `rootNode` and its ROUTEs to `fileName` (UTF-8) and returns whether
  /// that worked. A file that cannot be written stays as it was. Raises what SceneWriter raises.
  bool Traverse(const std::string& fileName, const std::shared_ptr<Node>& rootNode,
                const std::shared_ptr<RouteList>& routeList);
};

class ORVANE_API VRMLStringTraverser final : public host::Object {
 public:
  static constexpr const char* kClassName = "VRMLStringTraverser";
  const host::TypeInfo& Type() const override;

  void includeBreaks(bool include) { m_layout.breaks = include; }
  void includeTabs(bool include) { m_layout.tabs = include; }

  /// The scene below `rootNode` and its ROUTEs as text. Raises what SceneWriter raises.
  std::string Traverse(const std::shared_ptr<Node>& rootNode,
                       const std::shared_ptr<RouteList>& routeList);

 private:
  TextLayout m_layout{false, false};
};

}  // namespace orvane::scene
