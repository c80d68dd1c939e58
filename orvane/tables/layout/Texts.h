/// Texts in charts: cut to one line, and how much room they take.
#pragma once

#include "orvane/automation/Export.h"

#include <string>
#include <string_view>

namespace orvane::tables {

/// Legend rows advance by this many heights of their texts.
inline constexpr double kLegendPitch = 1.35;

/// One line of at most 24 characters: more would push the chart out of sight.
std::string Label(std::string_view text);

/// An upper estimate of the width of `text`, `height` high.
ORVANE_API double TextWidth(std::string_view text, double height);

}  // namespace orvane::tables
