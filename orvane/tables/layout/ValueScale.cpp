#include "orvane/tables/layout/ValueScale.h"

#include <algorithm>
#include <cmath>

namespace orvane::tables {
namespace {

/// `number` x 10^exponent, with one rounding for exponents of up to 22, which are exact in binary.
double Shift(double number, int exponent) {
  constexpr int kHalfway = 150;  // 10^-300 and beyond are reached in two exactly rounded parts.
  if (exponent < -kHalfway) return Shift(number / 1e150, exponent + kHalfway);
  if (exponent > kHalfway) return Shift(number * 1e150, exponent - kHalfway);
  return exponent < 0 ? number / std::pow(10, -exponent) : number * std::pow(10, exponent);
}

/// The unit in which `magnitude` is a number of at most six digits and not below a hundredth.
int ExponentOf(double magnitude) {
  if (magnitude == 0 || (magnitude >= 0.01 && magnitude < 1e6)) return 0;
  return 3 * static_cast<int>(std::floor(std::log10(magnitude) / 3));
}

/// The scale with the smallest step that reaches from `lowest` to `highest` in at most `mostCells`
/// cells.
ValueScale ScaleOver(double lowest, double highest, int mostCells) {
  ValueScale scale;
  scale.exponent = ExponentOf(std::max(std::abs(lowest), std::abs(highest)));
  lowest = scale.InUnits(lowest);
  highest = scale.InUnits(highest);
  if (lowest == highest) return scale;

  // The steps in rising order, as mantissa x 10^power, from one that is surely too small.
  constexpr int kMantissas[] = {10, 20, 25, 50};
  const int firstPower =
      static_cast<int>(std::floor(std::log10((highest - lowest) / mostCells))) - 2;
  for (int power = firstPower;; ++power) {
    for (const int mantissa : kMantissas) {
      // A hair of tolerance: 0.3 / 0.1 is a little less or more than 3.
      constexpr double kTolerance = 1e-9;
      const double step = Shift(mantissa, power);
      const double first = std::floor(lowest / step + kTolerance);
      const double last = std::ceil(highest / step - kTolerance);
      if (last - first > mostCells) continue;
      scale.low = Shift(first * mantissa, power);
      scale.high = Shift(last * mantissa, power) + 0.0;  // + 0.0 turns -0 into 0.
      scale.step = step;
      scale.cells = static_cast<int>(last - first);
      scale.decimals = std::max(0, mantissa == 25 ? -power : -power - 1);
      return scale;
    }
  }
}

}  // namespace

double ValueScale::InUnits(double value) const { return Shift(value, -exponent); }

std::string ValueScale::LabelPicture() const {
  return decimals == 0 ? "#,##0" : "#,##0." + std::string(static_cast<std::size_t>(decimals), '0');
}

std::string ValueScale::UnitText() const {
  if (exponent == 0) return "";
  if (exponent < -9 || exponent > 9) return "× 1e" + std::to_string(exponent);
  std::string unit = exponent > 0 ? "1" : "0.";
  for (int i = 0; i < exponent; i += 3) unit += ",000";
  if (exponent < 0) unit += std::string(static_cast<std::size_t>(-exponent - 1), '0') + "1";
  return "× " + unit;
}

ValueScale RoundScale(double lowest, double highest, int mostCells) {
  return ScaleOver(std::min(lowest, 0.0), std::max(highest, 0.0), mostCells);
}

ValueScale TightScale(double lowest, double highest, int mostCells) {
  // Closer together, values could not be told apart by labels that are 32-bit floats.
  constexpr double kLeastRange = 1e-4;
  const double magnitude = std::max(std::abs(lowest), std::abs(highest));
  if (highest / magnitude - lowest / magnitude < kLeastRange) {
    return RoundScale(lowest, highest, mostCells);
  }
  return ScaleOver(lowest, highest, mostCells);
}

ValueScale FittedScale(double lowest, double highest, int mostCells) {
  constexpr double kFill = 0.6;
  const double magnitude = std::max(std::abs(lowest), std::abs(highest));
  const bool isFar = highest / magnitude - lowest / magnitude < kFill;
  return isFar ? TightScale(lowest, highest, mostCells) : RoundScale(lowest, highest, mostCells);
}

}  // namespace orvane::tables
