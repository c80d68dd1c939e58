/// Round limits of the value axis.
#include "orvane/tables/layout/ValueScale.h"

#include <cmath>
#include <random>

#include <gtest/gtest.h>

namespace orvane::tables {
namespace {

struct Range {
  double lowest, highest;
  double low, high;
  int cells;
  const char* picture;
  const char* unit;
};

void Expect(const ValueScale& scale, const Range& range) {
  SCOPED_TRACE(range.highest);
  EXPECT_EQ(scale.low, range.low);
  EXPECT_EQ(scale.high, range.high);
  EXPECT_EQ(scale.cells, range.cells);
  EXPECT_EQ(scale.LabelPicture(), range.picture);
  EXPECT_EQ(scale.UnitText(), range.unit);
  EXPECT_FALSE(std::signbit(scale.high) && scale.high == 0);
}

TEST(RoundScale, ReachesRoundNumbersAroundTheValuesAndZero) {
  const Range ranges[] = {
      {0, 0, 0, 1, 4, "#,##0.00", ""},
      {3, 284.5, 0, 300, 6, "#,##0", ""},
      {1437, 42750, 0, 50000, 5, "#,##0", ""},
      {-1375, 638, -1500, 1000, 5, "#,##0", ""},
      {-4, -1, -4, 0, 4, "#,##0", ""},
      {0, 100, 0, 100, 5, "#,##0", ""},
      {0, 100.01, 0, 120, 6, "#,##0", ""},
      {0, 0.3, 0, 0.3, 6, "#,##0.00", ""},
      {0, 0.7, 0, 0.8, 4, "#,##0.0", ""},
      {0, 14, 0, 15, 6, "#,##0.0", ""},
      {0, 135450000, 0, 150, 6, "#,##0", "× 1,000,000"},
      {0, 0.00012, 0, 120, 6, "#,##0", "× 0.000001"},
      {0, 4e15, 0, 4, 4, "#,##0", "× 1e15"},
      {-1e308, 1e308, -100, 100, 4, "#,##0", "× 1e306"},
      {0, 5e-324, 0, 5, 5, "#,##0", "× 1e-324"},
  };
  for (const Range& range : ranges) Expect(RoundScale(range.lowest, range.highest, 6), range);
}

TEST(TightScale, LeavesZeroOutUnlessValuesLieTooClose) {
  const Range ranges[] = {
      {27.8, 82.5, 20, 90, 7, "#,##0", ""},
      {1955, 2005, 1950, 2010, 6, "#,##0", ""},
      {-3e7, -1.2e7, -30, -10, 4, "#,##0", "× 1,000,000"},
      {-2, 5, -2, 5, 7, "#,##0", ""},
      {0, 0, 0, 1, 4, "#,##0.00", ""},
      {7, 7, 0, 7, 7, "#,##0", ""},
      {-7, -7, -7, 0, 7, "#,##0", ""},
      {1000, 1000.05, 0, 1200, 6, "#,##0", ""},
      {-1e308, 1e308, -100, 100, 4, "#,##0", "× 1e306"},
  };
  for (const Range& range : ranges) Expect(TightScale(range.lowest, range.highest, 7), range);
}

TEST(RoundScale, HoldsForAnyRange) {
  std::mt19937 random(1);
  std::uniform_real_distribution<double> mantissa(-10, 10);
  std::uniform_int_distribution<int> exponent(-40, 40);
  std::uniform_int_distribution<int> cells(2, 12);
  for (int run = 0; run < 20000; ++run) {
    const double a = mantissa(random) * std::pow(10, exponent(random));
    const double b = mantissa(random) * std::pow(10, exponent(random));
    const int mostCells = cells(random);
    const ValueScale scale = RoundScale(std::min(a, b), std::max(a, b), mostCells);
    const double slack = 1e-6 * scale.step;
    ASSERT_LE(scale.cells, mostCells);
    ASSERT_NEAR(scale.low + scale.cells * scale.step, scale.high, slack);
    ASSERT_LE(scale.low, std::min({0.0, scale.InUnits(a), scale.InUnits(b)}) + slack);
    ASSERT_GE(scale.high, std::max({0.0, scale.InUnits(a), scale.InUnits(b)}) - slack);
    const double first = scale.step / std::pow(10, std::floor(std::log10(scale.step) + 1e-9));
    ASSERT_TRUE(std::abs(first - 1) < 1e-6 || std::abs(first - 2) < 1e-6 ||
                std::abs(first - 2.5) < 1e-6 || std::abs(first - 5) < 1e-6)
        << scale.step;
  }
}

TEST(FittedScale, LeavesOutA0ThatIsFarFromTheValues) {
  const struct {
    double lowest, highest, low, high;
  } cases[] = {
      {94, 195, 80, 200},          {3.3, 24.3, 0, 25},   {-195, -94, -200, -80},
      {-5, 100, -20, 100},         {7, 7, 0, 8},         {0, 0, 0, 1},
      {100000, 100001, 0, 120000}, {1e300, 2e300, 1, 2}, {-1e308, 1e308, -100, 100},
  };
  for (const auto& test : cases) {
    const ValueScale scale = FittedScale(test.lowest, test.highest, 6);
    SCOPED_TRACE(test.highest);
    EXPECT_EQ(scale.low, test.low);
    EXPECT_EQ(scale.high, test.high);
  }
}

}  // namespace
}  // namespace orvane::tables
