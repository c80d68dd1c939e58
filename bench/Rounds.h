/// How benchmarks compare two pieces of work in one run.
#pragma once

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <functional>
#include <limits>
#include <utility>

namespace orvane::bench {

/// Processor time, to which other programs on a busy machine add nothing.
inline double MillisecondsOf(const std::function<void()>& work) {
  const std::clock_t start = std::clock();
  work();
  return 1000.0 * static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC;
}

/// The best times of `one` and `other`, in ms. Their rounds alternate and the best of each counts,
/// so that a busy machine does not decide.
inline std::pair<double, double> BestOf(int rounds, const std::function<void()>& one,
                                        const std::function<void()>& other) {
  constexpr double kForever = std::numeric_limits<double>::infinity();
  std::pair<double, double> best{kForever, kForever};
  for (int round = 0; round < rounds; ++round) {
    best.first = std::min(best.first, MillisecondsOf(one));
    best.second = std::min(best.second, MillisecondsOf(other));
  }
  return best;
}

/// Prints `ratio` beside its limit; the benchmark's exit status.
inline int Judge(double ratio, double limit) {
  std::printf("ratio %.3f, limit %.1f: %s\n", ratio, limit, ratio <= limit ? "met" : "missed");
  return ratio <= limit ? 0 : 1;
}

}  // namespace orvane::bench
