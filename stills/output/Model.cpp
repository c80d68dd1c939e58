// What all models share, and STL.

#include "stills/output/Model.h"

#include "stills/shapes/Vectors.h"

#include <algorithm>
#include <cstring>
#include <map>
#include <utility>

namespace orvane::stills {

namespace {

/// Vertices with equal places count as one.
std::vector<std::uint32_t> Merged(const Mesh& mesh) {
  std::map<Vec3, std::uint32_t> first;
  std::vector<std::uint32_t> same;
  same.reserve(mesh.points.size());
  for (const Vec3& point : mesh.points) {
    same.push_back(first.emplace(point, static_cast<std::uint32_t>(first.size())).first->second);
  }
  return same;
}

void Put(std::string& bytes, const Vec3& vector) {
  for (const float number : vector) {
    std::array<char, 4> four;
    std::memcpy(four.data(), &number, four.size());
    bytes.append(four.data(), four.size());
  }
}

}  // namespace

bool IsClosed(const Mesh& mesh) {
  const std::vector<std::uint32_t> same = Merged(mesh);
  std::map<std::pair<std::uint32_t, std::uint32_t>, int> edges;
  for (std::size_t i = 0; i < mesh.indices.size(); ++i) {
    const std::size_t next = i % 3 == 2 ? i - 2 : i + 1;
    const std::uint32_t a = same[mesh.indices[i]], b = same[mesh.indices[next]];
    if (a != b) edges[std::minmax(a, b)] += a < b ? 1 : -1;
  }
  return !edges.empty() &&
         std::ranges::all_of(edges, [](const auto& edge) { return edge.second == 0; });
}

Matrix Standing(const Still& still, float height) {
  Vec3 low{1e30F, 1e30F, 1e30F}, high = low * -1;
  for (const Part& part : still.parts) {
    for (const Vec3& point : part.mesh->points) {
      const Vec3 at = part.place.Point(point);
      for (std::size_t i = 0; i < 3; ++i) {
        low[i] = std::min(low[i], at[i]);
        high[i] = std::max(high[i], at[i]);
      }
    }
  }
  if (still.parts.empty()) throw Error("the world shows nothing from this viewpoint");
  const float by = height / std::max(high[1] - low[1], 1e-6F);
  const Vec3 foot{0.5F * (low[0] + high[0]), low[1], 0.5F * (low[2] + high[2])};
  return {{by, 0, 0}, {0, by, 0}, {0, 0, by}, foot * -by};
}

std::string Stl(const Still& still, const ModelOptions& options) {
  const Matrix standing = Standing(still, options.height * 1000);
  const Matrix turned = Matrix{{1, 0, 0}, {0, 0, 1}, {0, -1, 0}, {}} * standing;
  std::string triangles, names;
  for (const Part& part : still.parts) {
    if (part.kind != PartKind::Faces) continue;
    names += (names.empty() ? "" : ", ") + part.name;
    if (options.part.empty() ? !IsClosed(*part.mesh) : part.name != options.part) continue;
    const Matrix place = turned * part.place;
    const auto& index = part.mesh->indices;
    for (std::size_t i = 0; i + 2 < index.size(); i += 3) {
      const Vec3 a = place.Point(part.mesh->points[index[i]]);
      Vec3 b = place.Point(part.mesh->points[index[i + 1]]);
      Vec3 c = place.Point(part.mesh->points[index[i + 2]]);
      if (place.Determinant() < 0) std::swap(b, c);
      const Vec3 normal = Cross(b - a, c - a);
      if (Length(normal) == 0) continue;
      for (const Vec3& vector : {Unit(normal), a, b, c}) Put(triangles, vector);
      triangles.append(2, '\0');
    }
  }
  if (triangles.empty() && !options.part.empty()) {
    throw Error("there is no part \"" + options.part + "\" with faces; there are: " + names);
  }
  if (triangles.empty())
    throw Error("the world shows no closed shape; name a part to write it as it is");
  const auto count = static_cast<std::uint32_t>(triangles.size() / 50);
  std::string bytes = "Binary STL, millimetres";
  bytes.resize(84, '\0');
  std::memcpy(bytes.data() + 80, &count, 4);
  return bytes + triangles;
}

}  // namespace orvane::stills
