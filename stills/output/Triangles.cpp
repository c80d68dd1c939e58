#include "stills/output/Triangles.h"

#include "stills/shapes/Vectors.h"

#include <algorithm>
#include <numeric>

namespace orvane::stills {

namespace {

/// What is nearer to the viewer is cut off.
constexpr float kNearest = 0.02F;

class Projector {
 public:
  Projector(const Still& still, const PictureSize& size)
      : m_lens(still.view, size),
        m_halfLine(0.5F * size.scale),
        m_back(still.view.place.Inverse()) {}

  void Add(const Part& part) {
    const Mesh& mesh = *part.mesh;
    const auto number = static_cast<std::uint32_t>(m_triangles.surfaces.size());
    m_triangles.surfaces.push_back({part.look, !mesh.colors.empty()});
    const Matrix place = m_back * part.place;
    const float turn = place.Determinant();
    if (turn == 0) return;
    SeeCorners(mesh, place);
    const auto& index = mesh.indices;
    if (part.kind == PartKind::Lines) {
      for (std::size_t i = 0; i + 1 < index.size(); i += 2) AddLine(number, index[i], index[i + 1]);
      return;
    }
    for (std::size_t i = 0; i + 2 < index.size(); i += 3) {
      const Corner &a = m_corners[index[i]], &b = m_corners[index[i + 1]],
                   &c = m_corners[index[i + 2]];
      const bool isBack =
          (Dot(Cross(b.point - a.point, c.point - a.point), a.point) > 0) == (turn > 0);
      if (isBack && mesh.isSolid) continue;
      Clip(number, {a, b, c}, isBack);
    }
  }

  Triangles Take() {
    auto& list = m_triangles.list;
    const auto isOpaque = [this](const Triangle& triangle) {
      return m_triangles.surfaces[triangle.part].look.transparency <= 0;
    };
    const auto clear = std::stable_partition(list.begin(), list.end(), isOpaque);
    m_triangles.opaque = static_cast<std::size_t>(clear - list.begin());
    std::stable_sort(clear, list.end(),
                     [](const Triangle& a, const Triangle& b) { return Depth(a) > Depth(b); });
    return std::move(m_triangles);
  }

 private:
  static float Depth(const Triangle& t) {
    return Length(t.corners[0].point + t.corners[1].point + t.corners[2].point);
  }

  void SeeCorners(const Mesh& mesh, const Matrix& place) {
    const Matrix inverse = place.Inverse();
    const auto normalSeen = [&inverse](const Vec3& n) {
      return Unit({Dot(n, {inverse.x[0], inverse.x[1], inverse.x[2]}),
                   Dot(n, {inverse.y[0], inverse.y[1], inverse.y[2]}),
                   Dot(n, {inverse.z[0], inverse.z[1], inverse.z[2]})});
    };
    m_corners.resize(mesh.points.size());
    for (std::size_t i = 0; i < mesh.points.size(); ++i) {
      Corner& corner = m_corners[i];
      corner.point = place.Point(mesh.points[i]);
      corner.normal = mesh.normals.empty() ? Vec3{0, 0, 1} : normalSeen(mesh.normals[i]);
      corner.color = mesh.colors.empty() ? Vec3{} : mesh.colors[i];
      Place(corner);
    }
  }

  void Place(Corner& corner) const {
    corner.near = 1 / std::max(-corner.point[2], kNearest);
    corner.x = m_lens.x + m_lens.focus * corner.point[0] * corner.near;
    corner.y = m_lens.y - m_lens.focus * corner.point[1] * corner.near;
  }

  static bool IsAhead(const Corner& corner) { return corner.point[2] <= -kNearest; }

  /// Where the way from a corner in view to one that is not leaves the view.
  Corner Cut(const Corner& in, const Corner& out) const {
    const float t = (-kNearest - in.point[2]) / (out.point[2] - in.point[2]);
    Corner corner = in;
    corner.point = in.point + (out.point - in.point) * t;
    corner.normal = in.normal + (out.normal - in.normal) * t;
    corner.color = in.color + (out.color - in.color) * t;
    Place(corner);
    return corner;
  }

  void Clip(std::uint32_t part, const std::array<Corner, 3>& corners, bool isTurned) {
    if (IsAhead(corners[0]) && IsAhead(corners[1]) && IsAhead(corners[2])) {
      m_triangles.list.push_back({corners, part, isTurned});
      return;
    }
    std::vector<Corner> kept;
    for (std::size_t i = 0; i < 3; ++i) {
      const Corner &a = corners[i], &b = corners[(i + 1) % 3];
      if (IsAhead(a)) kept.push_back(a);
      if (IsAhead(a) != IsAhead(b)) kept.push_back(IsAhead(a) ? Cut(a, b) : Cut(b, a));
    }
    for (std::size_t i = 2; i < kept.size(); ++i) {
      m_triangles.list.push_back({{kept[0], kept[i - 1], kept[i]}, part, isTurned});
    }
  }

  /// As wide on the picture wherever it is: two triangles.
  void AddLine(std::uint32_t part, std::uint32_t from, std::uint32_t to) {
    Corner a = m_corners[from], b = m_corners[to];
    if (!IsAhead(a) && !IsAhead(b)) return;
    if (!IsAhead(a)) a = Cut(b, a);
    if (!IsAhead(b)) b = Cut(a, b);
    const float dx = b.x - a.x, dy = b.y - a.y, length = std::sqrt(dx * dx + dy * dy);
    if (length == 0) return;
    const float sideX = -dy / length * m_halfLine, sideY = dx / length * m_halfLine;
    const auto moved = [&](Corner corner, float side) {
      corner.x += side * sideX;
      corner.y += side * sideY;
      return corner;
    };
    const Corner a1 = moved(a, 1), a2 = moved(a, -1), b1 = moved(b, 1), b2 = moved(b, -1);
    m_triangles.list.push_back({{a1, a2, b2}, part, false});
    m_triangles.list.push_back({{a1, b2, b1}, part, false});
  }

  Lens m_lens;
  float m_halfLine;
  Matrix m_back;
  std::vector<Corner> m_corners;
  Triangles m_triangles;
};

}  // namespace

Lens::Lens(const View& view, const PictureSize& size)
    : x(0.5F * static_cast<float>(size.width) * size.scale),
      y(0.5F * static_cast<float>(size.height) * size.scale),
      focus(std::min(x, y) / std::tan(0.5F * view.fieldOfView)) {}

Triangles Project(const Still& still, const PictureSize& size) {
  Projector projector(still, size);
  for (const Part& part : still.parts) projector.Add(part);
  return projector.Take();
}

}  // namespace orvane::stills
