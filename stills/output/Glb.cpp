// Writes glTF 2.0 binaries.

#include "stills/output/GlbBuffer.h"
#include "stills/output/Model.h"
#include "stills/shapes/Vectors.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <string>
#include <tuple>
#include <utility>

namespace orvane::stills {

namespace {

using Json = nlohmann::ordered_json;

/// Thickness of lines as a share of the model's height.
constexpr float kTube = 0.0016F;

/// From the colours of VRML97, which are those of a screen, to those of light.
float Linear(float c) { return c <= 0.04045F ? c / 12.92F : std::pow((c + 0.055F) / 1.055F, 2.4F); }
Vec3 Linear(const Vec3& c) { return {Linear(c[0]), Linear(c[1]), Linear(c[2])}; }

/// Prisms of three sides along the lines of a mesh.
Mesh Tubes(const Mesh& lines, float radius) {
  Mesh tubes;
  for (std::size_t i = 0; i + 1 < lines.indices.size(); i += 2) {
    const std::uint32_t ends[2] = {lines.indices[i], lines.indices[i + 1]};
    const Vec3 way = Unit(lines.points[ends[1]] - lines.points[ends[0]]);
    if (Length(way) == 0) continue;
    const Vec3 side = Unit(Cross(way, std::abs(way[1]) < 0.9F ? Vec3{0, 1, 0} : Vec3{1, 0, 0}));
    const Vec3 up = Cross(way, side);
    const auto first = static_cast<std::uint32_t>(tubes.points.size());
    for (const std::uint32_t end : ends) {
      for (int k = 0; k < 3; ++k) {
        const float angle = 2.0943951F * static_cast<float>(k);
        const Vec3 out = side * std::cos(angle) + up * std::sin(angle);
        tubes.points.push_back(lines.points[end] + out * radius);
        tubes.normals.push_back(Unit(out));
        if (!lines.colors.empty()) tubes.colors.push_back(lines.colors[end]);
      }
    }
    for (std::uint32_t k = 0; k < 3; ++k) {
      const std::uint32_t a = first + k, b = first + (k + 1) % 3;
      tubes.indices.insert(tubes.indices.end(), {a, b, b + 3, a, b + 3, a + 3});
    }
    tubes.indices.insert(tubes.indices.end(), {first, first + 2, first + 1});
    tubes.indices.insert(tubes.indices.end(), {first + 3, first + 4, first + 5});
  }
  return tubes;
}

/// A mesh in a frame that only shifts and scales evenly, which a node can say, or with the rest of
/// the frame worked in.
Mesh Baked(const Mesh& mesh, const Matrix& place) {
  Mesh baked = mesh;
  const Matrix inverse = place.Inverse();
  for (Vec3& point : baked.points) point = place.Vector(point);
  for (Vec3& n : baked.normals) n = Unit({Dot(n, inverse.x), Dot(n, inverse.y), Dot(n, inverse.z)});
  if (place.Determinant() < 0) {
    for (std::size_t i = 0; i + 2 < baked.indices.size(); i += 3) {
      std::swap(baked.indices[i + 1], baked.indices[i + 2]);
    }
  }
  return baked;
}

/// The scale of a frame that does not turn, or 0.
float EvenScale(const Matrix& place) {
  const float scale = place.x[0];
  const auto isNear = [scale](float a, float b) {
    return std::abs(a - b) <= 1e-6F * std::abs(scale);
  };
  const bool isEven = scale > 0 && isNear(place.y[1], scale) && isNear(place.z[2], scale);
  const bool isStraight = isNear(place.x[1], 0) && isNear(place.x[2], 0) && isNear(place.y[0], 0) &&
                          isNear(place.y[2], 0) && isNear(place.z[0], 0) && isNear(place.z[1], 0);
  return isEven && isStraight ? scale : 0;
}

Json Quaternion(const Matrix& turn) {
  const Vec3 &x = turn.x, &y = turn.y, &z = turn.z;
  const float w = 0.5F * std::sqrt(std::max(0.0F, 1 + x[0] + y[1] + z[2]));
  std::array<float, 4> q = {0.5F * std::sqrt(std::max(0.0F, 1 + x[0] - y[1] - z[2])),
                            0.5F * std::sqrt(std::max(0.0F, 1 - x[0] + y[1] - z[2])),
                            0.5F * std::sqrt(std::max(0.0F, 1 - x[0] - y[1] + z[2])), w};
  if (y[2] - z[1] < 0) q[0] = -q[0];
  if (z[0] - x[2] < 0) q[1] = -q[1];
  if (x[1] - y[0] < 0) q[2] = -q[2];
  return q;
}

class Writer {
 public:
  Writer(const Still& still, const ModelOptions& options)
      : m_options(options), m_standing(Standing(still, options.height)) {
    m_document = {{"asset", {{"version", "2.0"}, {"generator", "Orvane"}}}, {"scene", 0}};
    m_document["scenes"] = {{{"nodes", Json::array()}}};
  }

  void AddPart(const Part& part) {
    const Matrix place = m_standing * part.place;
    const float scale = EvenScale(place);
    Json node = {{"name", part.name}, {"mesh", MeshFor(part, place, scale)}};
    node["translation"] = place.origin;
    if (scale > 0) node["scale"] = {scale, scale, scale};
    if (!part.values.empty()) node["extras"]["values"] = part.values;
    if (!part.texts.empty()) node["extras"]["texts"] = part.texts;
    AddNode(std::move(node));
  }

  void AddCamera(const View& view) {
    const Vec3 &x = m_standing.x, at = m_standing.Point(view.place.origin);
    m_document["cameras"].push_back(
        {{"type", "perspective"},
         {"name", view.name},
         {"perspective", {{"yfov", view.fieldOfView}, {"znear", 0.05F * x[0]}}}});
    AddNode({{"name", view.name},
             {"camera", m_document["cameras"].size() - 1},
             {"translation", at},
             {"rotation", Quaternion(view.place)}});
  }

  /// The places of all parts at each time, in seconds; parts that do not move are left out.
  void AddMotion(const std::vector<float>& times, const std::vector<std::vector<Vec3>>& places) {
    Json samplers = Json::array(), channels = Json::array();
    int input = -1;
    for (std::size_t part = 0; part < places[0].size(); ++part) {
      std::vector<Vec3> way;
      way.reserve(places.size());
      for (const auto& moment : places) way.push_back(m_standing.Point(moment[part]));
      if (std::ranges::all_of(way, [&way](const Vec3& at) { return at == way[0]; })) continue;
      if (input < 0) input = m_buffer.AddTimes(times);
      channels.push_back(
          {{"sampler", samplers.size()}, {"target", {{"node", part}, {"path", "translation"}}}});
      samplers.push_back({{"input", input}, {"output", m_buffer.AddKeys(way)}});
    }
    if (channels.empty()) return;
    m_document["animations"] = {
        {{"name", "Motion"}, {"channels", channels}, {"samplers", samplers}}};
  }

  std::string File() && {
    if (m_isUnlit) m_document["extensionsUsed"] = {"KHR_materials_unlit"};
    return std::move(m_buffer).File(std::move(m_document));
  }

 private:
  void AddNode(Json node) {
    m_document["scenes"][0]["nodes"].push_back(m_document["nodes"].size());
    m_document["nodes"].push_back(std::move(node));
  }

  int MaterialFor(const Part& part) {
    const Look& look = part.look;
    const bool isText = part.kind == PartKind::Text, isLine = part.kind == PartKind::Lines;
    const bool isUnlit = isText || isLine || !look.isLit;
    const bool hasColors = !part.mesh->colors.empty();
    Vec3 base = isUnlit && !(isText && look.isLit) ? look.emissive : look.diffuse;
    if (hasColors) base = {1, 1, 1};
    const bool isDouble = !part.mesh->isSolid;
    Json material = {{"pbrMetallicRoughness", {{"metallicFactor", 0}}}};
    const Vec3 color = Linear(base);
    material["pbrMetallicRoughness"]["baseColorFactor"] = {color[0], color[1], color[2],
                                                           1 - look.transparency};
    // A highlight as sharp as that of VRML97's shininess; without one the surface is dull.
    const float exponent = look.specular == Vec3{} ? 0.5F : look.shininess * 128;
    material["pbrMetallicRoughness"]["roughnessFactor"] = std::pow(2 / (exponent + 2), 0.25F);
    if (isUnlit) {
      m_isUnlit = true;
      material["extensions"]["KHR_materials_unlit"] = Json::object();
    } else if (look.emissive != Vec3{}) {
      material["emissiveFactor"] = Linear(look.emissive);
    }
    if (look.transparency > 0) material["alphaMode"] = "BLEND";
    if (isDouble) material["doubleSided"] = true;
    const auto [at, isNew] =
        m_materials.try_emplace(material.dump(), static_cast<int>(m_materials.size()));
    if (isNew) m_document["materials"].push_back(std::move(material));
    return at->second;
  }

  /// One for all parts that share shape and look.
  int MeshFor(const Part& part, const Matrix& place, float scale) {
    const bool isTube = part.kind == PartKind::Lines && m_options.hasTubes;
    const int material = MaterialFor(part);
    const auto key = std::make_tuple(part.mesh.get(), material, scale > 0 && !isTube);
    const bool isShared = scale > 0 && !isTube;
    if (isShared && m_meshes.count(key) > 0) return m_meshes[key];
    const auto made = static_cast<int>(m_document["meshes"].size());
    Json primitive;
    if (isShared) {
      const auto [at, isNew] = m_primitives.try_emplace(part.mesh.get());
      if (isNew) at->second = Primitive(*part.mesh, part.kind == PartKind::Lines);
      primitive = at->second;
      m_meshes[key] = made;
    } else if (isTube) {
      const float radius = 0.5F * kTube * m_options.height / std::max(scale, 1e-30F);
      primitive =
          scale > 0
              ? Primitive(Tubes(*part.mesh, radius), false)
              : Primitive(Tubes(Baked(*part.mesh, place), 0.5F * kTube * m_options.height), false);
    } else {
      primitive = Primitive(Baked(*part.mesh, place), part.kind == PartKind::Lines);
    }
    primitive["material"] = material;
    m_document["meshes"].push_back({{"name", part.name}, {"primitives", {primitive}}});
    return made;
  }

  Json Primitive(const Mesh& mesh, bool isLines) {
    Json primitive = {{"attributes", {{"POSITION", m_buffer.AddVectors(mesh.points, true)}}}};
    if (!mesh.normals.empty()) {
      std::vector<Vec3> normals = mesh.normals;
      for (Vec3& normal : normals) {
        if (Length(normal) < 0.5F) normal = {0, 1, 0};
      }
      primitive["attributes"]["NORMAL"] = m_buffer.AddVectors(normals, false);
    }
    if (!mesh.colors.empty()) {
      std::vector<Vec3> colors;
      for (const Vec3& color : mesh.colors) colors.push_back(Linear(color));
      primitive["attributes"]["COLOR_0"] = m_buffer.AddVectors(colors, false);
    }
    primitive["indices"] = m_buffer.AddIndices(mesh.indices, mesh.points.size());
    if (isLines) primitive["mode"] = 1;
    return primitive;
  }

  const ModelOptions& m_options;
  Matrix m_standing;
  Json m_document;
  GlbBuffer m_buffer;
  std::map<std::string, int> m_materials;
  std::map<std::tuple<const Mesh*, int, bool>, int> m_meshes;
  std::map<const Mesh*, Json> m_primitives;
  bool m_isUnlit = false;
};

std::vector<std::size_t> Wanted(const Still& still, const std::string& name) {
  std::vector<std::size_t> wanted;
  std::string names;
  for (std::size_t i = 0; i < still.parts.size(); ++i) {
    names += (names.empty() ? "" : ", ") + still.parts[i].name;
    if (name.empty() || still.parts[i].name == name) wanted.push_back(i);
  }
  if (wanted.empty() && !name.empty())
    throw Error("there is no part \"" + name + "\"; there are: " + names);
  return wanted;
}

}  // namespace

std::string Glb(World& world, std::string_view view, const ModelOptions& options) {
  Still still = world.From(view);
  const std::vector<std::size_t> wanted = Wanted(still, options.part);
  Writer writer(still, options);
  for (const std::size_t i : wanted) writer.AddPart(still.parts[i]);
  for (const std::string& name : world.Views()) writer.AddCamera(world.From(name).view);
  if (world.TurnSeconds() > 0) {
    std::vector<float> times;
    std::vector<std::vector<Vec3>> places;
    for (const float key : world.TurnKeys()) {
      world.Turn(key);
      const Still moment = world.From(view);
      if (moment.parts.size() != still.parts.size())
        break;  // what comes and goes has no way to follow
      times.push_back(key * static_cast<float>(world.TurnSeconds()));
      places.emplace_back();
      for (const std::size_t i : wanted) places.back().push_back(moment.parts[i].place.origin);
    }
    world.Turn(0);
    if (!places.empty()) writer.AddMotion(times, places);
  }
  return std::move(writer).File();
}

}  // namespace orvane::stills
