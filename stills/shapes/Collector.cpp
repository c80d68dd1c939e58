#include "stills/shapes/Collector.h"

#include "stills/shapes/Geometry.h"
#include "stills/shapes/Vectors.h"

namespace orvane::stills {

namespace {

constexpr int kMostDepth = 400;

Vec3 Triple(const std::vector<float>& list) { return {list[0], list[1], list[2]}; }

Matrix TurnBy(const std::vector<float>& rotation) {
  return Rotation({rotation[0], rotation[1], rotation[2]}, rotation[3]);
}

Matrix Shift(const Vec3& by) { return {{1, 0, 0}, {0, 1, 0}, {0, 0, 1}, by}; }

/// The frame of a Transform's children (ISO/IEC 14772-1, 6.52).
Matrix FrameOf(const Node& transform) {
  const Vec3 center = Triple(transform.Floats("center")), scale = Triple(transform.Floats("scale"));
  const Matrix oriented = TurnBy(transform.Floats("scaleOrientation"));
  const Matrix scaled{{scale[0], 0, 0}, {0, scale[1], 0}, {0, 0, scale[2]}, {}};
  return Shift(Triple(transform.Floats("translation")) + center) *
         TurnBy(transform.Floats("rotation")) * oriented * scaled * oriented.Inverse() *
         Shift(center * -1);
}

/// The turn of a Billboard that stands in `place`, towards the viewer (ISO/IEC 14772-1, 6.6).
Matrix Facing(const Node& billboard, const Matrix& place, const Matrix& viewer) {
  const Matrix back = place.Inverse();
  const Vec3 axis = Triple(billboard.Floats("axisOfRotation"));
  const Vec3 ahead = Unit(back.Point(viewer.origin));
  if (Length(axis) == 0) {
    const Vec3 side = Unit(Cross(Unit(back.Vector(viewer.y)), ahead));
    return {side, Unit(Cross(ahead, side)), ahead, {}};
  }
  const Vec3 up = Unit(axis), from = Cross(up, {0, 0, 1}), to = Cross(up, ahead);
  if (Length(from) == 0 || Length(to) == 0) return {};
  return Rotation(up, std::atan2(Dot(up, Cross(from, to)), Dot(from, to)));
}

Look LookOf(const Node& shape, PartKind kind, bool hasColors) {
  Look look;
  const Node* appearance = shape.Child("appearance");
  const Node* material = appearance ? appearance->Child("material") : nullptr;
  look.isLit = material != nullptr && kind != PartKind::Lines;
  if (!material) {
    look.emissive = {1, 1, 1};
    return look;
  }
  look.diffuse = Triple(material->Floats("diffuseColor"));
  look.emissive = Triple(material->Floats("emissiveColor"));
  look.specular = Triple(material->Floats("specularColor"));
  look.ambientIntensity = material->Float("ambientIntensity");
  look.shininess = material->Float("shininess");
  look.transparency = material->Float("transparency");
  if (kind == PartKind::Lines && hasColors) look.emissive = {1, 1, 1};
  if (look.diffuse == Vec3{} && look.specular == Vec3{} && !hasColors) look.isLit = false;
  return look;
}

}  // namespace

Findings Collector::Walk(const Matrix& viewer, bool withShapes) {
  m_viewer = viewer;
  m_withShapes = withShapes;
  m_found = {};
  if (withShapes) m_names.Learn(m_scene);
  VisitAll(m_scene.Roots(), {});
  return std::move(m_found);
}

void Collector::VisitAll(const std::vector<Node*>& nodes, const Matrix& place) {
  for (Node* node : nodes) {
    if (node) Visit(*node, place);
  }
}

void Collector::Visit(Node& node, const Matrix& place) {
  m_scene.TheBudget().CheckTime();
  if (m_depth >= kMostDepth) {
    throw Error(node.place.Text() + ": the scene is nested more than " +
                std::to_string(kMostDepth) + " deep, or within itself");
  }
  ++m_depth;
  if (node.Type().proto) {
    VisitInstance(node, place);
  } else if (node.Is("Transform")) {
    VisitAll(node.Nodes("children"), place * FrameOf(node));
  } else if (node.Is("Group") || node.Is("Anchor") || node.Is("Collision")) {
    VisitAll(node.Nodes("children"), place);
  } else if (node.Is("Billboard")) {
    VisitAll(node.Nodes("children"), place * Facing(node, place, m_viewer));
  } else if (node.Is("Switch")) {
    const auto& choices = node.Nodes("choice");
    const auto chosen = static_cast<std::size_t>(node.Ints("whichChoice")[0]);
    if (chosen < choices.size() && choices[chosen]) Visit(*choices[chosen], place);
  } else if (node.Is("LOD")) {
    const auto& levels = node.Nodes("level");
    const float away =
        Length(place.Inverse().Point(m_viewer.origin) - Triple(node.Floats("center")));
    std::size_t level = 0;
    for (const float range : node.Floats("range")) level += away >= range ? 1 : 0;
    if (!levels.empty()) VisitAll({levels[std::min(level, levels.size() - 1)]}, place);
  } else if (node.Is("Shape")) {
    if (m_withShapes) AddShape(node, place);
  } else if (node.Is("PointLight") || node.Is("DirectionalLight")) {
    AddLight(node, place);
  } else if (node.Is("Viewpoint")) {
    Matrix frame =
        place * Shift(Triple(node.Floats("position"))) * TurnBy(node.Floats("orientation"));
    m_found.views.push_back({node.Strings("description")[0], frame, node.Float("fieldOfView")});
  } else if (node.Is("Background")) {
    if (!m_found.background) m_found.background = &node;
  } else if (node.Is("NavigationInfo")) {
    if (!m_found.navigation) m_found.navigation = &node;
  } else if (node.Is("ProximitySensor")) {
    m_found.sensors.push_back({&node, place});
  }
  --m_depth;
}

void Collector::VisitInstance(Node& node, const Matrix& place) {
  if (node.body.empty() || !node.body[0]) return;
  m_names.Enter(node);
  Visit(*node.body[0], place);
  m_names.Leave();
}

const Collector::Known& Collector::MeshFor(const Node& geometry) {
  std::uint32_t revision = 1 + geometry.revision;
  for (int i = 0; i < geometry.FieldCount(); ++i) {
    if (geometry.Declared(i).type != FieldType::SFNode) continue;
    const Node* child = std::get<std::vector<Node*>>(geometry.Field(i).value)[0];
    if (child) revision += child->revision;
  }
  Known& known = m_meshes[&geometry];
  if (known.revision == revision) return known;
  known.revision = revision;
  bool isLines = false;
  const bool isText = geometry.Is("Text");
  known.mesh = isText ? m_typesetter.Set(geometry) : MeshOf(geometry, m_scene.TheBudget(), isLines);
  known.kind = isText ? PartKind::Text : isLines ? PartKind::Lines : PartKind::Faces;
  return known;
}

void Collector::AddShape(const Node& shape, const Matrix& place) {
  const Node* geometry = shape.Child("geometry");
  const Node* appearance = shape.Child("appearance");
  const Node* material = appearance ? appearance->Child("material") : nullptr;
  if (!geometry || (material && material->Float("transparency") >= 1)) return;
  const auto& [revision, mesh, kind] = MeshFor(*geometry);
  if (!mesh || mesh->indices.empty()) return;
  Part part;
  part.kind = kind;
  part.mesh = mesh;
  part.place = place;
  part.look = LookOf(shape, kind, !mesh->colors.empty());
  m_names.Describe(part, *geometry, appearance);
  m_scene.TheBudget().Take(sizeof(Part) + part.values.size() * sizeof(float));
  m_found.parts.push_back(std::move(part));
}

void Collector::AddLight(const Node& node, const Matrix& place) {
  if (!node.Bool("on")) return;
  Light light;
  light.color = Triple(node.Floats("color"));
  light.intensity = node.Float("intensity");
  light.ambientIntensity = node.Float("ambientIntensity");
  if (node.Is("PointLight")) {
    light.location = place.Point(Triple(node.Floats("location")));
    light.attenuation = Triple(node.Floats("attenuation"));
    light.radius = node.Float("radius");
  } else {
    light.kind = Light::Kind::Directional;
    light.direction = Unit(place.Vector(Triple(node.Floats("direction"))));
  }
  m_found.lights.push_back(light);
}

}  // namespace orvane::stills
