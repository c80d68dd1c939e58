// Times of a picture without a browser: bench_stills WORLD.wrl prints the milliseconds of processor
// time that reading and running the world, and drawing and writing its picture take.

#include "Rounds.h"
#include "stills/Still.h"
#include "stills/output/Picture.h"

#include <algorithm>
#include <optional>

int main(int argc, char** argv) {
  using namespace orvane;
  if (argc != 2) {
    std::fprintf(stderr, "usage: bench_stills WORLD.wrl\n");
    return 2;
  }
  double run = 1e9, draw = 1e9;
  for (int round = 0; round < 3; ++round) {
    std::optional<stills::Still> still;
    run = std::min(run,
                   bench::MillisecondsOf([&] { still = stills::World::Read(argv[1]).From(""); }));
    draw = std::min(draw, bench::MillisecondsOf([&] { stills::Png(stills::Draw(*still, {})); }));
  }
  std::printf("%.0f %.0f\n", run, draw);
}
