/// How fast worlds are written: 1,000,000 heights of a surface against a bare std::to_chars loop
/// over the same numbers. The writer may take 1.3 times as long.

#include "Rounds.h"

#include "orvane/scene/GraphProtos.h"
#include "orvane/scene/RouteList.h"
#include "orvane/scene/SceneWriter.h"
#include "orvane/scene/frmMain.h"

#include <charconv>
#include <cstdio>
#include <random>
#include <vector>

namespace {

constexpr int kCount = 1'000'000;
constexpr int kRounds = 25;
constexpr double kLimit = 1.3;

}  // namespace

int main() {
  using namespace orvane::scene;
  std::mt19937 random(7);
  std::uniform_real_distribution<float> height(0, 6);
  const auto surface = Create<Surface>();
  surface->height.Clear();
  for (int i = 0; i < kCount; ++i) surface->height.Append(height(random));

  // The peer writes the same text into memory that is there already.
  std::vector<char> buffer(32 * static_cast<std::size_t>(kCount));
  std::size_t bareSize = 0;
  const auto bare = [&] {
    char* at = buffer.data();
    char* const end = at + buffer.size();
    for (const float number : surface->height.Items()) {
      at = std::to_chars(at, end, number).ptr;
      *at++ = ',';
      *at++ = ' ';
    }
    bareSize = static_cast<std::size_t>(at - buffer.data());
  };
  std::size_t worldSize = 0;
  const auto writer = [&] {
    worldSize = SceneWriter::Write(*surface, RouteList(), {true, true}).size();
  };

  const auto [bareBest, writerBest] = orvane::bench::BestOf(kRounds, bare, writer);
  std::printf("bare to_chars loop  %8.2f ms  %zu characters\n", bareBest, bareSize);
  std::printf("world of a surface  %8.2f ms  %zu characters\n", writerBest, worldSize);
  return orvane::bench::Judge(writerBest / bareBest, kLimit);
}
