/// Random sequences of property lets, rejected ones among them: whatever a host does, a second
/// export equals the first, and independent parsers accept each world.

#include "support/ParsedWorld.h"

#include "orvane/orvane.h"

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <string>

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>
#include <unistd.h>

namespace orvane {
namespace {

using host::Value;

/// Values that a host might hand in, sensible and not.
Value RandomValue() {
  const auto kind = *rc::gen::inRange(0, 6);
  if (kind == 0) return *rc::gen::arbitrary<bool>();
  if (kind == 1) return *rc::gen::inRange(-2, 8);
  if (kind == 2) return *rc::gen::inRange(0, 0x1000000);
  if (kind == 3) return *rc::gen::inRange(-100, 1000) / 64.0;
  if (kind == 4) {
    return *rc::gen::element(1e39, 3e38, -3e38, 1e-45, 0.0,
                             std::numeric_limits<double>::quiet_NaN());
  }
  return *rc::gen::element<std::string>("", "  ", "plain", "\"quoted\" \\", "東京", "bad \xFF",
                                        "a.b.wrl");
}

/// Walks from `object` down a random path of its members; does something at the end.
void RandomStep(host::Object& object, int depth) {
  const auto& members = object.Type().Members();
  const int id = *rc::gen::inRange(0, static_cast<int>(members.size()));
  const auto& member = members[static_cast<std::size_t>(id)];
  if (member.name.starts_with("Export")) return;
  std::vector<Value> arguments;
  for (const auto& parameter : member.parameters) {
    if (!parameter.isOut) arguments.push_back(RandomValue());
  }
  try {
    if (member.let) {
      arguments.push_back(RandomValue());
      object.Let(id, arguments);
      return;
    }
    const Value result = object.Get(id, arguments);
    const auto* inner = result.If<std::shared_ptr<host::Object>>();
    if (inner != nullptr && *inner != nullptr && depth < 5) RandomStep(**inner, depth + 1);
  } catch (const host::AutomationError&) {
    // Rejected: what matters is that the chart can still be written.
  }
}

std::string Written(host::Object& chart) {
  return *chart.Call("ExportToString", {true, true}).If<std::string>();
}

/// What tovrmlx3d says of a world on standard error.
std::string SecondOpinion(const std::string& text) {
  namespace fs = std::filesystem;
  // One folder a process: test runs must not take each other's files away.
  const fs::path folder =
      fs::path(testing::TempDir()) / ("orvane_random_" + std::to_string(getpid()));
  fs::create_directory(folder);
  for (const char* file : {"VR_GRAPH.wrl", "VR_NAV.wrl", "VR_UI.wrl"}) {
    if (!fs::exists(folder / file)) fs::copy(fs::path(ORVANE_PROTO_DIR) / file, folder / file);
  }
  std::ofstream(folder / "world.wrl", std::ios::binary) << text;
  const std::string command = std::string(ORVANE_TOVRMLX3D) + " \"" +
                              (folder / "world.wrl").string() + "\" 2>&1 >/dev/null";
  std::FILE* pipe = popen(command.c_str(), "r");
  std::string output;
  char buffer[4096];
  while (std::fgets(buffer, sizeof buffer, pipe) != nullptr) output += buffer;
  const int status = pclose(pipe);
  fs::remove_all(folder);
  return status == 127 * 256 ? "cannot run " + command : output;
}

RC_GTEST_PROP(RandomSequences, AreWrittenAlikeTwiceAndParse, ()) {
  const auto name = *rc::gen::element<std::string>("AreaGraph", "ColumnGraph", "RibbonGraph",
                                                   "PieGraph", "ScatterGraph", "SurfaceGraph",
                                                   "DensityGraph", "SCComboGraph", "RCComboGraph");
  const auto chart = CreateChart(name);
  const auto stepCount = *rc::gen::inRange(1, 60);
  for (int i = 0; i < stepCount; ++i) RandomStep(*chart, 0);
  std::string first;
  try {
    first = Written(*chart);
  } catch (const host::AutomationError& error) {
    // A range or size at the limits of a float may not be placeable, the height of an axis on a pie
    // without slices among them, hosts may name two nodes alike, and a scatter chart may have no
    // frame; anything else is a fault, as is an error that does not come again.
    RC_LOG() << error.what();
    const bool hasComeToZero = error.Number() == host::ErrorNumber::Component &&
                               error.Description().ends_with("must be greater than 0");
    RC_ASSERT(error.Number() == host::ErrorNumber::Overflow || hasComeToZero ||
              error.Number() == host::ErrorNumber::DuplicateDefName ||
              error.Description() == "Invalid index into the list");
    RC_ASSERT_THROWS_AS(Written(*chart), host::AutomationError);
    return;
  }
  RC_ASSERT(Written(*chart) == first);
  RC_ASSERT(tests::ParsedWorld(first).Complaints() == std::vector<std::string>());
  RC_ASSERT(SecondOpinion(first) == "");
}

}  // namespace
}  // namespace orvane
