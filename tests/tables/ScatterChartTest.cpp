/// Scatter charts from tables: points in their places, colours, sizes, and what moves them.
#include "orvane/tables/ScatterChart.h"

#include <cmath>

#include <gtest/gtest.h>

namespace orvane::tables {
namespace {

PointTable TableOf(const std::string& text) {
  return ReadPointTable(*TableText("t.csv", text).open({}));
}

struct Sphere {
  float x, y, z, radius;
  std::int32_t color;
  float transparency;
};

Sphere SphereOf(const ScatterGraph& chart, std::int16_t frame, std::int16_t index) {
  Sphere s;
  chart.Get1PointFrame(frame)->Get1Point(index, s.x, s.y, s.z, s.radius, s.color, s.transparency);
  return s;
}

TEST(ScatterChart, PutsPointsIntoTheGrid) {
  ChartOptions options;
  options.size = GridSize{10, 5, 8};
  options.title = "Points";
  // Round limits: 20 to 80 by 10, -1 to 1 by 0.5, 0 to 4 millions by 1.
  const auto chart = MakeScatterChart(
      TableOf("x: Width,y,z: Money,group\n20,-1,0,a\n78,1,4e6,b\n50,0.5,1000000,a\n"), options);
  const auto check = [](const ContinuousAxis& axis, float low, float high, const char* header) {
    EXPECT_EQ(axis.Min(), low);
    EXPECT_EQ(axis.Max(), high);
    EXPECT_EQ(axis.Header(), header);
  };
  check(*chart->XAxisProps(), 20, 80, "Width");
  check(*chart->YAxisProps(), -1, 1, "y");
  check(*chart->ZAxisProps(), 0, 4, "Money (× 1,000,000)");
  EXPECT_EQ(chart->GridProps()->XAxisCellCount(), 6);
  EXPECT_EQ(chart->GridProps()->YAxisCellCount(), 4);
  EXPECT_EQ(chart->GridProps()->ZAxisCellCount(), 4);
  const float places[][3] = {{0, 0, 0}, {58 / 6.0F, 5, 8}, {5, 3.75F, 2}};
  for (std::int16_t i = 0; i < 3; ++i) {
    const Sphere sphere = SphereOf(*chart, 1, static_cast<std::int16_t>(i + 1));
    EXPECT_NEAR(sphere.x, places[i][0], 1e-5);
    EXPECT_NEAR(sphere.y, places[i][1], 1e-5);
    EXPECT_NEAR(sphere.z, places[i][2], 1e-5);
  }
  EXPECT_NE(SphereOf(*chart, 1, 1).color, SphereOf(*chart, 1, 2).color);
  EXPECT_EQ(SphereOf(*chart, 1, 1).color, SphereOf(*chart, 1, 3).color);
  EXPECT_NE(chart->ExportToString(true, true).find("entryTexts [ \"b\", \"a\" ]"),
            std::string::npos);
  EXPECT_EQ(chart->Viewpoints()->Count(), 4);
}

TEST(ScatterChart, GivesSpheresTheVolumeOfTheirSize) {
  const auto chart = MakeScatterChart(
      TableOf("x,y,z,size,color\n0,0,0,8,#0000ff\n1,1,1,1,#ff0000\n2,2,2,0,#00ff00\n"), {});
  const Sphere large = SphereOf(*chart, 1, 1);
  EXPECT_EQ(large.color, 0xFF0000);
  EXPECT_FLOAT_EQ(SphereOf(*chart, 1, 2).radius, large.radius / 2);
  EXPECT_GT(SphereOf(*chart, 1, 3).radius, 0);
}

TEST(ScatterChart, KeepsValuesOfOneKindApartFromTheEdges) {
  // A single value, none but 0, and values far from 0 but close together.
  const auto chart = MakeScatterChart(TableOf("x,y,z\n5,0,1e7\n5,0,10000001\n"), {});
  for (const std::int16_t i : {std::int16_t{1}, std::int16_t{2}}) {
    const Sphere sphere = SphereOf(*chart, 1, i);
    for (const float place : {sphere.x, sphere.y, sphere.z}) {
      EXPECT_TRUE(place >= 0 && place <= 9) << place;
    }
  }
  EXPECT_EQ(chart->XAxisProps()->Min(), 0);
}

constexpr const char* kFrames =
    "x,y,z,frame\n0,0,0,A\n1,1,1,A\n2,2,2,B\n3,3,3,B\n4,4,4,B\n5,5,5,C\n";

TEST(ScatterChart, MovesAllRowsOfUnequalFramesOrGivesThemASlider) {
  ChartOptions options;
  options.loop = LoopStyle::VRML_BACK_AND_FORTH;
  options.frameSeconds = 2.5;
  const auto moving = MakeScatterChart(TableOf(kFrames), options);
  EXPECT_EQ(moving->PointFrameCount(), 3);
  EXPECT_EQ(moving->FrameTimeGap(), 2.5);
  EXPECT_EQ(moving->AnimationLoopStyle(), LoopStyle::VRML_BACK_AND_FORTH);
  ASSERT_EQ(moving->Get1PointFrame(1)->Count(), 3);
  EXPECT_EQ(SphereOf(*moving, 1, 3).x, SphereOf(*moving, 1, 2).x);
  EXPECT_GT(SphereOf(*moving, 1, 3).radius, 0);
  options.animation = AnimationStyle::VRML_DISCRETE;
  const auto chosen = MakeScatterChart(TableOf(kFrames), options);
  EXPECT_EQ(chosen->Get1PointFrame(1)->Count(), 2);
  EXPECT_NE(chosen->ExportToString(true, true).find("[ \"A\", \"B\", \"C\" ]"), std::string::npos);
}

TEST(ScatterChart, HasAStarterOnlyWhereNothingElseStartsIt) {
  const struct {
    const char* table;
    AnimationStyle animation;
    LoopStyle loop;
    bool hasStarter;
  } cases[] = {
      {kFrames, AnimationStyle::VRML_ANALOG, LoopStyle::VRML_NO_LOOP, true},
      {kFrames, AnimationStyle::VRML_ANALOG, LoopStyle::VRML_LOOP_BREAK, false},
      {kFrames, AnimationStyle::VRML_DISCRETE, LoopStyle::VRML_NO_LOOP, false},
      {"x,y,z\n1,2,3\n", AnimationStyle::VRML_ANALOG, LoopStyle::VRML_NO_LOOP, false},
  };
  for (const auto& test : cases) {
    ChartOptions options;
    options.animation = test.animation;
    options.loop = test.loop;
    const std::string world =
        MakeScatterChart(TableOf(test.table), options)->ExportToString(true, true);
    EXPECT_EQ(world.find("DEF START TouchSensor") != std::string::npos, test.hasStarter);
    EXPECT_EQ(world.ends_with("\nROUTE START.touchTime TO TIME_KEEPER.set_startTime\n"),
              test.hasStarter);
  }
}

}  // namespace
}  // namespace orvane::tables
