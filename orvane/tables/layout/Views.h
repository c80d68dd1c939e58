/// Viewpoints that show the whole of a chart.
#pragma once

#include "orvane/automation/Export.h"

#include <string>
#include <vector>

namespace orvane::tables {

/// A place or direction in the chart's frame, in scene units.
struct Point {
  double x = 0;
  double y = 0;
  double z = 0;
};

/// A flat rectangle that turns about `anchor` so that it always faces the viewer, upright for him,
/// such as a billboarded legend. The extents are measured from the anchor.
struct Sign {
  Point anchor;
  double left = 0;
  double right = 0;
  double bottom = 0;
  double top = 0;
};

/// What has to be in view.
struct Subject {
  std::vector<Point> points;
  std::vector<Sign> signs;
};

/// A viewpoint: from `position`, turned from looking along -z by `pitch` about x and then by `yaw`
/// about y. Angles are in radians.
struct View {
  std::string description;
  double pitch = 0;
  double yaw = 0;
  Point position;
};

/// The field of view that ViewsOf counts on. Less than VRML97's default, as with a longer lens, so
/// that what stands at the back is not much smaller than what stands in front.
inline constexpr double kFieldOfView = 0.5;

/// A view in the direction of the two angles, as near as the whole `subject` allows in a window of
/// 4:3 or wider.
ORVANE_API View ViewOf(const std::string& description, double pitch, double yaw,
                       const Subject& subject);

/// The views from the corner, the front, the side and the top.
ORVANE_API std::vector<View> ViewsOf(const Subject& subject);

}  // namespace orvane::tables
