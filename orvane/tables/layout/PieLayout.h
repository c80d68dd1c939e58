/// How large a pie and its texts are, so that labels keep clear of the pie and of each other.
#pragma once

#include "orvane/automation/Export.h"
#include "orvane/graphs/pie/PieGraph.h"
#include "orvane/tables/ChartOptions.h"
#include "orvane/tables/layout/Views.h"
#include "orvane/tables/read/PieTable.h"

#include <string>
#include <vector>

namespace orvane::tables {

/// The label of a slice: where it stands and what it says. It is centred there and faces the
/// viewer.
struct PieLabel {
  std::string text;     ///< Empty where it would not fit.
  double angle = 0;     ///< Of the middle of the slice, clockwise from +x as seen from above.
  double distance = 0;  ///< From the axis.
  double y = 0;         ///< Of the baseline.
};

/// Texts and sizes of a pie round the origin. Lengths are in scene units.
struct ORVANE_API PieLayout {
  double radius = 3;
  double height = 0;            ///< Of the highest slice.
  std::vector<double> heights;  ///< Of each slice, > 0.
  double textHeight = 0;
  std::vector<PieLabel> labels;
  std::vector<std::string> legend;
  double legendTextHeight = 0;
  std::string title;
  double titleHeight = 0;
  PiePlacement placement;

  double LegendHeight() const;
  /// The middle of the title's baseline.
  Point TitlePlace() const;
  /// The legend's lower left corner.
  Point LegendPlace() const;
};

ORVANE_API PieLayout LayOutPie(const std::vector<PieShare>& shares, const ChartOptions& options);

/// The views from above, the front and the top.
std::vector<View> ViewsOf(const PieLayout& layout);

}  // namespace orvane::tables
