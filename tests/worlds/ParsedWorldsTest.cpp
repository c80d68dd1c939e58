/// Whole worlds, as an independent parser reads them with the PROTO files.

#include "support/ParsedWorld.h"

#include "orvane/orvane.h"

#include <regex>

#include <gtest/gtest.h>

namespace orvane {
namespace {

using tests::ParsedWorld;

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

TEST(ParsedRibbons, StandAndAreRoutedAsAreas) {
  const auto chart = std::make_shared<RibbonGraph>();
  chart->GridProps()->ZAxisCellCount(2);
  chart->LegendProps()->UseSeriesToggle(true);
  for (std::int16_t i = 1; i <= 2; ++i) {
    for (const float height : {1.0F, 3.0F, 2.0F}) chart->GetSeries(i)->Height().Append(height * i);
    chart->GetSeries(i)->PopupProps()->UsePopups(true);
  }
  const ParsedWorld world(chart->ExportToString(true, true));
  ASSERT_EQ(world.Complaints(), std::vector<std::string>());
  for (const char* type :
       {"qm4_OutlinedRibbonSeries", "qm4_PopupStrip", "qm4_CheckBox", "qm4_ContentToggle"}) {
    EXPECT_EQ(world.CountOf(type), 2) << type;
  }
  SoNode* toggle = world.Named("SERIES_TOGGLE_2");
  EXPECT_EQ(world.TranslationAbove(toggle), "1 0 5");
  EXPECT_NE(ParsedWorld::FieldOf(toggle, "contents").find("[ 2, 6, 4 ]"), std::string::npos);
  EXPECT_EQ(world.Routes().back(),
            "ROUTE CHECK_BOX_2.value_changed TO SERIES_TOGGLE_2.set_contentsExist");
}

std::shared_ptr<ScatterGraph> ThreeFrames() {
  auto chart = std::make_shared<ScatterGraph>();
  chart->PointFrameCount(3);
  for (std::int16_t i = 1; i <= 3; ++i) {
    chart->Get1PointFrame(i)->AddPoint(i, 2, 3, 0.5F, 0x0000FF, 0.25F);
    chart->Get1PointFrame(i)->AddPoint(0, i, 3, 0, 0xFFFFFF, 0);
  }
  chart->LegendProps()->AddLegendEntry(0x0000FF, "red");
  chart->UseDrillUp(true);
  chart->ExportToString(true, true);
  return chart;
}

/// How many there are of the parts of a scatter chart.
std::vector<int> Counts(const ParsedWorld& world) {
  std::vector<int> counts;
  for (const char* type :
       {"qm4_SphereCollection", "qm4_Legend", "qm4_Slider", "VRMLAnchor", "VRMLTimeSensor"}) {
    counts.push_back(world.CountOf(type));
  }
  return counts;
}

TEST(ParsedScatter, MovesThePointsOfItsFirstFrame) {
  const auto chart = ThreeFrames();
  chart->AnimationLoopStyle(LoopStyle::VRML_BACK_AND_FORTH);
  const ParsedWorld world(chart->ExportToString(true, true));
  ASSERT_EQ(world.Complaints(), std::vector<std::string>());
  SoNode* points = world.Named("POINT_COLLECTION");
  EXPECT_EQ(ParsedWorld::FieldOf(points, "locations"), "[ 1 2 3, 0 1 3 ]");
  EXPECT_EQ(ParsedWorld::FieldOf(points, "colors"), "[ 1 0 0, 1 1 1 ]");
  EXPECT_EQ(ParsedWorld::FieldOf(points, "transparencies"), "[ 0.25, 0 ]");
  EXPECT_EQ(ParsedWorld::FieldOf(points, "radii"), "[ 0.5, 0 ]");
  EXPECT_EQ(ParsedWorld::FieldOf(world.Named("LOC_INT"), "keyValue"),
            "[ 1 2 3, 0 1 3, 2 2 3, 0 2 3, 3 2 3, 0 3 3, 2 2 3, 0 2 3, 1 2 3, 0 1 3 ]");
  EXPECT_EQ(ParsedWorld::FieldOf(world.Named("TIME_KEEPER"), "cycleInterval"), "4");
  EXPECT_EQ(ParsedWorld::FieldOf(world.Named("TIME_KEEPER"), "loop"), "TRUE");
  EXPECT_EQ(Counts(world), (std::vector<int>{1, 1, 0, 1, 1}));
  EXPECT_EQ(world.Routes().size(), 2U);
}

TEST(ParsedScatter, ChoosesAmongItsFrames) {
  const auto chart = ThreeFrames();
  chart->PointAnimationStyle(AnimationStyle::VRML_DISCRETE);
  chart->UseDrillUp(false);
  const ParsedWorld world(chart->ExportToString(true, true));
  ASSERT_EQ(world.Complaints(), std::vector<std::string>());
  EXPECT_EQ(ParsedWorld::FieldOf(world.Named("FRAME_SLIDER"), "maxValue"), "2");
  EXPECT_EQ(ParsedWorld::FieldOf(world.Named("FRAME_SWITCH"), "whichChoice"), "0");
  EXPECT_EQ(Counts(world), (std::vector<int>{3, 1, 1, 0, 0}));
  EXPECT_EQ(world.Named("POINT_COLLECTION"), nullptr);
  EXPECT_EQ(world.Routes().size(), 1U);
}

TEST(ParsedPie, HoldsWhatTheHostSet) {
  const auto chart = std::make_shared<PieGraph>();
  chart->SliceCount(3);
  chart->LegendProps()->UseSeriesToggle(true);
  chart->UseSpinAxis(true);
  chart->UseDrillUp(true);
  const SliceStyle styles[] = {SliceStyle::OUTLINED_SLICE, SliceStyle::ROUNDED_SLICE,
                               SliceStyle::RING_SLICE};
  for (std::int16_t i = 1; i <= 3; ++i) {
    const auto slice = chart->GetSlice(i);
    slice->Percentage(0.25F * static_cast<float>(i - 1));
    slice->Style(styles[i - 1]);
    slice->SliceTextProps()->Text("\"Part\" " + std::to_string(i));
    slice->UseDrillDown(true);
  }
  const ParsedWorld world(chart->ExportToString(true, true));
  ASSERT_EQ(world.Complaints(), std::vector<std::string>());
  for (const char* shape :
       {"qm4_OutlinedPieSlice", "qm4_RoundedPieSlice", "qm4_RoundedRingSlice"}) {
    EXPECT_EQ(world.CountOf(shape), 1) << shape;
  }
  EXPECT_EQ(world.CountOf("qm4_CheckBox"), 3);
  EXPECT_EQ(world.CountOf("qm4_ContentToggle"), 6);
  EXPECT_EQ(world.CountOf("VRMLAnchor"), 4);
  EXPECT_EQ(ParsedWorld::FieldOf(world.Named("SLICE_TEXT_TOGGLE_3"), "contentsExist"), "FALSE");
  EXPECT_TRUE(
      ParsedWorld::FieldOf(world.Named("INNER_TRANS_3"), "rotation").starts_with("0 1 0 1.57079"));
  EXPECT_EQ(ParsedWorld::FieldOf(world.Named("SLICE_DRAG_2"), "maxPosition"), "100 0");
  EXPECT_NE(world.Named("SPIN_AXIS"), nullptr);
  EXPECT_EQ(world.Routes().size(), 10U);
}

TEST(ParsedDensity, HoldsHillsAxesAndCone) {
  const auto chart = std::make_shared<DensityGraph>();
  chart->GridProps()->XAxisCellCount(2);
  chart->GridProps()->ZAxisCellCount(1);
  chart->GridProps()->Height(3);
  chart->LegendProps()->UseSeriesToggle(true);
  chart->UseDrillUp(true);
  chart->SurfaceCount(1);
  chart->Sigma(0.01F);
  chart->GetSurface(1)->LegendText("Cloud");
  chart->GetSurface(1)->PointList().Append(0, 0);
  const ParsedWorld world(chart->ExportToString(true, true));
  ASSERT_EQ(world.Complaints(), std::vector<std::string>());
  SoNode* toggle = world.Named("SURFACE_1");
  ASSERT_NE(toggle, nullptr);
  EXPECT_EQ(world.TranslationAbove(toggle), "0 0.02 0");
  std::string heights = "[ 3";
  for (int i = 1; i < 7 * 4; ++i) heights += ", 0";
  const auto contents = ParsedWorld::FieldOf(toggle, "contents");
  EXPECT_NE(contents.find(heights + " ]"), std::string::npos) << contents;
  EXPECT_EQ(world.CountOf("qm4_ElevationWireframe"), 1);
  EXPECT_EQ(world.CountOf("VRMLCone"), 1);
  EXPECT_EQ(world.Routes(), std::vector<std::string>{
                                "ROUTE CHECK_BOX_1.value_changed TO SURFACE_1.set_contentsExist"});
}

TEST(ParsedCombos, HoldSeriesAndSurfaces) {
  for (const char* name : {"SCComboGraph", "RCComboGraph"}) {
    const auto chart = CreateChart(name);
    chart->Get("GridProps").AsObject()->Let("ZAxisCellCount", 2);
    chart->Get("LegendProps").AsObject()->Let("UseSeriesToggle", true);
    chart->Let("SurfaceCount", 1);
    const auto surface = chart->Call("GetSurface", {1}).AsObject();
    surface->Let("LegendText", std::string("Plan"));
    surface->Get("PopupProps").AsObject()->Let("UsePopups", true);
    surface->Call("Set1HeightPoint", {4, 2, 2.5, std::string("last")});
    const ParsedWorld world(*chart->Call("ExportToString", {true, true}).If<std::string>());
    ASSERT_EQ(world.Complaints(), std::vector<std::string>()) << name;
    SoNode* toggle = world.Named("SURFACE_1");
    ASSERT_NE(toggle, nullptr);
    EXPECT_EQ(world.TranslationAbove(toggle), "1 0.0099999998 2");
    const auto contents = ParsedWorld::FieldOf(toggle, "contents");
    EXPECT_NE(contents.find("[ 0, 0, 0, 0, 0, 0, 0, 2.5 ]"), std::string::npos) << contents;
    EXPECT_EQ(world.CountOf("qm4_ElevationWireframe"), 1);
    EXPECT_EQ(world.CountOf("qm4_PopupSurface"), 1);
    EXPECT_EQ(world.CountOf("qm4_CheckBox"), 3);
    EXPECT_EQ(world.Routes().back(),
              "ROUTE CHECK_BOX_3.value_changed TO SURFACE_1.set_contentsExist");
  }
}

}  // namespace
}  // namespace orvane
