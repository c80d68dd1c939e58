/// Surface and combination charts from grids: where the numbers end up, and which grids fit.
#include "support/Tables.h"

#include "orvane/tables/SurfaceCharts.h"

#include <algorithm>
#include <functional>

#include <gtest/gtest.h>

namespace orvane::tables {
namespace {

using tests::ExpectNear;
using tests::TableOf;

TEST(SurfaceChart, LiesAsItsGridLiesOnThePage) {
  ChartOptions options;
  options.size = GridSize{6, 4, 4};
  const auto chart = MakeSurfaceChart(
      TableOf("Height (m),west,middle,east\nnorth,100,120,90\nsouth,100,92.50,80\n"), options);
  EXPECT_EQ(chart->GridProps()->XAxisCellCount(), 3);
  EXPECT_EQ(chart->GridProps()->ZAxisCellCount(), 2);
  EXPECT_EQ(chart->XAxisProps()->Labels().Items(),
            (std::vector<std::string>{"west", "middle", "east"}));
  EXPECT_EQ(chart->ZAxisProps()->Labels().Items(), (std::vector<std::string>{"north", "south"}));
  EXPECT_EQ(chart->YAxisProps()->Min(), 80) << "0 is far from the values";
  EXPECT_EQ(chart->YAxisProps()->Max(), 120);
  const auto surface = chart->GetSurface(1);
  ExpectNear(surface->Heights(), {2, 4, 1, 2, 1.25F, 0});
  EXPECT_EQ(surface->LegendText(), "Height (m)");
  EXPECT_TRUE(surface->PopupProps()->UsePopups());
  EXPECT_EQ(surface->PopupProps()->PopupSurfaceNode()->popupText.Item(5),
            "south, middle\nHeight (m): 92.50");
  // Where the corner is empty, the file gives the name.
  const auto unnamed = MakeSurfaceChart(TableOf(",a,b\nc,1,2\nd,3,4\n", "maps/hill.csv"), {});
  EXPECT_EQ(unnamed->GetSurface(1)->LegendText(), "hill");
  EXPECT_EQ(unnamed->GetSurface(1)->PopupProps()->PopupSurfaceNode()->popupText.Item(1), "c, a\n1");
}

TEST(SurfaceChart, LabelsLargeGridsReadably) {
  std::string text = "h";
  for (int i = 0; i < 300; ++i) text += ",x" + std::to_string(i);
  for (int k = 0; k < 200; ++k) {
    text += "\nz" + std::to_string(k);
    for (int i = 0; i < 300; ++i) text += "," + std::to_string((i * k) % 97);
  }
  const auto chart = MakeSurfaceChart(TableOf(text), {});
  const auto check = [](DiscreteAxis& axis, double extent) {
    const auto labels = axis.Labels().Items();
    const auto shown = std::count_if(labels.begin(), labels.end(),
                                     [](const std::string& label) { return !label.empty(); });
    EXPECT_GT(shown, 5);
    EXPECT_GT(axis.LabelHeight(), 0.02 * extent);
    EXPECT_LT(static_cast<double>(shown - 1) * axis.LabelHeight(), 0.85 * extent);
  };
  check(*chart->XAxisProps(), chart->GridProps()->Width());
  check(*chart->ZAxisProps(), chart->GridProps()->Depth());
  EXPECT_EQ(chart->GetSurface(1)->Heights().size(), 60000U);
}

TEST(ComboChart, SharesTheScaleOfSeriesAndSurface) {
  const Table table = TableOf("m,a,b\nx,1,-2\ny,3,4\nz,0,0\n");
  const Table surface = TableOf("Plan,a,b\nx,2,8\ny,2,2\nz,2,-4\n");
  ChartOptions options;
  options.size = GridSize{6, 6, 4};
  const auto check = [&](auto& chart) {
    chart.ExportToString(true, true);
    EXPECT_EQ(chart.YAxisProps()->Min(), -4);
    EXPECT_EQ(chart.YAxisProps()->Max(), 8);
    EXPECT_EQ(chart.ZAxisProps()->Labels().Items(), (std::vector<std::string>{"a", "b"}));
    ExpectNear(chart.GetSeries(2)->Height().Items(), {-1, 2, 0});
    EXPECT_NEAR(chart.GetSeries(2)->Root()->translation.Y(), 2, 1e-6);
    // Categories run along x, and heights count from the floor, which stands for -4.
    ExpectNear(chart.GetSurface(1)->Heights(), {3, 3, 3, 6, 3, 0});
    EXPECT_EQ(chart.GetSurface(1)->LegendText(), "Plan");
    EXPECT_NE(chart.GetSurface(1)->Material()->diffuseColor.Value(),
              chart.GetSeries(2)->Material()->diffuseColor.Value());
    EXPECT_EQ(chart.GetSurface(1)->PopupProps()->PopupSurfaceNode()->popupText.Item(6),
              "z, b\nPlan: -4");
  };
  check(*MakeColumnSurfaceChart(table, surface, options));
  check(*MakeRibbonSurfaceChart(table, surface, options));
}

TEST(SurfaceCharts, RefuseGridsThatDoNotFit) {
  const Table table = TableOf("m,a,b\nx,1,2\ny,3,4\n");
  const auto over = [&](const std::string& grid) {
    return [&table, grid] {
      (void)MakeRibbonSurfaceChart(table, TableOf(grid, "g.csv"), ChartOptions());
    };
  };
  const auto alone = [](const std::string& grid) {
    return [grid] { (void)MakeSurfaceChart(TableOf(grid, "g.csv"), ChartOptions()); };
  };
  const std::string tooSmall = ": a surface needs two rows and two columns of numbers or more";
  const std::pair<std::function<void()>, std::string> cases[] = {
      {alone("m,a\nx,1\ny,3\n"), "g.csv" + tooSmall},
      {alone("m,a,b\nx,1,2\n"), "g.csv" + tooSmall},
      {over("m,a,b\nx,1,2\n"), "g.csv: 1 rows, where t.csv has 2"},
      {over("m,a,b,c\nx,1,2,3\ny,1,2,3\n"), "g.csv: 3 columns, where t.csv has 2"},
      {over("m,a,b\nx,1,2\nz,1,2\n"), "g.csv: row 2 is \"z\", where t.csv has \"y\""},
      {over("m,b,a\nx,1,2\ny,1,2\n"), "g.csv: column 1 is \"b\", where t.csv has \"a\""},
      {[] {
         const Table row = TableOf("m,a,b\nx,1,2\n");
         (void)MakeColumnSurfaceChart(row, row, ChartOptions());
       },
       "t.csv" + tooSmall},
  };
  for (const auto& [make, message] : cases) EXPECT_EQ(tests::ComplaintOf(make), message);
}

}  // namespace
}  // namespace orvane::tables
