/// Whole worlds, as an independent parser reads them with the PROTO files, and written again.

#include "support/ParsedWorld.h"

#include "orvane/orvane.h"

#include <functional>
#include <map>
#include <regex>
#include <set>

#include <gtest/gtest.h>

namespace orvane {
namespace {

using host::Value;
using tests::ParsedWorld;

constexpr const char* kCharts[] = {"AreaGraph",    "ColumnGraph",  "RibbonGraph",
                                   "PieGraph",     "ScatterGraph", "SurfaceGraph",
                                   "DensityGraph", "SCComboGraph", "RCComboGraph"};

/// Two series of four values with everything switched on.
std::shared_ptr<AreaGraph> FullChart() {
  auto chart = std::make_shared<AreaGraph>();
  chart->TitleProps()->Text("Rain \"by\" month");
  chart->GridProps()->ZAxisCellCount(2);
  for (const char* month : {"January", "February", "March", "April"}) {
    chart->XAxisProps()->Labels().Append(month);
  }
  chart->XAxisProps()->Header("Month");
  chart->YAxisProps()->Max(100);
  chart->LegendProps()->UseSeriesToggle(true);
  chart->LegendProps()->IsBillboarded(true);
  for (std::int16_t i = 1; i <= 2; ++i) {
    const auto series = chart->GetSeries(i);
    for (const float height : {1.0F, -2.5F, 0.0F, 4.0F}) series->Height().Append(height * i);
    series->LegendText("Series " + std::to_string(i));
    series->PopupProps()->UsePopups(true);
    series->PopupProps()->PopupText().Append("dry");
  }
  chart->InteractivityProps()->UseDrillUp(true);
  chart->InteractivityProps()->UseXAxisDrillDown(true);
  chart->InteractivityProps()->UseZAxisDrillDown(true);
  chart->InteractivityProps()->XAxisDrillDownProps()->DrillDownURL().Append("january.wrl");
  chart->Viewpoints()->AddViewpoint()->description.Value("Front");
  chart->Lights()->AddLightSource()->location.Y(20);
  return chart;
}

TEST(ParsedArea, HoldsWhatTheHostSet) {
  const ParsedWorld world(FullChart()->ExportToString(true, true));
  ASSERT_EQ(world.Complaints(), std::vector<std::string>());
  SoNode* toggle = world.Named("SERIES_TOGGLE_2");
  ASSERT_NE(toggle, nullptr);
  EXPECT_EQ(world.TranslationAbove(toggle), "1 0 5");
  EXPECT_EQ(ParsedWorld::FieldOf(toggle, "contentsExist"), "TRUE");
  EXPECT_NE(ParsedWorld::FieldOf(toggle, "contents").find("[ 2, -5, 0, 8 ]"), std::string::npos);
  EXPECT_EQ(ParsedWorld::FieldOf(world.Named("X_AXIS_DRILL_DOWN"), "coneLocations"),
            "[ 0 0 0, 2 0 0, 4 0 0, 6 0 0 ]");
  EXPECT_EQ(ParsedWorld::FieldOf(world.Named("X_AXIS_ROUTER"), "urls"), "\"january.wrl\"");
  EXPECT_EQ(world.CountOf("qm4_ChartGrid"), 1);
  EXPECT_EQ(world.CountOf("qm4_Legend"), 1);
  EXPECT_EQ(world.CountOf("qm4_CheckBox"), 2);
  EXPECT_EQ(world.CountOf("VRMLViewpoint"), 1);
  EXPECT_EQ(world.CountOf("VRMLPointLight"), 1);
  EXPECT_EQ(world.Routes().size(), 4U);
}

TEST(ParsedArea, IsTheSameSceneWithAndWithoutLineBreaks) {
  const auto chart = FullChart();
  const std::string broken = chart->ExportToString(true, true);
  const std::string flat = chart->ExportToString(false, false);
  EXPECT_EQ(std::count(flat.begin(), flat.end(), '\n'), 2) << "the header's and the last";
  const ParsedWorld world(flat);
  EXPECT_EQ(world.Complaints(), std::vector<std::string>());
  const auto tokens = [](const std::string& text) {
    return std::regex_replace(text, std::regex("[\n\t ]+"), " ");
  };
  EXPECT_EQ(tokens(flat), tokens(broken));
}

TEST(ParsedScatter, MovesThePointsOfItsFirstFrame) {
  ScatterGraph chart;
  chart.PointFrameCount(3);
  for (std::int16_t i = 1; i <= 3; ++i) {
    chart.Get1PointFrame(i)->AddPoint(i, 2, 3, 0.5F, 0x0000FF, 0.25F);
    chart.Get1PointFrame(i)->AddPoint(0, i, 3, 0, 0xFFFFFF, 0);
  }
  const ParsedWorld world(chart.ExportToString(true, true));
  ASSERT_EQ(world.Complaints(), std::vector<std::string>());
  SoNode* points = world.Named("POINT_COLLECTION");
  EXPECT_EQ(ParsedWorld::FieldOf(points, "locations"), "[ 1 2 3, 0 1 3 ]");
  EXPECT_EQ(ParsedWorld::FieldOf(points, "colors"), "[ 1 0 0, 1 1 1 ]");
  EXPECT_EQ(ParsedWorld::FieldOf(points, "transparencies"), "[ 0.25, 0 ]");
  EXPECT_EQ(ParsedWorld::FieldOf(points, "radii"), "[ 0.5, 0 ]");
  EXPECT_EQ(ParsedWorld::FieldOf(world.Named("LOC_INT"), "keyValue"),
            "[ 1 2 3, 0 1 3, 2 2 3, 0 2 3, 3 2 3, 0 3 3 ]");
}

using Visit = std::function<void(host::Object&, const host::Member&)>;

/// Visits every property that a host can let, in `object` and in all of its parts.
void VisitProperties(host::Object& object, const Visit& visit) {
  const auto& members = object.Type().Members();
  for (const auto& member : members) {
    if (member.let && member.parameters.empty()) visit(object, member);
  }
  for (const auto& member : members) {
    if (member.name.starts_with("Get") && member.parameters.size() < 3) {
      for (const int i : {1, 2}) VisitProperties(*object.Call(member.name, {i}).AsObject(), visit);
    } else if (member.name.ends_with("Props")) {
      VisitProperties(*object.Get(member.name).AsObject(), visit);
    }
  }
}

std::string Written(host::Object& chart) {
  return *chart.Call("ExportToString", {true, true}).If<std::string>();
}

/// A chart with two of whatever it counts, every switch on or off and every enumeration at `style`.
std::shared_ptr<host::Object> ChartOf(const char* name, bool isOn, int style) {
  const auto chart = CreateChart(name);
  VisitProperties(*chart, [&](host::Object& object, const host::Member& member) {
    if (member.name.ends_with("Count")) object.Let(member.name, 2);
    if (member.name == "LegendText") object.Let(member.name, "entry");
    if (member.type.name == "Boolean") object.Let(member.name, isOn);
    if (member.type.enumeration != nullptr) object.Let(member.name, style);
  });
  for (const int i : {1, 2}) {
    if (chart->Type().Find("Get1PointFrame") < 0) break;
    chart->Call("Get1PointFrame", {i}).AsObject()->Call("AddPoint", {i, 2, 3, 0.5, 255, 0});
  }
  return chart;
}

TEST(ParsedWorlds, HoldEveryPartThatIsSwitchedOn) {
  const struct {
    const char* chart;
    int style;
    std::size_t routes;
    std::map<std::string, int> parts;
  } cases[] = {
      {"AreaGraph", 0, 4, {{"qm4_OutlinedAreaSeries", 2}, {"qm4_PopupStrip", 2}}},
      {"ColumnGraph", 0, 4, {{"qm4_OutlinedColumnSeries", 2}, {"qm4_PopupStrip", 2}}},
      {"ColumnGraph", 1, 4, {{"qm4_RoundedColumnSeries", 2}, {"qm4_ConeCollection", 2}}},
      {"RibbonGraph", 0, 4, {{"qm4_OutlinedRibbonSeries", 2}, {"qm4_PopupStrip", 2}}},
      {"RibbonGraph", 1, 4, {{"qm4_RoundedRibbonSeries", 2}, {"VRMLAnchor", 1}}},
      {"PieGraph", 0, 7, {{"qm4_OutlinedPieSlice", 2}, {"qm4_ContentToggle", 4}}},
      {"PieGraph", 1, 5, {{"qm4_RoundedPieSlice", 2}, {"qm4_CheckBox", 2}}},
      {"PieGraph", 2, 5, {{"qm4_RoundedRingSlice", 2}, {"VRMLAnchor", 3}}},
      {"ScatterGraph", 0, 2, {{"qm4_SphereCollection", 1}, {"qm4_Slider", 0}}},
      {"ScatterGraph", 1, 1, {{"qm4_SphereCollection", 2}, {"VRMLTimeSensor", 0}}},
      {"SurfaceGraph", 0, 4, {{"qm4_ElevationWireframe", 2}, {"qm4_PopupSurface", 2}}},
      {"DensityGraph", 0, 2, {{"qm4_ElevationWireframe", 2}, {"VRMLAnchor", 1}}},
      {"SCComboGraph", 0, 6, {{"qm4_OutlinedColumnSeries", 2}, {"qm4_PopupSurface", 2}}},
      {"RCComboGraph", 0, 6, {{"qm4_OutlinedRibbonSeries", 2}, {"qm4_PopupSurface", 2}}},
  };
  for (const auto& [name, style, routes, parts] : cases) {
    SCOPED_TRACE(name + std::to_string(style));
    const auto chart = ChartOf(name, true, style);
    const ParsedWorld world(Written(*chart));
    EXPECT_EQ(world.Complaints(), std::vector<std::string>());
    EXPECT_EQ(world.Routes().size(), routes);
    for (const auto& [type, count] : parts) EXPECT_EQ(world.CountOf(type), count) << type;
  }
}

/// Another value than `old`, which `member` takes as well.
Value OtherThan(const Value& old, const host::Member& member) {
  if (const auto* truth = old.If<bool>()) return !*truth;
  if (old.If<std::string>() != nullptr) return "other";
  if (const auto* number = old.If<float>()) return *number == 0 ? 0.5 : *number / 2;
  if (const auto* number = old.If<double>()) return *number * 2;
  const std::int32_t whole = *old.If<std::int32_t>();
  if (member.type.enumeration != nullptr || whole == 0) return whole == 0 ? 1 : 0;
  return whole > 2 ? whole / 2 : 2 * whole;  // A colour or a count.
}

TEST(Charts, AreWrittenAsBeforeOnceALetIsTakenBack) {
  // These leave a place, a name or an order behind, as does what is switched off and on again.
  const std::set<std::string> lasting = {"DiscreteAxis.Header",    "ContinuousAxis.Header",
                                         "ColumnSeriesInfo.Style", "RibbonSeriesInfo.Style",
                                         "PieGraph.UseDrillUp",    "PieGraph.UseSpinAxis"};
  for (const char* name : kCharts) {
    for (const bool isOn : {false, true}) {
      const auto chart = ChartOf(name, isOn, isOn ? 1 : 0);
      VisitProperties(*chart, [&](host::Object& object, const host::Member& member) {
        const std::string where = object.Type().Name() + "." + member.name;
        if (lasting.contains(where) || (isOn && member.type.name == "Boolean")) return;
        SCOPED_TRACE(name + (" " + where));
        const Value old = object.Get(member.name);
        object.Let(member.name, old);
        const std::string before = Written(*chart);
        const Value other = OtherThan(old, member);
        object.Let(member.name, other);
        const std::string between = Written(*chart);
        object.Let(member.name, other);
        EXPECT_EQ(Written(*chart), between) << "twice the same";
        object.Let(member.name, old);
        EXPECT_EQ(Written(*chart), before);
      });
    }
  }
}

}  // namespace
}  // namespace orvane
