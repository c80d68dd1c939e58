/// Walks a scene as a viewer would and gathers what is to be seen.
#pragma once

#include "stills/Still.h"
#include "stills/scene/Scene.h"
#include "stills/shapes/PartNames.h"
#include "stills/text/Typesetter.h"

#include <map>
#include <memory>
#include <string>
#include <vector>

namespace orvane::stills {

/// A sensor that tells where the viewer is, and the frame it stands in.
struct PlacedSensor {
  Node* node;
  Matrix place;
};

/// Everything in the scene that a walk comes by.
struct Findings {
  std::vector<Part> parts;
  std::vector<Light> lights;
  std::vector<View> views;
  std::vector<PlacedSensor> sensors;
  const Node* background = nullptr;
  const Node* navigation = nullptr;
};

/// Keeps the meshes of a scene from walk to walk, as long as their nodes do not change.
class Collector {
 public:
  explicit Collector(Scene& scene) : m_scene(scene) {}

  /// Walks what is shown to a viewer. Without shapes only views, lights and sensors are gathered.
  Findings Walk(const Matrix& viewer, bool withShapes);

 private:
  void Visit(Node& node, const Matrix& place);
  void VisitAll(const std::vector<Node*>& nodes, const Matrix& place);
  void VisitInstance(Node& node, const Matrix& place);
  void AddShape(const Node& shape, const Matrix& place);
  void AddLight(const Node& node, const Matrix& place);

  struct Known {
    std::uint32_t revision = 0;  ///< of the nodes that the mesh was made of
    std::shared_ptr<const Mesh> mesh;
    PartKind kind = PartKind::Faces;
  };

  const Known& MeshFor(const Node& geometry);

  Scene& m_scene;
  Typesetter m_typesetter;
  Matrix m_viewer;
  bool m_withShapes = false;
  int m_depth = 0;
  PartNames m_names;
  std::map<const Node*, Known> m_meshes;
  Findings m_found;
};

}  // namespace orvane::stills
