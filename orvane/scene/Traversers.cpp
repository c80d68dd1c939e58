#include "orvane/scene/Traversers.h"

#include "orvane/automation/Describe.h"
#include "orvane/platform/FileReplacement.h"
#include "orvane/scene/SceneError.h"

#include <filesystem>
#include <string>

namespace orvane::scene {
namespace {

std::string Text(const std::shared_ptr<Node>& rootNode, const std::shared_ptr<RouteList>& routeList,
                 TextLayout layout) {
  if (rootNode == nullptr || routeList == nullptr) {
    Raise(host::ErrorNumber::NoNode, "A writer needs a root node and a route list");
  }
  return SceneWriter::Write(*rootNode, *routeList, layout);
}

}  // namespace

const host::TypeInfo& VRMLFileTraverser::Type() const {
  static const host::TypeInfo type =
      host::Describe<VRMLFileTraverser>("Writes a scene to a file.")
          .Method("Traverse", &VRMLFileTraverser::Traverse, {"fileName", "rootNode", "routeList"},
                  {"Writes the scene; false when the file could not be written"});
  return type;
}

bool VRMLFileTraverser::Traverse(const std::string& fileName, const std::shared_ptr<Node>& rootNode,
                                 const std::shared_ptr<RouteList>& routeList) {
  const std::filesystem::path file(std::u8string(fileName.begin(), fileName.end()));
  return !host::ReplaceFile(file, Text(rootNode, routeList, {true, true}));
}

const host::TypeInfo& VRMLStringTraverser::Type() const {
  static const host::TypeInfo type =
      host::Describe<VRMLStringTraverser>("Writes a scene to a string.")
          .WriteOnly<bool>("includeBreaks", &VRMLStringTraverser::includeBreaks,
                           {"Whether the text has line breaks"})
          .WriteOnly<bool>("includeTabs", &VRMLStringTraverser::includeTabs,
                           {"Whether lines begin with a tab for each level of nesting"})
          .Method("Traverse", &VRMLStringTraverser::Traverse, {"rootNode", "routeList"},
                  {"The scene as VRML97 text"});
  return type;
}

std::string VRMLStringTraverser::Traverse(const std::shared_ptr<Node>& rootNode,
                                          const std::shared_ptr<RouteList>& routeList) {
  return Text(rootNode, routeList, m_layout);
}

}  // namespace orvane::scene
