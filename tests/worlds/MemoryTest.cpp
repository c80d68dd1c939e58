/// Memory that runs out: the first, second, ... allocation of making, changing and writing a chart
/// of each kind fails. Nothing crashes, and what failed has changed nothing.
#include "orvane/automation/AutomationError.h"
#include "orvane/control/ObjectModel.h"

#include <cstdlib>
#include <functional>
#include <new>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace {

/// Allocations from now on up to the one that fails; 0 for none.
long untilFailure = 0;

}  // namespace

void* operator new(std::size_t size) {
  if (untilFailure > 0 && --untilFailure == 0) throw std::bad_alloc();
  if (void* const memory = std::malloc(size == 0 ? 1 : size)) return memory;
  throw std::bad_alloc();
}
void operator delete(void* memory) noexcept { std::free(memory); }
void operator delete(void* memory, std::size_t) noexcept { std::free(memory); }

namespace orvane {
namespace {

using host::Value;

/// Does `step` over and over, with one allocation more that works each time, until all do, and
/// `check` after each failure.
void FailEachAllocation(const std::function<void()>& step, const std::function<void()>& check) {
  bool hasFailed = true;
  for (long number = 1; hasFailed && !testing::Test::HasFailure(); ++number) {
    untilFailure = number;
    try {
      step();
    } catch (const std::bad_alloc&) {
    } catch (const host::AutomationError& error) {
      untilFailure = 0;
      EXPECT_EQ(error.Number(), host::ErrorNumber::Overflow) << "a size that does not fit";
    }
    hasFailed = untilFailure == 0;
    untilFailure = 0;
    if (hasFailed) check();
  }
}

std::string Written(host::Object& chart) {
  return *chart.Call("ExportToString", {true, true}).If<std::string>();
}

struct Change {
  std::string path;  ///< "GridProps.Width"; "GetSurface(1)" is a call.
  std::vector<Value> values;
};

/// Lets the member at the end of the path, or calls it when it takes more values or none.
void Apply(const std::shared_ptr<host::Object>& chart, const Change& change) {
  std::string name = change.path;
  std::shared_ptr<host::Object> object = chart;
  for (auto dot = name.find('.'); dot != std::string::npos; dot = name.find('.')) {
    const std::string rest = name.substr(dot + 1);
    name.erase(dot);
    object = name.ends_with("(1)") ? object->Call(name.substr(0, name.size() - 3), {1}).AsObject()
                                   : object->Get(name).AsObject();
    name = rest;
  }
  const int id = object->Type().IdOf(name);
  if (object->Type().Members()[static_cast<std::size_t>(id)].let) {
    object->Let(id, change.values);
  } else {
    object->Call(id, change.values);
  }
}

struct Life {
  const char* kind;
  std::vector<Change> changes;
};

class Memory : public testing::TestWithParam<Life> {};

TEST_P(Memory, RunsOutWithoutHarm) {
  const std::string kind = GetParam().kind;
  std::shared_ptr<host::Object> chart;
  FailEachAllocation([&] { chart = CreateChart(kind); }, [] {});
  ASSERT_NE(chart, nullptr);
  if (chart->Type().Name() == "ScatterGraph") chart->Let("PointFrameCount", 1);
  for (const auto& change : GetParam().changes) {
    const std::string before = Written(*chart);
    FailEachAllocation([&] { Apply(chart, change); },
                       [&] { EXPECT_EQ(Written(*chart), before) << kind << ": " << change.path; });
    EXPECT_NE(Written(*chart), before) << kind << ": " << change.path;
  }
  const std::string world = Written(*chart);
  std::string last;
  FailEachAllocation([&] { last = Written(*chart); }, [] {});
  EXPECT_EQ(last, world) << kind;
}

const Change kTitle = {"TitleProps.Text", {"a title that is longer than short texts are"}};
const Change kToggle = {"LegendProps.UseSeriesToggle", {true}};
const Change kBoard = {"LegendProps.IsBillboarded", {true}};
const Change kRows = {"GridProps.ZAxisCellCount", {5}};
const Change kSurfaces = {"SurfaceCount", {2}};
const Change kPoint = {"GetSurface(1).Set1HeightPoint", {1, 1, 3.5, "here"}};
const Change kSeries = {"GetSeries(1).LegendText", {"a text that is longer than short texts are"}};

INSTANTIATE_TEST_SUITE_P(
    Charts, Memory,
    testing::Values(
        Life{"AreaGraph", {kTitle, kRows, kSeries, kToggle, kBoard}},
        Life{"ColumnGraph", {{"ColumnsPerCell", {2}}, kRows, kSeries}},
        Life{"RibbonGraph", {kRows, kSeries, {"InteractivityProps.UseXAxisDrillDown", {true}}}},
        Life{"PieGraph", {{"SliceCount", {2}}, {"UseSpinAxis", {true}}, {"UseDrillUp", {true}}}},
        Life{"ScatterGraph",
             {{"PointFrameCount", {3}},
              {"Get1PointFrame(1).AddPoint", {1, 2, 3, 0.5, 255, 0}},
              {"LegendProps.AddLegendEntry", {255, "an entry longer than short texts are"}}}},
        Life{"SurfaceGraph", {kSurfaces, kPoint, kRows, kPoint, {"GridProps.XAxisCellCount", {5}}}},
        Life{"DensityGraph", {kSurfaces, {"UseDrillUp", {true}}}},
        Life{"SCComboGraph", {kRows, kSurfaces, kPoint}},
        Life{"RCComboGraph", {kSurfaces, kPoint, kRows}}),
    [](const auto& test) { return std::string(test.param.kind); });

}  // namespace
}  // namespace orvane
