/// How the time to make and write a chart grows with its categories, series, slices and points: by
/// no more than their number to the power of 1.1.

#include "Rounds.h"

#include "orvane/orvane.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <functional>
#include <string>

namespace {

using namespace orvane;

constexpr std::int16_t kFew = 4'000;
constexpr std::int16_t kMany = 32'000;
constexpr int kRounds = 3;
constexpr double kLimit = 1.1;

void Categories(std::int16_t count) {
  AreaGraph chart;
  chart.GridProps()->ZAxisCellCount(1);
  chart.GridProps()->XAxisCellCount(count);
  for (int i = 0; i < count; ++i) {
    chart.XAxisProps()->Labels().Append(std::to_string(i));
    chart.GetSeries(1)->Height().Append(1);
  }
  (void)chart.ExportToString(true, true);
}

void Series(std::int16_t count) {
  RibbonGraph chart;
  chart.LegendProps()->UseSeriesToggle(true);
  chart.GridProps()->ZAxisCellCount(count);
  (void)chart.ExportToString(true, true);
}

void Slices(std::int16_t count) {
  PieGraph chart;
  chart.LegendProps()->UseSeriesToggle(true);
  chart.SliceCount(count);
  (void)chart.ExportToString(true, true);
}

void Points(std::int16_t count) {
  ScatterGraph chart;
  chart.PointFrameCount(1);
  for (int i = 0; i < count; ++i) chart.Get1PointFrame(1)->AddPoint(1, 2, 3, 0.1F, 255, 0);
  (void)chart.ExportToString(true, true);
}

}  // namespace

int main() {
  const std::pair<const char*, void (*)(std::int16_t)> charts[] = {
      {"categories", Categories}, {"series", Series}, {"slices", Slices}, {"points", Points}};
  double worst = 0;
  for (const auto& [name, make] : charts) {
    const auto [few, many] = orvane::bench::BestOf(
        kRounds, [make = make] { make(kFew); }, [make = make] { make(kMany); });
    const double power = std::log(many / few) / std::log(double{kMany} / kFew);
    std::printf("%-10s  %8.2f ms for %d  %8.2f ms for %d  power %.2f\n", name, few, kFew, many,
                kMany, power);
    worst = std::max(worst, power);
  }
  return orvane::bench::Judge(worst, kLimit);
}
