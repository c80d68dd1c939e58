/// How fast a cloud of points becomes a density map, against the loop that defines it: at least 4
/// times as fast where every point counts everywhere, 20 times where points count near themselves.

#include "Rounds.h"
#include "support/LiteralParzenMap.h"

#include "orvane/graphs/surface/ParzenMap.h"

#include <cstdio>
#include <random>
#include <vector>

namespace {

using namespace orvane;

constexpr int kPoints = 5'000;
constexpr std::size_t kSide = 60;
constexpr float kWidth = 10;
constexpr int kRounds = 5;

/// Whether the map of `cloud` is as defined and at least `limit` times as fast to make.
bool Compare(const char* name, const std::vector<scene::Vec2f>& cloud, float sigma, double limit) {
  const LatticeAxis axis{kSide, kWidth / (kSide - 1)};
  std::vector<float> literal, fast;
  const auto [literalBest, fastBest] = bench::BestOf(
      kRounds, [&] { literal = tests::LiteralParzenMap(cloud, axis, axis, sigma); },
      [&] { fast = ParzenMap(cloud, axis, axis, sigma); });
  const double ratio = literalBest / fastBest;
  const bool same = literal == fast;
  std::printf("%s, sigma %4.1f: literal loop %7.2f ms, ParzenMap %6.2f ms, %s results\n", name,
              sigma, literalBest, fastBest, same ? "the same" : "DIFFERENT");
  std::printf("  ratio %.1f, limit %.0f: %s\n", ratio, limit, ratio >= limit ? "met" : "missed");
  return same && ratio >= limit;
}

}  // namespace

int main() {
  std::mt19937 random(7);
  std::uniform_real_distribution<float> place(0, kWidth);
  std::vector<scene::Vec2f> cloud(kPoints);
  for (auto& point : cloud) point = {place(random), place(random)};
  const bool dense = Compare("dense", cloud, kWidth, 4);
  const bool local = Compare("local", cloud, kWidth / 100, 20);
  return dense && local ? 0 : 1;
}
