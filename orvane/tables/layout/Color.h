/// Colours as people write them, and the arithmetic that a chart's look needs.
#pragma once

#include "orvane/automation/Coercion.h"
#include "orvane/automation/Export.h"

#include <cstdint>

namespace orvane::tables {

/// A colour in the object model's encoding: red in bits 0-7, green in 8-15, blue in 16-23.
using HostColor = std::int32_t;

using host::ParseColor;

/// The colour `share` (0 to 1) of the way from `from` to `to`.
ORVANE_API HostColor Mix(HostColor from, HostColor to, double share);

/// Relative luminance, 0 (black) to 1 (white), of sRGB (IEC 61966-2-1).
ORVANE_API double Luminance(HostColor color);

/// (brighter + 0.05) / (darker + 0.05) in luminance, 1 to 21: how well one stands out from the
/// other.
ORVANE_API double Contrast(HostColor a, HostColor b);

}  // namespace orvane::tables
