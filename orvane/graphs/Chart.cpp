#include "orvane/graphs/Chart.h"

#include "orvane/scene/Traversers.h"
#include "orvane/scene/frmMain.h"

#include <algorithm>

namespace orvane {

using scene::VRMLFileTraverser;
using scene::VRMLStringTraverser;

Chart::Chart()
    : m_background(std::make_shared<BackgroundInfo>()),
      m_title(std::make_shared<TextInfo>()),
      m_viewpoints(std::make_shared<ViewpointCollection>()),
      m_lights(std::make_shared<LightCollection>()),
      m_root(scene::Create<scene::Transform>()),
      m_routes(scene::CoreFactory()->CreateRouteList()),
      m_extraRoutes(scene::CoreFactory()->CreateRouteList()) {}

void Chart::Assemble(std::initializer_list<const ISceneRoot*> parts) {
  for (const auto* part : parts) m_root->children.Append(part->RootNode());
}

void Chart::Detach(std::initializer_list<const ISceneRoot*> parts) {
  auto& children = m_root->children;
  for (const auto* part : parts) {
    const auto root = part->RootNode();
    if (std::ranges::count(children.Items(), root) > 0) children.Remove(root);
  }
}

void Chart::PrepareExport() {
  m_routes->ClearRoutes();
  Arrange();
  for (const auto& route : m_extraRoutes->Routes()) {
    m_routes->AddRoute(route.fromNode, route.fromEventOut, route.toNode, route.toEventIn);
  }
}

bool Chart::ExportToFile(const std::string& fName) {
  PrepareExport();
  const auto writer = std::static_pointer_cast<VRMLFileTraverser>(
      scene::CoreFactory()->CreateTraverser(VRMLFileTraverser::kClassName));
  return writer->Traverse(fName, m_root, m_routes);
}

std::string Chart::ExportToString(bool includeBreaks, bool includeTabs) {
  PrepareExport();
  const auto writer = std::static_pointer_cast<VRMLStringTraverser>(
      scene::CoreFactory()->CreateTraverser(VRMLStringTraverser::kClassName));
  writer->includeBreaks(includeBreaks);
  writer->includeTabs(includeTabs);
  return writer->Traverse(m_root, m_routes);
}

}  // namespace orvane
