/// The combination charts: surfaces beside series, in the scene and in the legend.

#include "support/Charts.h"

#include "orvane/graphs/surface/RCComboGraph.h"
#include "orvane/graphs/surface/SCComboGraph.h"

namespace orvane {
namespace {

using tests::RoutesOf;
using tests::Texts;

template <class G>
class Combo : public tests::ChartTest<G> {
 protected:
  /// A Group of the root, counted from the last: the surfaces' is 0, the series' is 1.
  const scene::MFNode& GroupFromLast(int index) {
    const auto& children = this->chart->RootNode()->children;
    return std::dynamic_pointer_cast<scene::Group>(children.Item(children.Count() - index))
        ->children;
  }
};

using Charts = testing::Types<SCComboGraph, RCComboGraph>;
TYPED_TEST_SUITE(Combo, Charts);

TYPED_TEST(Combo, KeepsSurfacesBehindTheSeriesInAGroupOfTheirOwn) {
  auto& chart = *this->chart;
  chart.GridProps()->ZAxisCellCount(3);
  this->Written();
  EXPECT_EQ(this->GroupFromLast(0).Count(), 0);
  EXPECT_EQ(this->GroupFromLast(1).Count(), 3);
  chart.SurfaceCount(2);
  this->Written();
  this->Written();
  ASSERT_EQ(this->GroupFromLast(0).Count(), 2);
  EXPECT_EQ(this->GroupFromLast(0).Item(2), chart.GetSurface(2)->RootNode());
  EXPECT_EQ(this->GroupFromLast(1).Count(), 3);
  EXPECT_EQ(chart.GetSurface(1)->Root()->translation.X(), 1);
  tests::ExpectErrors(
      {{[&] { (void)chart.GetSurface(3); }, "Invalid surface index, surface count = 2"},
       {[&] { (void)chart.GetSeries(4); }, "Invalid series index, series count = 3"}});
}

TYPED_TEST(Combo, LeavesTheCountsOfItsSurfacesToThem) {
  auto& chart = *this->chart;
  chart.GridProps()->XAxisCellCount(5);
  chart.SurfaceCount(2);
  chart.GetSurface(1)->Set1HeightPoint(5, 4, 2, "kept");
  chart.GridProps()->XAxisCellCount(8);
  chart.GridProps()->ZAxisCellCount(1);
  chart.GridProps()->ZAxisCellCount(6);
  chart.SurfaceCount(3);
  EXPECT_EQ(chart.GetSurface(1)->XCount(), 5);
  EXPECT_EQ(chart.GetSurface(1)->ZCount(), 4);
  EXPECT_EQ(chart.GetSurface(1)->Heights().back(), 2);
  EXPECT_EQ(chart.GetSurface(2)->XCount(), 5);
  EXPECT_EQ(chart.GetSurface(3)->XCount(), 8);
  EXPECT_EQ(chart.GetSurface(3)->ZCount(), 6);
}

TYPED_TEST(Combo, PopsUpInFrontOfTheDeepestSeries) {
  auto& chart = *this->chart;
  chart.GridProps()->ZAxisCellCount(2);
  chart.SurfaceCount(1);
  chart.GetSeries(1)->Depth(0.5F);
  chart.GetSeries(2)->Depth(0.4F);
  this->Written();
  EXPECT_FLOAT_EQ(chart.GetSurface(1)->PopupZOffset(), 0.3F);
  chart.GetSeries(2)->Depth(1);
  this->Written();
  EXPECT_FLOAT_EQ(chart.GetSurface(1)->PopupZOffset(), 0.6F);
}

TEST(ColumnCombo, IsAColumnChartOtherwise) {
  const auto chart = std::make_shared<SCComboGraph>();
  chart->ColumnsPerCell(2);
  chart->SurfaceCount(1);
  chart->GetSeries(4, 2)->Depth(1.5F);
  chart->ExportToString(false, false);
  EXPECT_FLOAT_EQ(chart->GetSurface(1)->PopupZOffset(), 0.9F) << "of all slots";
}

TEST(Combos, RouteTheBoxesBehindThoseOfTheSeries) {
  const auto columns = std::make_shared<SCComboGraph>();
  const auto ribbons = std::make_shared<RCComboGraph>();
  const auto prepare = [](auto& chart) {
    chart.GridProps()->ZAxisCellCount(4);
    chart.GetSeries(2)->ShowInLegend(false);
    chart.SurfaceCount(3);
    chart.GetSurface(1)->LegendText("Plan");
    chart.GetSurface(3)->LegendText("Last year");
    chart.LegendProps()->UseSeriesToggle(true);
    const auto routes = RoutesOf(chart.ExportToString(true, true));
    EXPECT_EQ(RoutesOf(chart.ExportToString(true, true)), routes);
    return routes;
  };
  EXPECT_EQ(prepare(*columns),
            (Texts{"CHECK_BOX_1_1.value_changed TO SERIES_TOGGLE_1_1.set_contentsExist",
                   "CHECK_BOX_1_3.value_changed TO SERIES_TOGGLE_1_3.set_contentsExist",
                   "CHECK_BOX_1_4.value_changed TO SERIES_TOGGLE_1_4.set_contentsExist",
                   "CHECK_BOX_4.value_changed TO SURFACE_1.set_contentsExist",
                   "CHECK_BOX_5.value_changed TO SURFACE_3.set_contentsExist"}));
  EXPECT_EQ(prepare(*ribbons),
            (Texts{"CHECK_BOX_1.value_changed TO SERIES_TOGGLE_1.set_contentsExist",
                   "CHECK_BOX_2.value_changed TO SERIES_TOGGLE_3.set_contentsExist",
                   "CHECK_BOX_3.value_changed TO SERIES_TOGGLE_4.set_contentsExist",
                   "CHECK_BOX_4.value_changed TO SURFACE_1.set_contentsExist",
                   "CHECK_BOX_5.value_changed TO SURFACE_3.set_contentsExist"}));
}

}  // namespace
}  // namespace orvane
