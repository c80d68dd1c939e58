/// What charts of every kind get from the program, beside their data: colours that go with the
/// background, title, legend, viewpoints and lights.
#pragma once

#include "orvane/components/ChartLegend.h"
#include "orvane/graphs/Chart.h"
#include "orvane/tables/layout/Color.h"
#include "orvane/tables/layout/Views.h"

#include <string>
#include <vector>

namespace orvane::tables {

/// Text on light and on dark grounds.
inline constexpr HostColor kDarkInk = 0x40342B;
inline constexpr HostColor kLightInk = 0xFAF6F2;

/// The colours of everything but the data, derived from the background so that they go with it.
struct Style {
  explicit Style(HostColor background);

  HostColor ink;
  HostColor wall;
  HostColor litWall;  ///< As walls look in the light, which lines do not get.
  HostColor line;
};

/// Makes a billboard face the viewer also from above.
void FaceViewer(scene::Billboard& billboard);

void DressBackground(Chart& chart, HostColor background);

/// A bold line, `height` high, that faces the viewer.
void DressTitle(TextInfo& title, const std::string& text, double height, const Style& style);

/// Texts `height` high; the legend faces the viewer.
void DressLegend(ChartLegend& legend, double height, const Style& style);

void AddViews(Chart& chart, const std::vector<View>& views);

/// A light `distance` from `middle` in `direction`, a unit vector. Directions and places are in the
/// chart's frame.
void AddLight(Chart& chart, const Point& middle, double distance, const Point& direction,
              double intensity);

/// Lights that stay with the chart, so that no side of it is ever black, as the sides that a
/// headlight only grazes would be. Front faces and tops get the most, the left and the back the
/// least.
void AddLights(Chart& chart, const Point& middle, double distance);

/// Lets viewers turn the chart about `middle` rather than walk through it.
void CentreForExamining(Chart& chart, const Point& middle);

}  // namespace orvane::tables
