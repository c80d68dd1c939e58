/// Density charts from points: where the points end up, the kernel's width, and what is no table.
#include "support/Tables.h"

#include "orvane/tables/DensityChart.h"

#include <algorithm>
#include <cmath>

#include <gtest/gtest.h>

namespace orvane::tables {
namespace {

CloudTable CloudsOf(const std::string& text) {
  return ReadCloudTable(*TableText("p.csv", text).open({}));
}

TEST(CloudTable, GathersGroupsInTheOrderOfTheFile) {
  const auto table = CloudsOf("Long,Deep,Kind\n1,2, b\n\"3\",-4e1,a\n5,6,b\n");
  EXPECT_EQ(table.xHeader, "Long");
  EXPECT_EQ(table.zHeader, "Deep");
  ASSERT_EQ(table.clouds.size(), 2U);
  EXPECT_EQ(table.clouds[0].name, "b");
  EXPECT_EQ(table.clouds[0].points.size(), 2U);
  EXPECT_EQ(table.clouds[1].points[0].z, -40);
}

TEST(CloudTable, SaysWhereItIsWrong) {
  const std::pair<const char*, const char*> cases[] = {
      {"", "p.csv:1:1: the file is empty"},
      {"x\n1\n", "p.csv:1:2: the header names no second column, z"},
      {"x,z,g,h\n", "p.csv:1:7: a column after x, z and group"},
      {"x,z\n", "p.csv:2:1: the header has no points below it"},
      {"x,z\n1,2\n3\n", "p.csv:3:2: the row has 1 cell(s), the header has 2"},
      {"x,z\n1, \n", "p.csv:2:3: empty cell"},
      {"x,z\n1,two\n", "p.csv:2:3: \"two\" is not a number"},
      {"x,z\n1,inf\n", "p.csv:2:3: \"inf\" is not a finite number"},
  };
  for (const auto& row : cases) {
    EXPECT_EQ(tests::ComplaintOf([&] { CloudsOf(row.first); }), row.second);
  }
}

TEST(DensityChart, PutsPointsAndLabelsInTheirPlaces) {
  ChartOptions options;
  options.size = GridSize{16, 5, 8};
  options.sigma = 0.7F;
  const auto table = CloudsOf("Long,Deep,Kind\n32,2000000,b\n48,2500000,a\n40,2250000,b\n");
  const auto chart = MakeDensityChart(table, options);
  EXPECT_EQ(chart->SurfaceCount(), 2);
  EXPECT_EQ(chart->GetSurface(1)->LegendText(), "b");
  EXPECT_EQ(chart->GetSurface(1)->PointList().Items(), (std::vector<scene::Vec2f>{{0, 0}, {8, 4}}));
  EXPECT_EQ(chart->GetSurface(2)->PointList().Items(), (std::vector<scene::Vec2f>{{16, 8}}));
  EXPECT_EQ(chart->Sigma(), 0.7F);
  EXPECT_EQ(chart->XAxisProps()->Min(), 32);
  EXPECT_EQ(chart->XAxisProps()->Max(), 48);
  EXPECT_EQ(chart->XAxisProps()->Header(), "Long");
  EXPECT_EQ(chart->ZAxisProps()->Max(), 2.5F);
  EXPECT_EQ(chart->ZAxisProps()->Header(), "Deep (× 1,000,000)");
  chart->ExportToString(true, true);
  EXPECT_EQ(chart->XAxisProps()->Count(), chart->GridProps()->XAxisCellCount() + 1);
  EXPECT_EQ(chart->ZAxisProps()->Count(), chart->GridProps()->ZAxisCellCount() + 1);
  EXPECT_FLOAT_EQ(std::ranges::max(chart->GetSurface(2)->Heights()), 5);
}

TEST(DensityChart, TakesSilvermansSigma) {
  ChartOptions options;
  options.size = GridSize{4, 5, 4};
  // Four points at (±2, ±2) about the middle: along each axis the variance is 16 / 3.
  const auto square = CloudsOf("x,z\n0,0\n4,0\n0,4\n4,4\n");
  EXPECT_FLOAT_EQ(MakeDensityChart(square, options)->Sigma(),
                  static_cast<float>(std::sqrt(16.0 / 3) * std::pow(4, -1.0 / 6)));
  // Points in one place have no spread: the lattice decides.
  const auto same = MakeDensityChart(CloudsOf("x,z\n3,3\n3,3\n"), options);
  same->ExportToString(true, true);
  EXPECT_FLOAT_EQ(same->Sigma(), same->GetSurface(1)->XSpacing());
}

}  // namespace
}  // namespace orvane::tables
