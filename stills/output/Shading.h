/// Light on surfaces, and the colours of the sky.
#pragma once

#include "stills/Still.h"

namespace orvane::stills {

/// The lights of a still in the viewer's frame.
std::vector<Light> LightsSeen(const Still& still);

/// Colour of a lit point whose normal is turned to the viewer, both in the viewer's frame, by
/// VRML97's lighting model (ISO/IEC 14772-1, 4.14), each number from 0 to 1.
Vec3 Shade(const Look& look, const Vec3& diffuse, const Vec3& point, const Vec3& normal,
           const std::vector<Light>& lights);

/// Colour of the sky or ground in a direction of the world.
Vec3 SkyColor(const Background& background, const Vec3& direction);

}  // namespace orvane::stills
