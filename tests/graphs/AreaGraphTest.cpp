/// The area chart: series that follow the grid, where the parts stand, names and ROUTEs.

#include "support/Charts.h"

#include "orvane/graphs/grid/AreaGraph.h"

namespace orvane {
namespace {

using tests::ComponentError;
using tests::ErrorOf;
using tests::ExpectAt;
using tests::ExpectErrors;
using tests::Texts;

class Area : public tests::ChartTest<AreaGraph> {
 protected:
  void SetUp() override {
    chart->GridProps()->Depth(3);
    chart->GridProps()->ZAxisCellCount(3);
  }
};

TEST_F(Area, HasASeriesForEachZCell) {
  const auto first = chart->GetSeries(1);
  const auto third = chart->GetSeries(3);
  first->Height().Append(1);
  chart->GridProps()->ZAxisCellCount(1);
  ExpectErrors({{[&] { (void)chart->GetSeries(2); }, "Invalid series index, series count = 1"},
                {[&] { (void)chart->GetSeries(0); }, "Invalid series index, series count = 1"}});
  chart->GridProps()->ZAxisCellCount(3);
  EXPECT_EQ(chart->GetSeries(1), first);
  EXPECT_EQ(first->Height().Count(), 1);
  EXPECT_EQ(chart->GetSeries(2)->Depth(), 0.5F);
  EXPECT_NE(chart->GetSeries(3), third);
  third->LegendText("a removed series stays usable");
  EXPECT_EQ(std::make_shared<AreaGraph>()->GridProps()->ZAxisCellCount(), 4);
  EXPECT_EQ(ErrorOf([&] { (void)std::make_shared<AreaGraph>()->GetSeries(1); }),
            ComponentError("Invalid series index, series count = 0"));
  const auto grid = chart->GridProps();
  chart.reset();
  grid->ZAxisCellCount(7);
  EXPECT_EQ(grid->ZAxisCellCount(), 7) << "a grid outlives its chart";
}

TEST_F(Area, CentresEachSeriesInItsCell) {
  chart->GridProps()->Width(8);
  chart->GridProps()->XAxisCellCount(4);
  chart->GetSeries(2)->Depth(0.2F);
  chart->GetSeries(2)->Root()->translation.Y(7);
  Written();
  const float z[] = {0.25F, 1.4F, 2.25F};
  for (std::int16_t i = 1; i <= 3; ++i) {
    const auto series = chart->GetSeries(i);
    EXPECT_EQ(series->Root()->translation.X(), 1);
    EXPECT_FLOAT_EQ(series->Root()->translation.Z(), z[i - 1]);
    EXPECT_EQ(series->Count(), 4);
    EXPECT_EQ(series->Spacing(), 2);
  }
  EXPECT_EQ(chart->GetSeries(2)->Root()->translation.Y(), 7) << "y is the host's";
}

TEST_F(Area, PlacesTitleLegendAndAxesByTheGrid) {
  const auto grid = chart->GridProps();
  grid->Width(10);
  grid->Height(5);
  grid->XAxisCellCount(4);
  grid->YAxisCellCount(5);
  chart->XAxisProps()->LabelHeight(0.5F);
  chart->YAxisProps()->Max(5);
  for (const char* label : {"a", "b", "c", "d", "beyond"})
    chart->XAxisProps()->Labels().Append(label);
  Written();
  ExpectAt(*chart->TitleProps()->Root(), 5, 5.5F, 0);
  ExpectAt(*chart->LegendProps()->Root(), 11, 0.5F, 0);
  ExpectAt(*chart->XAxisProps()->Root(), 1, 0, 3.06F);
  ExpectAt(*chart->YAxisProps()->Root(), -0.2F, 5.5F, 3.06F);
  ExpectAt(*chart->ZAxisProps()->Root(), 10.2F, 0, 0);
  EXPECT_EQ(chart->XAxisProps()->Labels().Count(), 4);
  EXPECT_EQ(chart->YAxisProps()->Count(), 6);
  EXPECT_EQ(chart->YAxisProps()->LabelTextGap(), 1);
  EXPECT_EQ(chart->ZAxisProps()->LabelTextGap(), 1);
  EXPECT_EQ(chart->XAxisProps()->Alignment(), LabelAlignment::RIGHT_ALIGN);
  EXPECT_EQ(chart->ZAxisProps()->Alignment(), LabelAlignment::LEFT_ALIGN);
}

TEST_F(Area, RoutesTheBoxOfEachShownSeries) {
  chart->LegendProps()->UseSeriesToggle(true);
  chart->GetSeries(2)->ShowInLegend(false);
  const Texts routes = {"CHECK_BOX_1.value_changed TO SERIES_TOGGLE_1.set_contentsExist",
                        "CHECK_BOX_2.value_changed TO SERIES_TOGGLE_3.set_contentsExist"};
  EXPECT_EQ(Routes(), routes);
  EXPECT_EQ(Routes(), routes) << "once each, however often the chart is written";
}

TEST_F(Area, StandsConesAlongTheEdges) {
  const auto navigation = chart->InteractivityProps();
  chart->GridProps()->XAxisCellCount(4);
  navigation->UseDrillUp(true);
  navigation->UseXAxisDrillDown(true);
  navigation->UseZAxisDrillDown(true);
  navigation->XAxisDrillDownProps()->ConeHeight(2);
  EXPECT_EQ(Routes().back(), "Z_AXIS_DRILL_DOWN.mouseClickedIndex TO Z_AXIS_ROUTER.set_linkIndex");
  const auto x = navigation->XAxisDrillDownProps();
  const auto z = navigation->ZAxisDrillDownProps();
  EXPECT_EQ(x->Count(), 4);
  EXPECT_EQ(x->Spacing(), 2);
  ExpectAt(*x->Root(), 1, 1.1F, 3);
  EXPECT_EQ(z->Count(), 3);
  EXPECT_FLOAT_EQ(z->Root()->translation.X(), 8);
  EXPECT_FLOAT_EQ(z->Root()->translation.Z(), 0.5F);
  EXPECT_FLOAT_EQ(z->Root()->rotation.Angle(), -1.5708F);
  EXPECT_FLOAT_EQ(navigation->DrillUpProps()->Root()->translation.Y(), 0.55F);
  for (const auto& [cells, width] : {std::pair<std::int16_t, float>{1, 1e38F}, {10, 8}}) {
    chart->GridProps()->Width(width);
    chart->GridProps()->XAxisCellCount(cells);
    Written();
  }
  EXPECT_FLOAT_EQ(x->Spacing(), 0.8F) << "however much smaller the cells have become";
}

TEST_F(Area, GivesPopupsTheHeightsAndSizesOfTheSeries) {
  const auto series = chart->GetSeries(1);
  for (const float height : {1.0F, -2.0F, 3.5F}) series->Height().Append(height);
  series->Depth(0.5F);
  Written();
  EXPECT_EQ(series->PopupProps()->Height().Items(), (std::vector<float>{1, -2, 3.5F}));
  EXPECT_FLOAT_EQ(series->PopupProps()->radius(), 0.2F);
  EXPECT_FLOAT_EQ(series->PopupProps()->Depth(), 0.525F);
  ExpectErrors({{[&] { series->Count(0); }, "Invalid count, must be greater than 0"},
                {[&] { series->Spacing(-1); }, "Invalid spacing, must be greater than 0"}});
  EXPECT_EQ(ErrorOf([&] { series->Depth(3.4e38F); }).number, host::ErrorNumber::Overflow);
  EXPECT_EQ(series->Depth(), 0.5F);
  EXPECT_FLOAT_EQ(series->PopupProps()->Depth(), 0.525F);
}

}  // namespace
}  // namespace orvane
