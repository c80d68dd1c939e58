/// How fast a large surface chart is written: 300 x 300 heights against a bare std::to_chars loop
/// over all numbers of its world. The export may take 1.5 times as long.

#include "Rounds.h"

#include "orvane/graphs/surface/SurfaceGraph.h"

#include <charconv>
#include <cstdio>
#include <random>
#include <string>
#include <vector>

namespace {

constexpr std::int16_t kSide = 300;
constexpr int kRounds = 200;
constexpr double kLimit = 1.5;

}  // namespace

int main() {
  std::mt19937 random(7);
  std::uniform_real_distribution<float> height(0, 6);
  orvane::SurfaceGraph chart;
  chart.GridProps()->XAxisCellCount(kSide);
  chart.GridProps()->ZAxisCellCount(kSide);
  chart.SurfaceCount(1);
  const auto surface = chart.GetSurface(1);
  for (std::int16_t z = 1; z <= kSide; ++z) {
    for (std::int16_t x = 1; x <= kSide; ++x) surface->Set1HeightPoint(x, z, height(random), "");
  }

  // The peer writes the heights of the surface and of its wires into memory that is there already.
  const std::vector<float>& heights = surface->Heights();
  std::vector<char> buffer(32 * 2 * heights.size());
  std::size_t bareSize = 0;
  const auto bare = [&] {
    char* at = buffer.data();
    char* const end = at + buffer.size();
    for (int copy = 0; copy < 2; ++copy) {
      for (const float number : heights) {
        at = std::to_chars(at, end, number).ptr;
        *at++ = ',';
        *at++ = ' ';
      }
    }
    bareSize = static_cast<std::size_t>(at - buffer.data());
  };
  std::size_t worldSize = 0;
  const auto exported = [&] { worldSize = chart.ExportToString(true, true).size(); };

  const auto [bareBest, exportBest] = orvane::bench::BestOf(kRounds, bare, exported);
  std::printf("bare to_chars loop   %8.2f ms  %zu characters\n", bareBest, bareSize);
  std::printf("300 x 300 surface    %8.2f ms  %zu characters\n", exportBest, worldSize);
  return orvane::bench::Judge(exportBest / bareBest, kLimit);
}
