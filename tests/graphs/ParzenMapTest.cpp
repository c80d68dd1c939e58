/// The Parzen map bit for bit against its definition, on random and on awkward clouds.

#include "support/LiteralParzenMap.h"

// The source itself: its every way to add, where ParzenMap takes the fastest that the machine has.
#include "orvane/graphs/surface/ParzenMap.cpp"

#include <algorithm>
#include <cmath>
#include <functional>
#include <limits>
#include <random>
#include <string>
#include <vector>

#include <gtest/gtest.h>

using namespace orvane;
using Cloud = std::vector<scene::Vec2f>;

namespace {

void ExpectLiteral(const Cloud& cloud, const LatticeAxis& x, const LatticeAxis& z, float sigma) {
  const auto expected = tests::LiteralParzenMap(cloud, x, z, sigma);
  const auto adders = Adders();
  for (std::size_t i = 0; i < adders.size(); ++i) {
    const auto got = MapWith(adders[i], cloud, x, z, sigma);
    ASSERT_EQ(got.size(), expected.size());
    const auto [at, other] = std::ranges::mismatch(got, expected);
    ASSERT_EQ(at, got.end()) << "entry " << at - got.begin() << " is " << *at << ", not " << *other
                             << ": " << cloud.size() << " points, " << x.count << " x " << z.count
                             << " lattice, sigma " << sigma << ", adder " << i;
  }
}

Cloud CloudOf(int count, const std::function<float()>& number) {
  Cloud cloud;
  for (int i = 0; i < count; ++i) {
    const float x = number();
    cloud.push_back({x, number()});
  }
  return cloud;
}

}  // namespace

TEST(ParzenMap, IsTheDefinitionOnRandomClouds) {
  std::mt19937 random(11);
  const auto whole = [&](int low, int high) {
    return std::uniform_int_distribution<int>(low, high)(random);
  };
  const auto real = [&](float low, float high) {
    return std::uniform_real_distribution<float>(low, high)(random);
  };
  for (int round = 0; round < 150; ++round) {
    const LatticeAxis x{static_cast<std::size_t>(whole(1, 40)), real(0.01F, 3)};
    const LatticeAxis z{static_cast<std::size_t>(whole(1, 12)), real(0.01F, 3)};
    const float width = static_cast<float>(x.count) * x.spacing;
    // From a thousandth of the lattice's width to a hundred times it.
    const float sigma = width * std::pow(10.0F, real(-3, 2));
    const float center = real(0, width);
    const auto scattered = [&] { return real(-width, 2 * width); };
    const auto gathered = [&] { return std::normal_distribution<float>(center, sigma)(random); };
    const auto cloud =
        whole(0, 1) == 0 ? CloudOf(whole(0, 400), scattered) : CloudOf(whole(0, 400), gathered);
    ASSERT_NO_FATAL_FAILURE(ExpectLiteral(cloud, x, z, sigma));
  }
}

// Powers that lie within 2^-36.8 of themselves from where they would be rounded the other way:
// nearly as much as the polynomial is ever wrong.
TEST(ParzenMap, IsTheDefinitionWhereTheErrorOfThePowerDecides) {
  for (const float x : {0.414267182F, 1.24817598F, 1.7162236F}) {
    ExpectLiteral({{x, 0}}, {1, 1}, {1, 1}, 0.5F);
  }
}

TEST(ParzenMap, IsTheDefinitionOnAwkwardClouds) {
  const Cloud same(3000, {1.7F, 0.4F});
  const Cloud onLattice{{0, 0}, {0.3F, 0.3F}, {6, 0}, {-0.0F, 3}, {6, 3}};
  const Cloud outside{{-2, 1}, {9, 1}, {3, -8}, {3, 40}, {-1e9F, 2}, {1e30F, -3e38F}};
  const float largest = std::numeric_limits<float>::max();
  const Cloud cornersOfAll{{largest, -largest}, {-largest, largest}, {1, 1}};
  const struct {
    std::string name;
    Cloud cloud;
    float sigma;
  } cases[] = {
      {"none", {}, 0.5F},
      {"one at a corner", {{0, 0}}, 0.8F},
      {"all in one place", same, 0.9F},
      {"all in one place, next to nothing elsewhere", same, 0.05F},
      {"on the lattice", onLattice, 0.2F},
      {"on the lattice, sums among the smallest floats", onLattice, 0.021F},
      {"outside", outside, 1},
      {"outside, sums among the smallest floats", outside, 0.16F},
      {"as far as floats go", cornersOfAll, 1},
      {"every power rounds to 1", onLattice, 1e6F},
      {"every power rounds to 1 and all are near", outside, 1e18F},
      {"reach beyond the floats", cornersOfAll, 9e18F},
      {"twice its square is the smallest float", onLattice, 2.7e-23F},
      {"squares vanish", {{1e-30F, 0}, {0.3F, 1e-25F}}, 1e-21F},
  };
  for (const auto& [name, cloud, sigma] : cases) {
    SCOPED_TRACE(name);
    ExpectLiteral(cloud, {21, 0.3F}, {11, 0.3F}, sigma);
  }
}

TEST(ParzenMap, StaysFiniteWhereTwiceTheSquareOfSigmaIsNoFloat) {
  const Cloud cloud{{0, 0}, {0.3F, 0}, {0.3F, 0}, {1e30F, 0}};
  // No width: a point counts where it lies. No end: every point counts everywhere.
  EXPECT_EQ(ParzenMap(cloud, {3, 0.3F}, {1, 1}, 1e-30F), (std::vector<float>{1, 2, 0}));
  EXPECT_EQ(ParzenMap(cloud, {3, 0.3F}, {1, 1}, 1e38F), (std::vector<float>{3, 3, 3}));
}

TEST(ScaleHeights, SpansTheRangeOrLiesFlat) {
  const float tiny = std::numeric_limits<float>::denorm_min();
  const std::pair<std::vector<float>, std::vector<float>> cases[] = {
      {{}, {}},         {{2, 4, 3}, {0, 8, 4}}, {{-1, 0, 1}, {0, 4, 8}}, {{5, 5, 5}, {0, 0, 0}},
      {{0, 0}, {0, 0}}, {{0, tiny}, {0, 0}},  // A scale of 8 / tiny is no float.
  };
  for (const auto& [heights, expected] : cases) {
    auto scaled = heights;
    ScaleHeights(scaled, 0, 8);
    EXPECT_EQ(scaled, expected);
  }
}
