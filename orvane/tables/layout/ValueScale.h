/// Round limits and steps for a value axis.
#pragma once

#include "orvane/automation/Export.h"

#include <string>

namespace orvane::tables {

/// A value axis from `low` to `high` in `cells` steps of 1, 2, 2.5 or 5 x 10^n. All three numbers
/// are in units of 10^exponent, so that very large and very small values get labels of a few
/// digits.
struct ORVANE_API ValueScale {
  double low = 0;
  double high = 1;
  double step = 0.25;
  int cells = 4;
  int decimals = 2;  ///< That labels need to be exact.
  int exponent = 0;  ///< A multiple of 3.

  /// `value` of the table in units of the axis.
  double InUnits(double value) const;
  /// Where `value` of the table stands between low, 0, and high, 1.
  double Share(double value) const { return (InUnits(value) - low) / (high - low); }
  /// Format picture of the labels: "#,##0.00".
  std::string LabelPicture() const;
  /// What to write beside the axis: "× 1,000,000"; empty when the unit is 1.
  std::string UnitText() const;
};

/// The scale with the smallest step that reaches from `lowest` to `highest` and 0 in at most
/// `mostCells` (2 or more) cells. Both values are finite; a table of zeros gets 0 to 1.
ORVANE_API ValueScale RoundScale(double lowest, double highest, int mostCells);

/// The same without the 0, unless the values lie so close together that only 0 gives them a scale.
ORVANE_API ValueScale TightScale(double lowest, double highest, int mostCells);

/// The tight scale where the values are far from 0, as heights above the sea may be: it would leave
/// them less than six tenths of the axis. The round scale elsewhere.
ORVANE_API ValueScale FittedScale(double lowest, double highest, int mostCells);

}  // namespace orvane::tables
