/// What all charts share: sky, title, viewpoints, lights, a root, and the export.
#pragma once

#include "orvane/automation/Object.h"
#include "orvane/components/BackgroundInfo.h"
#include "orvane/components/LightCollection.h"
#include "orvane/components/TextInfo.h"
#include "orvane/components/ViewpointCollection.h"
#include "orvane/graphs/IOrvaneGraph.h"
#include "orvane/scene/RouteList.h"

#include <initializer_list>
#include <memory>
#include <string>

namespace orvane {

/// A live scene that is brought up to date and written at every export; exporting twice gives the
/// same text.
class ORVANE_API Chart : public host::Object, public IOrvaneGraph {
 public:
  std::shared_ptr<BackgroundInfo> BackgroundProps() const { return m_background; }
  std::shared_ptr<TextInfo> TitleProps() const { return m_title; }
  std::shared_ptr<ViewpointCollection> Viewpoints() const { return m_viewpoints; }
  std::shared_ptr<LightCollection> Lights() const { return m_lights; }

  /// Writes the chart as a VRML97 world to the file `fName` (UTF-8) and returns whether that
  /// worked; when it did not, the file is as it was.
  bool ExportToFile(const std::string& fName);
  /// The same world as text, with or without line breaks and indentation.
  std::string ExportToString(bool includeBreaks, bool includeTabs);

  /// The root of the scene. A C++ host may append nodes of its own to its children.
  std::shared_ptr<scene::Transform> RootNode() const override { return m_root; }
  /// For C++: ROUTEs between nodes of the scene, the chart's or those that a program hangs into its
  /// root, which each world has after the chart's own.
  scene::RouteList& ExtraRoutes() { return *m_extraRoutes; }

 protected:
  Chart();

  /// Places and fills everything that depends on properties; the route list is empty before it.
  virtual void Arrange() = 0;

  /// Appends the parts' root nodes to the chart's root, in order.
  void Assemble(std::initializer_list<const ISceneRoot*> parts);
  /// Takes those of the parts' root nodes that an earlier export put into the chart's root out of
  /// it.
  void Detach(std::initializer_list<const ISceneRoot*> parts);

  scene::RouteList& Routes() const { return *m_routes; }

 private:
  void PrepareExport();

  std::shared_ptr<BackgroundInfo> m_background;
  std::shared_ptr<TextInfo> m_title;
  std::shared_ptr<ViewpointCollection> m_viewpoints;
  std::shared_ptr<LightCollection> m_lights;
  std::shared_ptr<scene::Transform> m_root;
  std::shared_ptr<scene::RouteList> m_routes;
  std::shared_ptr<scene::RouteList> m_extraRoutes;
};

}  // namespace orvane
