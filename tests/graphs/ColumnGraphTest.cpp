/// The column chart: slots and rows of series, where columns stand, two-level names.

#include "support/Charts.h"

#include "orvane/graphs/grid/ColumnGraph.h"

namespace orvane {
namespace {

class Columns : public tests::ChartTest<ColumnGraph> {
 protected:
  float X(std::int16_t row, std::int16_t slot) {
    return chart->GetSeries(row, slot)->Root()->translation.X();
  }
};

TEST_F(Columns, KeepSlotsAndRowsInStepWithTheirCounts) {
  EXPECT_EQ(chart->GetSeries(4)->Depth(), 1);
  EXPECT_EQ(chart->GetSeries(1), chart->GetSeries(1, 1));
  const auto kept = chart->GetSeries(2);
  chart->ColumnsPerCell(3);
  chart->GridProps()->Depth(6);
  chart->GridProps()->ZAxisCellCount(6);
  EXPECT_EQ(chart->GetSeries(6, 3)->Depth(), 0.5F);
  EXPECT_EQ(chart->GetSeries(4, 3)->Depth(), 1) << "made in the old grid";
  chart->GridProps()->ZAxisCellCount(2);
  chart->ColumnsPerCell(2);
  EXPECT_EQ(chart->GetSeries(2), kept);
  const std::string cell = "Invalid cell index, there are currently 2 column(s) in each cell";
  const std::string series = "Invalid series index, series count = 2";
  tests::ExpectErrors({{[&] { (void)chart->GetSeries(1, 0); }, cell},
                       {[&] { (void)chart->GetSeries(1, 3); }, cell},
                       {[&] { (void)chart->GetSeries(9, 3); }, cell},
                       {[&] { (void)chart->GetSeries(0, 1); }, series},
                       {[&] { (void)chart->GetSeries(3, 2); }, series}});
}

TEST_F(Columns, StandEvenlyOrSideBySide) {
  chart->GridProps()->Width(4);
  chart->GridProps()->Depth(4);
  Written();
  EXPECT_FLOAT_EQ(X(1, 1), 0.5F);
  EXPECT_FLOAT_EQ(chart->GetSeries(1)->Root()->translation.Z(), 0);
  chart->GetSeries(1)->Depth(0.5F);
  chart->ColumnsPerCell(2);
  Written();
  EXPECT_FLOAT_EQ(X(1, 1), 1.0F / 3);
  EXPECT_FLOAT_EQ(X(4, 2), 2.0F / 3);
  EXPECT_FLOAT_EQ(chart->GetSeries(1)->Root()->translation.Z(), 0.25F);

  chart->ColumnSpacingStyle(ColumnCellSpacing::ADJACENT);
  for (std::int16_t row = 1; row <= 4; ++row) {
    chart->GetSeries(row, 1)->Width(0.2F);
    chart->GetSeries(row, 2)->Width(0.3F);
  }
  Written();
  EXPECT_FLOAT_EQ(X(1, 1), 0.35F);
  EXPECT_FLOAT_EQ(X(3, 2), 0.6F);
  EXPECT_EQ(chart->GetSeries(2, 2)->Count(), 4);
}

TEST_F(Columns, RouteTwoLevelNames) {
  chart->GridProps()->ZAxisCellCount(2);
  chart->ColumnsPerCell(2);
  chart->LegendProps()->UseSeriesToggle(true);
  chart->GetSeries(2, 1)->ShowInLegend(false);
  chart->GetSeries(1, 2)->LegendText("x");
  const std::string before = Written();
  EXPECT_EQ(tests::RoutesOf(before),
            (tests::Texts{"CHECK_BOX_1_1.value_changed TO SERIES_TOGGLE_1_1.set_contentsExist",
                          "CHECK_BOX_2_1.value_changed TO SERIES_TOGGLE_2_1.set_contentsExist",
                          "CHECK_BOX_2_2.value_changed TO SERIES_TOGGLE_2_2.set_contentsExist"}));
  EXPECT_EQ(Written(), before);
}

}  // namespace
}  // namespace orvane
