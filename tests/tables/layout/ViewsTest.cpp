/// Viewpoints: everything in view, and nothing nearer possible.
#include "orvane/tables/layout/Texts.h"
#include "orvane/tables/layout/Views.h"

#include <algorithm>
#include <cmath>

#include <gtest/gtest.h>

namespace orvane::tables {
namespace {

/// `point` as seen from `view`: tangents of the angles to the right and up, and the distance along
/// the line of sight, found by turning the world back, first about y, then about x.
Point Seen(const View& view, const Point& point) {
  const double x = point.x - view.position.x;
  const double y = point.y - view.position.y;
  const double z = point.z - view.position.z;
  const double x1 = x * std::cos(view.yaw) - z * std::sin(view.yaw);
  const double z1 = x * std::sin(view.yaw) + z * std::cos(view.yaw);
  const double y2 = y * std::cos(view.pitch) + z1 * std::sin(view.pitch);
  const double z2 = -y * std::sin(view.pitch) + z1 * std::cos(view.pitch);
  return {x1 / -z2, y2 / -z2, -z2};
}

Point Sum(const Point& a, const Point& b, double factor) {
  return {a.x + factor * b.x, a.y + factor * b.y, a.z + factor * b.z};
}

Point Cross(const Point& a, const Point& b) {
  return {a.y * b.z - a.z * b.y, a.z * b.x - a.x * b.z, a.x * b.y - a.y * b.x};
}

Point Unit(const Point& a) { return Sum({}, a, 1 / std::hypot(a.x, a.y, a.z)); }

std::vector<Point> Box(double x, double y, double z) {
  return {{0, 0, 0}, {x, 0, 0}, {0, y, 0}, {0, 0, z}, {x, y, 0}, {x, 0, z}, {0, y, z}, {x, y, z}};
}

TEST(TextWidth, CountsMalformedBytesAsCharacters) {
  EXPECT_EQ(TextWidth("\xff\xe2\x82", 1), TextWidth("abc", 1));
}

TEST(Views, ShowAllOfTheChartAndFillTheWindow) {
  const double half = std::tan(kFieldOfView / 2);
  const std::vector<Subject> subjects = {
      {Box(12, 6, 8), {}},
      {Box(1, 40, 1), {}},
      {{{-3, 6, 9}, {15, 0, 2}, {4, 0, 12}, {0, 0, 0}}, {}},
      {Box(12, 6, 6), {{{13, 1, 0}, 0, 4, 0, 5}, {{6, 7, 0}, -5, 5, 0, 1}}},
  };
  for (const Subject& subject : subjects) {
    const auto views = ViewsOf(subject);
    ASSERT_EQ(views.size(), 4U);
    for (const View& view : views) {
      std::vector<Point> points = subject.points;
      for (const Sign& sign : subject.signs) {
        // ISO/IEC 14772-1, 6.6 Billboard: z towards the viewer's place, y along his own as far as z
        // lets it.
        const Point z = Unit(Sum(view.position, sign.anchor, -1));
        const Point viewerUp = {std::sin(view.yaw) * std::sin(view.pitch), std::cos(view.pitch),
                                std::cos(view.yaw) * std::sin(view.pitch)};
        const Point x = Unit(Cross(viewerUp, z));
        const Point y = Cross(z, x);
        for (const double across : {sign.left, sign.right}) {
          for (const double up : {sign.bottom, sign.top}) {
            points.push_back(Sum(Sum(sign.anchor, x, across), y, up));
          }
        }
      }
      double most = 0;
      for (const Point& point : points) {
        const Point seen = Seen(view, point);
        EXPECT_GT(seen.z, 0) << view.description;
        most = std::max({most, std::abs(seen.y), std::abs(seen.x) * 3 / 4});
      }
      EXPECT_LT(most, half) << view.description;
      EXPECT_GT(most, 0.9 * half) << view.description;
    }
  }
}

TEST(Views, LookDownALittleAndOpenAtTheCorner) {
  const auto views = ViewsOf({Box(8, 6, 8), {}});
  const char* names[] = {"Corner", "Front", "Side", "Top"};
  for (std::size_t i = 0; i < 4; ++i) {
    EXPECT_EQ(views[i].description, names[i]);
    EXPECT_LT(views[i].pitch, -0.05);
    EXPECT_GT(views[i].position.y, 0);
  }
  EXPECT_GT(views[0].position.x, 8);
  EXPECT_GT(views[0].position.z, 8);
  EXPECT_NEAR(views[1].position.x, 4, 1e-9);
  EXPECT_GT(views[2].position.x, 2 * views[2].position.z);
}

}  // namespace
}  // namespace orvane::tables
