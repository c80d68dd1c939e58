/// The value types of VRML97 fields that have more than one component.
#pragma once

#include "orvane/automation/Export.h"

namespace orvane::scene {

struct ORVANE_API Vec2f {
  float x = 0;
  float y = 0;
  friend bool operator==(const Vec2f&, const Vec2f&) = default;
};

struct ORVANE_API Vec3f {
  float x = 0;
  float y = 0;
  float z = 0;
  friend bool operator==(const Vec3f&, const Vec3f&) = default;
};

/// A turn by `angle` radians about the axis (x, y, z), right-handed.
struct ORVANE_API Rotation {
  float x = 0;
  float y = 0;
  float z = 1;
  float angle = 0;
  friend bool operator==(const Rotation&, const Rotation&) = default;
};

/// Red, green and blue, each in [0, 1].
struct ORVANE_API Color {
  float red = 0;
  float green = 0;
  float blue = 0;
  friend bool operator==(const Color&, const Color&) = default;
};

}  // namespace orvane::scene
