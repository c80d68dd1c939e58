#include "orvane/tables/layout/Views.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numbers>

namespace orvane::tables {
namespace {

double Dot(const Point& a, const Point& b) { return a.x * b.x + a.y * b.y + a.z * b.z; }

Point Sum(const Point& a, double s, const Point& b, double t, const Point& c, double u) {
  return {s * a.x + t * b.x + u * c.x, s * a.y + t * b.y + u * c.y, s * a.z + t * b.z + u * c.z};
}

/// The directions of a view in the chart's frame.
struct Camera {
  explicit Camera(const View& view)
      : right{std::cos(view.yaw), 0, -std::sin(view.yaw)},
        up{std::sin(view.yaw) * std::sin(view.pitch), std::cos(view.pitch),
           std::cos(view.yaw) * std::sin(view.pitch)},
        forward{-std::sin(view.yaw) * std::cos(view.pitch), std::sin(view.pitch),
                -std::cos(view.yaw) * std::cos(view.pitch)} {}

  Point right;
  Point up;
  Point forward;
};

/// The points of `subject`, and the corners of its signs while they face `camera`.
std::vector<Point> PointsOf(const Subject& subject, const Camera& camera) {
  std::vector<Point> points = subject.points;
  for (const Sign& sign : subject.signs) {
    for (const double across : {sign.left, sign.right}) {
      for (const double upward : {sign.bottom, sign.top}) {
        points.push_back(Sum(sign.anchor, 1, camera.right, across, camera.up, upward));
      }
    }
  }
  return points;
}

/// The nearest place from which all `points` lie within the view's angles.
///
/// Along each screen axis a point at (a, z), a across and z along the line of sight, is in view of
/// an eye at (e, d) when |a - e| <= t (z - d), t being the tangent of half the angle. So e - t d is
/// at least the largest a - t z and e + t d at most the smallest a + t z.
Point NearestEye(const Camera& camera, const std::vector<Point>& points) {
  constexpr double kMargin = 1.04;
  constexpr double kAspect = 4.0 / 3;
  const double upTangent = std::tan(kFieldOfView / 2) / kMargin;
  const double acrossTangent = upTangent * kAspect;

  struct Bounds {
    double low = -std::numeric_limits<double>::infinity();
    double high = std::numeric_limits<double>::infinity();
  };
  const auto boundsAlong = [&](const Point& axis, double tangent) {
    Bounds bounds;
    for (const Point& point : points) {
      const double reach = tangent * Dot(point, camera.forward);
      bounds.low = std::max(bounds.low, Dot(point, axis) - reach);
      bounds.high = std::min(bounds.high, Dot(point, axis) + reach);
    }
    return bounds;
  };
  const Bounds across = boundsAlong(camera.right, acrossTangent);
  const Bounds upward = boundsAlong(camera.up, upTangent);
  const double along = std::min((across.high - across.low) / (2 * acrossTangent),
                                (upward.high - upward.low) / (2 * upTangent));
  return Sum(camera.right, (across.low + across.high) / 2, camera.up,
             (upward.low + upward.high) / 2, camera.forward, along);
}

}  // namespace

View ViewOf(const std::string& description, double pitch, double yaw, const Subject& subject) {
  View view{description, pitch, yaw, {}};
  const Camera camera(view);
  view.position = NearestEye(camera, PointsOf(subject, camera));
  return view;
}

std::vector<View> ViewsOf(const Subject& subject) {
  constexpr double kDegree = std::numbers::pi / 180;
  // Never level: texts on the floor could not be read, and some browsers draw a sky that fades in
  // one colour then. The side is seen a little from the front, past the series that stands there.
  return {ViewOf("Corner", -24 * kDegree, 36 * kDegree, subject),
          ViewOf("Front", -14 * kDegree, 0, subject),
          ViewOf("Side", -14 * kDegree, 78 * kDegree, subject),
          ViewOf("Top", -75 * kDegree, 0, subject)};
}

}  // namespace orvane::tables
