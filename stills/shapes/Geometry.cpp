#include "stills/shapes/Geometry.h"

#include "stills/shapes/FaceBuilder.h"
#include "stills/shapes/Vectors.h"

namespace orvane::stills {

namespace {

const std::vector<float>* ListIn(const Node& node, std::string_view field, std::string_view list) {
  const Node* child = node.Child(field);
  const int at = child ? child->Find(list) : -1;
  return at < 0 ? nullptr : std::get_if<std::vector<float>>(&child->Field(at).value);
}

Vec3 Triple(const std::vector<float>& list, std::size_t i) {
  return {list[3 * i], list[3 * i + 1], list[3 * i + 2]};
}

[[noreturn]] void FailIndex(const Node& node, const char* field, std::int64_t index,
                            std::size_t count) {
  throw Error(node.place.Text() + ": " + field + " of " + node.TypeName() + " names entry " +
              std::to_string(index) + " of " + std::to_string(count));
}

/// Values of the corners out of a list of normals or colours, as VRML97 has them: by an index of
/// their own, by that of the points, or one a face (ISO/IEC 14772-1, 6.23).
std::vector<Vec3> PerCorner(const Node& node, const std::vector<float>& list, const char* indexName,
                            bool isPerVertex, const std::vector<std::int32_t>& corners) {
  const auto& own = node.Ints(indexName);
  const std::size_t count = list.size() / 3;
  std::vector<Vec3> result;
  if (count == 0) return result;
  result.reserve(corners.size());
  std::size_t face = 0;
  for (std::size_t i = 0; i < corners.size(); ++i) {
    if (corners[i] < 0) ++face;
    std::int64_t index = corners[i];
    if (isPerVertex && !own.empty()) index = i < own.size() ? own[i] : -1;
    if (!isPerVertex)
      index = own.empty() ? static_cast<std::int64_t>(face) : (face < own.size() ? own[face] : -1);
    const bool isEnd = corners[i] < 0;
    if (!isEnd && (index < 0 || index >= static_cast<std::int64_t>(count))) {
      FailIndex(node, indexName, index, count);
    }
    result.push_back(isEnd ? Vec3{} : Triple(list, static_cast<std::size_t>(index)));
  }
  return result;
}

/// coordIndex with the last face or line closed.
std::vector<std::int32_t> Corners(const Node& node, std::size_t points) {
  std::vector<std::int32_t> corners = node.Ints("coordIndex");
  if (!corners.empty() && corners.back() >= 0) corners.push_back(-1);
  for (const std::int32_t index : corners) {
    if (index >= 0 && static_cast<std::size_t>(index) >= points) {
      FailIndex(node, "coordIndex", index, points);
    }
  }
  return corners;
}

Mesh FaceSet(const Node& node, Budget& budget) {
  const std::vector<float>* points = ListIn(node, "coord", "point");
  if (!points) return {};
  Faces faces;
  faces.points = points;
  faces.corners = Corners(node, points->size() / 3);
  faces.creaseAngle = node.Float("creaseAngle");
  faces.isConvex = node.Bool("convex");
  faces.isCounterClockwise = node.Bool("ccw");
  faces.isSolid = node.Bool("solid");
  if (const auto* normals = ListIn(node, "normal", "vector")) {
    faces.normals =
        PerCorner(node, *normals, "normalIndex", node.Bool("normalPerVertex"), faces.corners);
  }
  if (const auto* colors = ListIn(node, "color", "color")) {
    faces.colors =
        PerCorner(node, *colors, "colorIndex", node.Bool("colorPerVertex"), faces.corners);
  }
  return Build(faces, budget);
}

Mesh Grid(const Node& node, Budget& budget) {
  const std::int64_t columns = node.Ints("xDimension")[0], rows = node.Ints("zDimension")[0];
  const auto& heights = node.Floats("height");
  if (columns < 2 || rows < 2) return {};
  const auto count = static_cast<std::size_t>(columns * rows);
  if (heights.size() < count)
    FailIndex(node, "height", static_cast<std::int64_t>(count) - 1, heights.size());
  std::vector<float> points;
  points.reserve(3 * count);
  for (std::size_t n = 0; n < count; ++n) {
    const auto i = static_cast<std::int64_t>(n) % columns,
               k = static_cast<std::int64_t>(n) / columns;
    points.insert(points.end(), {static_cast<float>(i) * node.Float("xSpacing"), heights[n],
                                 static_cast<float>(k) * node.Float("zSpacing")});
  }
  Faces faces;
  faces.points = &points;
  faces.creaseAngle = node.Float("creaseAngle");
  faces.isCounterClockwise = node.Bool("ccw");
  faces.isSolid = node.Bool("solid");
  faces.corners.reserve(8 * count);
  for (std::int64_t k = 0; k + 1 < rows; ++k) {
    for (std::int64_t i = 0; i + 1 < columns; ++i) {
      const auto a = static_cast<std::int32_t>(k * columns + i);
      const auto b = static_cast<std::int32_t>(a + columns);
      faces.corners.insert(faces.corners.end(), {a, b, b + 1, -1, a, b + 1, a + 1, -1});
    }
  }
  if (const auto* normals = ListIn(node, "normal", "vector");
      normals && node.Bool("normalPerVertex") && normals->size() >= 3 * count) {
    for (const std::int32_t corner : faces.corners) {
      faces.normals.push_back(corner < 0 ? Vec3{}
                                         : Triple(*normals, static_cast<std::size_t>(corner)));
    }
  }
  if (const auto* colors = ListIn(node, "color", "color");
      colors && node.Bool("colorPerVertex") && colors->size() >= 3 * count) {
    for (const std::int32_t corner : faces.corners) {
      faces.colors.push_back(corner < 0 ? Vec3{}
                                        : Triple(*colors, static_cast<std::size_t>(corner)));
    }
  }
  return Build(faces, budget);
}

Mesh LineSet(const Node& node) {
  Mesh mesh;
  const std::vector<float>* points = ListIn(node, "coord", "point");
  if (!points) return mesh;
  const std::vector<std::int32_t> corners = Corners(node, points->size() / 3);
  std::vector<Vec3> colors;
  if (const auto* list = ListIn(node, "color", "color")) {
    colors = PerCorner(node, *list, "colorIndex", node.Bool("colorPerVertex"), corners);
  }
  std::vector<std::uint32_t> vertex(points->size() / 3, 0xFFFFFFFF);
  const auto vertexAt = [&](std::size_t i) {
    auto& known = vertex[static_cast<std::size_t>(corners[i])];
    if (known == 0xFFFFFFFF || !colors.empty()) {
      known = static_cast<std::uint32_t>(mesh.points.size());
      mesh.points.push_back(Triple(*points, static_cast<std::size_t>(corners[i])));
      if (!colors.empty()) mesh.colors.push_back(colors[i]);
    }
    return known;
  };
  for (std::size_t i = 1; i < corners.size(); ++i) {
    if (corners[i] < 0 || corners[i - 1] < 0) continue;
    const std::uint32_t from = vertexAt(i - 1);
    mesh.indices.insert(mesh.indices.end(), {from, vertexAt(i)});
  }
  return mesh;
}

// --- bodies ---

/// Turned about the y axis: rings of points (radius, y) with their normals (out, up), each joined
/// to the one before it, unless the two are at one place. From below to above, faces look out.
struct Ring {
  float radius, y, out, up;
};

Mesh Turned(const std::vector<Ring>& rings, std::uint32_t sides) {
  Mesh mesh;
  for (const Ring& ring : rings) {
    for (std::uint32_t k = 0; k <= sides; ++k) {
      const float angle = 6.2831853F * static_cast<float>(k % sides) / static_cast<float>(sides);
      const float s = std::sin(angle), c = std::cos(angle);
      mesh.points.push_back({ring.radius * s, ring.y, ring.radius * c});
      mesh.normals.push_back(Unit({ring.out * s, ring.up, ring.out * c}));
    }
  }
  for (std::size_t i = 1; i < rings.size(); ++i) {
    const Ring &below = rings[i - 1], &above = rings[i];
    if (below.radius == above.radius && below.y == above.y) continue;
    const auto a = static_cast<std::uint32_t>(i - 1) * (sides + 1), b = a + sides + 1;
    for (std::uint32_t k = 0; k < sides; ++k) {
      if (below.radius > 0) mesh.indices.insert(mesh.indices.end(), {a + k, a + k + 1, b + k + 1});
      if (above.radius > 0) mesh.indices.insert(mesh.indices.end(), {a + k, b + k + 1, b + k});
    }
  }
  return mesh;
}

Mesh Box(const std::vector<float>& size) {
  Mesh mesh;
  const Vec3 half = Vec3{size[0], size[1], size[2]} * 0.5F;
  for (std::size_t axis = 0; axis < 3; ++axis) {
    for (const float side : {-1.0F, 1.0F}) {
      Vec3 normal{}, u{}, v{};
      normal[axis] = side;
      u[(axis + 1) % 3] = 1;
      v[(axis + 2) % 3] = side;
      const auto first = static_cast<std::uint32_t>(mesh.points.size());
      for (const Vec3& corner : {normal - u - v, normal + u - v, normal + u + v, normal - u + v}) {
        mesh.points.push_back(corner * half);
        mesh.normals.push_back(normal);
      }
      mesh.indices.insert(mesh.indices.end(),
                          {first, first + 1, first + 2, first, first + 2, first + 3});
    }
  }
  return mesh;
}

Mesh Ball(float radius) {
  constexpr int kRings = 16;
  std::vector<Ring> rings;
  for (int i = 0; i <= kRings; ++i) {
    const float angle = 3.1415927F * (static_cast<float>(i) / kRings - 0.5F);
    const float out = i == 0 || i == kRings ? 0 : std::cos(angle), up = std::sin(angle);
    rings.push_back({radius * out, radius * up, out, up});
  }
  return Turned(rings, 32);
}

Mesh Cylinder(const Node& node) {
  const float radius = node.Float("radius"), half = 0.5F * node.Float("height");
  std::vector<Ring> rings;
  if (node.Bool("bottom")) rings.insert(rings.end(), {{0, -half, 0, -1}, {radius, -half, 0, -1}});
  if (node.Bool("side"))
    rings.insert(rings.end(), {{radius, -half, 1, 0}, {radius, half, 1, 0}});
  else
    rings.insert(rings.end(), {{radius, -half, 1, 0}, {radius, -half, 1, 0}});
  if (node.Bool("top") && node.Bool("side")) {
    rings.insert(rings.end(), {{radius, half, 0, 1}, {0, half, 0, 1}});
  }
  return Turned(rings, 32);
}

Mesh Cone(const Node& node) {
  const float radius = node.Float("bottomRadius"), height = node.Float("height"),
              half = 0.5F * height;
  std::vector<Ring> rings;
  if (node.Bool("bottom")) rings.insert(rings.end(), {{0, -half, 0, -1}, {radius, -half, 0, -1}});
  if (node.Bool("side")) {
    rings.insert(rings.end(), {{radius, -half, height, radius}, {0, half, height, radius}});
  }
  return Turned(rings, 32);
}

}  // namespace

std::shared_ptr<const Mesh> MeshOf(const Node& geometry, Budget& budget, bool& isLines) {
  isLines = geometry.Is("IndexedLineSet");
  Mesh mesh;
  if (geometry.Is("IndexedFaceSet"))
    mesh = FaceSet(geometry, budget);
  else if (isLines)
    mesh = LineSet(geometry);
  else if (geometry.Is("ElevationGrid"))
    mesh = Grid(geometry, budget);
  else if (geometry.Is("Box"))
    mesh = Box(geometry.Floats("size"));
  else if (geometry.Is("Sphere"))
    mesh = Ball(geometry.Float("radius"));
  else if (geometry.Is("Cylinder"))
    mesh = Cylinder(geometry);
  else if (geometry.Is("Cone"))
    mesh = Cone(geometry);
  if (mesh.indices.empty()) return nullptr;
  budget.Take(mesh.points.size() * 2 * sizeof(Vec3) + mesh.indices.size() * sizeof(std::uint32_t));
  return std::make_shared<const Mesh>(std::move(mesh));
}

}  // namespace orvane::stills
