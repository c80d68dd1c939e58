#include "stills/shapes/FaceBuilder.h"

#include "stills/shapes/Triangulate.h"
#include "stills/shapes/Vectors.h"

namespace orvane::stills {

namespace {

class Builder {
 public:
  Builder(const Faces& faces, Budget& budget) : m_faces(faces), m_budget(budget) {
    m_first.resize(faces.points->size() / 3, kNone);
    m_mesh.isSolid = faces.isSolid;
    m_mesh.indices.reserve(faces.corners.size());
  }

  Mesh Run() {
    FindFaceNormals();
    std::size_t face = 0, start = 0;
    for (std::size_t i = 0; i < m_faces.corners.size(); ++i) {
      if (m_faces.corners[i] >= 0) continue;
      m_budget.CheckTime();
      if (i - start > 2) AddFace(face, start, i);
      ++face;
      start = i + 1;
    }
    return std::move(m_mesh);
  }

 private:
  static constexpr std::uint32_t kNone = 0xFFFFFFFF;

  Vec3 Point(std::int32_t index) const {
    const float* p = m_faces.points->data() + 3 * static_cast<std::size_t>(index);
    return {p[0], p[1], p[2]};
  }

  /// By Newell's rule, which takes faces that are not quite flat as well.
  void FindFaceNormals() {
    const auto& corners = m_faces.corners;
    std::size_t start = 0;
    for (std::size_t i = 0; i < corners.size(); ++i) {
      if (corners[i] >= 0) continue;
      Vec3 sum{};
      const Vec3 origin = i > start ? Point(corners[start]) : Vec3{};
      for (std::size_t k = start + 1; k + 1 < i; ++k) {
        sum = sum + Cross(Point(corners[k]) - origin, Point(corners[k + 1]) - origin);
      }
      m_normals.push_back(Unit(sum * (m_faces.isCounterClockwise ? 1.0F : -1.0F)));
      start = i + 1;
    }
    if (m_faces.creaseAngle > 0 && m_faces.normals.empty()) FindNeighbours();
  }

  /// For each point the faces around it, as runs of one list.
  void FindNeighbours() {
    m_run.resize(m_first.size() + 1);
    for (const std::int32_t corner : m_faces.corners) {
      if (corner >= 0) ++m_run[static_cast<std::size_t>(corner) + 1];
    }
    for (std::size_t i = 1; i < m_run.size(); ++i) m_run[i] += m_run[i - 1];
    m_around.resize(m_run.back());
    std::vector<std::uint32_t> next(m_run.begin(), m_run.end() - 1);
    std::uint32_t face = 0;
    for (const std::int32_t corner : m_faces.corners) {
      if (corner < 0)
        ++face;
      else
        m_around[next[static_cast<std::size_t>(corner)]++] = face;
    }
  }

  Vec3 NormalAt(std::size_t face, std::size_t corner) const {
    if (!m_faces.normals.empty()) return Unit(m_faces.normals[corner]);
    const Vec3& own = m_normals[face];
    if (m_faces.creaseAngle <= 0) return own;
    const float least = m_faces.creaseAngle >= 3.14159F ? -2 : std::cos(m_faces.creaseAngle);
    const auto point = static_cast<std::size_t>(m_faces.corners[corner]);
    Vec3 sum{};
    for (std::uint32_t i = m_run[point]; i < m_run[point + 1]; ++i) {
      const Vec3& other = m_normals[m_around[i]];
      if (Dot(own, other) >= least) sum = sum + other;
    }
    return Length(sum) > 0 ? Unit(sum) : own;
  }

  void AddFace(std::size_t face, std::size_t start, std::size_t end) {
    m_vertices.clear();
    for (std::size_t i = start; i < end; ++i) {
      const Vec3 color = m_faces.colors.empty() ? Vec3{} : m_faces.colors[i];
      m_vertices.push_back(Vertex(m_faces.corners[i], NormalAt(face, i), color));
    }
    if (m_faces.isConvex || m_vertices.size() == 3) {
      for (std::size_t i = 2; i < m_vertices.size(); ++i) {
        AddTriangle(m_vertices[0], m_vertices[i - 1], m_vertices[i]);
      }
    } else {
      AddConcave(m_normals[face]);
    }
  }

  void AddTriangle(std::uint32_t a, std::uint32_t b, std::uint32_t c) {
    if (a == b || b == c || c == a) return;
    if (!m_faces.isCounterClockwise) std::swap(b, c);
    m_mesh.indices.insert(m_mesh.indices.end(), {a, b, c});
  }

  /// Seen along the axis that the face is most nearly square to.
  void AddConcave(const Vec3& normal) {
    const std::size_t away = std::abs(normal[0]) > std::abs(normal[1])
                                 ? (std::abs(normal[0]) > std::abs(normal[2]) ? 0U : 2U)
                                 : (std::abs(normal[1]) > std::abs(normal[2]) ? 1U : 2U);
    std::vector<Vec2> flat;
    std::vector<std::uint32_t> outline;
    for (const std::uint32_t vertex : m_vertices) {
      const Vec3& p = m_mesh.points[vertex];
      outline.push_back(static_cast<std::uint32_t>(flat.size()));
      flat.push_back({p[(away + 1) % 3], p[(away + 2) % 3]});
    }
    const std::vector<std::uint32_t> cut = Triangulate(flat, {outline});
    const bool isTurned = (normal[away] < 0) != !m_faces.isCounterClockwise;
    for (std::size_t i = 0; i < cut.size(); i += 3) {
      AddTriangle(m_vertices[cut[i]], m_vertices[cut[isTurned ? i + 2 : i + 1]],
                  m_vertices[cut[isTurned ? i + 1 : i + 2]]);
    }
  }

  /// The vertex with that point, normal and colour, the same one again for the same three.
  std::uint32_t Vertex(std::int32_t point, const Vec3& normal, const Vec3& color) {
    std::uint32_t& first = m_first[static_cast<std::size_t>(point)];
    for (std::uint32_t at = first; at != kNone; at = m_next[at]) {
      const bool isSame =
          Dot(m_mesh.normals[at], normal) > 0.99999F || m_mesh.normals[at] == normal;
      if (isSame && (m_faces.colors.empty() || m_mesh.colors[at] == color)) return at;
    }
    const auto made = static_cast<std::uint32_t>(m_mesh.points.size());
    m_mesh.points.push_back(Point(point));
    m_mesh.normals.push_back(normal);
    if (!m_faces.colors.empty()) m_mesh.colors.push_back(color);
    m_next.push_back(first);
    first = made;
    return made;
  }

  const Faces& m_faces;
  Budget& m_budget;
  Mesh m_mesh;
  std::vector<Vec3> m_normals;                 ///< of the faces
  std::vector<std::uint32_t> m_run, m_around;  ///< faces around each point
  std::vector<std::uint32_t> m_first, m_next;  ///< vertices of each point
  std::vector<std::uint32_t> m_vertices;       ///< of the face at hand
};

}  // namespace

Mesh Build(const Faces& faces, Budget& budget) { return Builder(faces, budget).Run(); }

}  // namespace orvane::stills
