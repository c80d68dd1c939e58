#include "stills/shapes/Triangulate.h"

#include <algorithm>
#include <cstddef>
#include <utility>

namespace orvane::stills {

namespace {

using Outline = std::vector<std::uint32_t>;

/// Twice the area of a triangle, > 0 counter-clockwise.
double Area(const Vec2& a, const Vec2& b, const Vec2& c) {
  return (double{b[0]} - a[0]) * (double{c[1]} - a[1]) -
         (double{b[1]} - a[1]) * (double{c[0]} - a[0]);
}

class Cutter {
 public:
  explicit Cutter(const std::vector<Vec2>& points) : m_points(points) {}

  std::vector<std::uint32_t> Cut(std::vector<Outline> outlines) {
    std::erase_if(outlines, [](const Outline& outline) { return outline.size() < 3; });
    // The number of outlines around each tells whether it is an edge of the shape or of a hole.
    std::vector<std::size_t> depths;
    depths.reserve(outlines.size());
    for (const Outline& outline : outlines) {
      depths.push_back(
          static_cast<std::size_t>(std::ranges::count_if(outlines, [&](const Outline& other) {
            return &other != &outline && IsInside(outline, other);
          })));
    }
    std::vector<std::uint32_t> triangles;
    for (std::size_t i = 0; i < outlines.size(); ++i) {
      if (depths[i] % 2 != 0) continue;
      std::vector<Outline> holes;
      for (std::size_t k = 0; k < outlines.size(); ++k) {
        const bool isOwn = depths[k] == depths[i] + 1 && IsInside(outlines[k], outlines[i]);
        if (isOwn) holes.push_back(Directed(outlines[k], false));
      }
      Clip(Bridged(Directed(outlines[i], true), holes), triangles);
    }
    return triangles;
  }

 private:
  const Vec2& At(std::uint32_t index) const { return m_points[index]; }

  bool IsInside(const Outline& inner, const Outline& outer) const {
    const Vec2& p = At(inner[0]);
    bool isInside = false;
    for (std::size_t i = 0; i < outer.size(); ++i) {
      const Vec2 &a = At(outer[i]), &b = At(outer[(i + 1) % outer.size()]);
      if ((a[1] > p[1]) == (b[1] > p[1])) continue;
      if (p[0] < a[0] + (b[0] - a[0]) * (p[1] - a[1]) / (b[1] - a[1])) isInside = !isInside;
    }
    return isInside;
  }

  Outline Directed(Outline outline, bool isCounterClockwise) const {
    double area = 0;
    for (std::size_t i = 1; i + 1 < outline.size(); ++i) {
      area += Area(At(outline[0]), At(outline[i]), At(outline[i + 1]));
    }
    if ((area > 0) != isCounterClockwise) std::ranges::reverse(outline);
    return outline;
  }

  /// One outline that goes to each hole, round it and back, the rightmost hole first.
  Outline Bridged(Outline outline, std::vector<Outline>& holes) const {
    const auto right = [this](const Outline& hole) {
      return std::ranges::max_element(hole, {}, [this](std::uint32_t i) { return At(i)[0]; });
    };
    std::ranges::sort(holes, std::ranges::greater(),
                      [&](const Outline& hole) { return At(*right(hole))[0]; });
    for (Outline& hole : holes) {
      std::rotate(hole.begin(), hole.begin() + (right(hole) - std::as_const(hole).begin()),
                  hole.end());
      const std::size_t from = BridgeFrom(outline, At(hole[0]));
      Outline way(outline.begin(), outline.begin() + static_cast<std::ptrdiff_t>(from) + 1);
      way.insert(way.end(), hole.begin(), hole.end());
      way.push_back(hole[0]);
      way.insert(way.end(), outline.begin() + static_cast<std::ptrdiff_t>(from), outline.end());
      outline = std::move(way);
    }
    return outline;
  }

  /// The corner of the outline that a hole's rightmost point sees: the end of the edge that it
  /// meets to its right, or a corner that stands before that.
  std::size_t BridgeFrom(const Outline& outline, const Vec2& p) const {
    std::size_t best = 0;
    double nearest = 1e30;
    for (std::size_t i = 0; i < outline.size(); ++i) {
      const std::size_t k = (i + 1) % outline.size();
      const Vec2 &a = At(outline[i]), &b = At(outline[k]);
      if (a[1] == b[1] || std::min(a[1], b[1]) > p[1] || std::max(a[1], b[1]) < p[1]) continue;
      const double x = a[0] + (double{b[0]} - a[0]) * (double{p[1]} - a[1]) / (double{b[1]} - a[1]);
      if (x < p[0] || x >= nearest) continue;
      nearest = x;
      best = a[0] > b[0] ? i : k;
    }
    const Vec2 hit = {static_cast<float>(nearest), p[1]}, end = At(outline[best]);
    double flattest = 1e30;
    std::size_t seen = best;
    for (std::size_t i = 0; i < outline.size(); ++i) {
      const Vec2& q = At(outline[i]);
      if (q == end || q[0] <= p[0] || !Holds(p, hit, end, q)) continue;
      const std::size_t before = (i + outline.size() - 1) % outline.size();
      const bool isConvex = Area(At(outline[before]), q, At(outline[(i + 1) % outline.size()])) > 0;
      const double slope = std::abs(double{q[1]} - p[1]) / (double{q[0]} - p[0]);
      if (isConvex || slope >= flattest) continue;
      flattest = slope;
      seen = i;
    }
    return seen;
  }

  static bool Holds(const Vec2& a, const Vec2& b, const Vec2& c, const Vec2& p) {
    const double u = Area(a, b, p), v = Area(b, c, p), w = Area(c, a, p);
    return (u >= 0 && v >= 0 && w >= 0) || (u <= 0 && v <= 0 && w <= 0);
  }

  /// Cuts off ears until nothing is left.
  void Clip(Outline outline, std::vector<std::uint32_t>& triangles) const {
    std::size_t at = 0, tried = 0;
    while (outline.size() > 2) {
      const std::size_t n = outline.size(), before = (at + n - 1) % n, after = (at + 1) % n;
      // A twisted outline has no ears left at the end: it is cut all the same.
      if (IsEar(outline, before, at, after) || tried > n) {
        const std::uint32_t a = outline[before], b = outline[at], c = outline[after];
        if (Area(At(a), At(b), At(c)) > 0) triangles.insert(triangles.end(), {a, b, c});
        outline.erase(outline.begin() + static_cast<std::ptrdiff_t>(at));
        at = at == 0 || at >= outline.size() ? 0 : at;
        tried = 0;
      } else {
        at = after;
        ++tried;
      }
    }
  }

  bool IsEar(const Outline& outline, std::size_t before, std::size_t at, std::size_t after) const {
    const Vec2 &a = At(outline[before]), &b = At(outline[at]), &c = At(outline[after]);
    const double area = Area(a, b, c);
    if (area == 0) return true;
    if (area < 0) return false;
    return std::ranges::none_of(outline, [&](std::uint32_t index) {
      const Vec2& p = At(index);
      return p != a && p != b && p != c && Area(a, b, p) >= 0 && Area(b, c, p) >= 0 &&
             Area(c, a, p) >= 0;
    });
  }

  const std::vector<Vec2>& m_points;
};

}  // namespace

std::vector<std::uint32_t> Triangulate(const std::vector<Vec2>& points,
                                       std::vector<std::vector<std::uint32_t>> outlines) {
  return Cutter(points).Cut(std::move(outlines));
}

}  // namespace orvane::stills
