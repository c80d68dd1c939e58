/// The density chart: its lattices, hills, axes, names and ROUTEs.

#include "support/Charts.h"

#include "orvane/graphs/surface/DensityGraph.h"

#include <limits>

namespace orvane {
namespace {

using tests::ErrorOf;
using tests::ExpectAt;

/// The heights of the shaded surface, which those of the wires must equal.
std::vector<float> HeightsOf(const DensitySurfaceInfo& surface) {
  const auto holder =
      std::dynamic_pointer_cast<scene::Transform>(surface.ContentToggle()->contents.Item(2));
  const auto wires = std::dynamic_pointer_cast<scene::ElevationWireframe>(holder->children.Item(1));
  EXPECT_EQ(wires->height.Items(), surface.Heights());
  EXPECT_EQ(wires->xDimension.Value() * wires->zDimension.Value(), wires->height.Count());
  return surface.Heights();
}

class Density : public tests::ChartTest<DensityGraph> {
 protected:
  /// A floor of 8 x 4 in 4 x 2 cells: a lattice of 13 x 7 points.
  Density() {
    chart->GridProps()->Width(8);
    chart->GridProps()->Depth(4);
    chart->GridProps()->Height(6);
    chart->GridProps()->XAxisCellCount(4);
    chart->GridProps()->ZAxisCellCount(2);
    chart->SurfaceCount(1);
  }

  std::vector<float> HeightsWith(float sigma) {
    chart->Sigma(sigma);
    Written();
    return HeightsOf(*chart->GetSurface(1));
  }
};

TEST_F(Density, CoversTheFloorWithThreePointsACell) {
  Written();
  const auto surface = chart->GetSurface(1);
  EXPECT_EQ(surface->XCount(), 13);
  EXPECT_EQ(surface->ZCount(), 7);
  EXPECT_FLOAT_EQ(surface->XSpacing(), 2.0F / 3);
  EXPECT_FLOAT_EQ(surface->ZSpacing(), 2.0F / 3);
  ExpectAt(*surface->Root(), 0, 0.02F, 0);
  EXPECT_EQ(HeightsOf(*surface), std::vector<float>(91)) << "flat without points";
  chart->GridProps()->ZAxisCellCount(5);
  Written();
  EXPECT_EQ(HeightsOf(*surface).size(), 13U * 16);
}

TEST_F(Density, LiesFlatWhereNoPlaceIsDenserAndIsWrittenAllTheSame) {
  chart->GetSurface(1)->PointList().Append(4.1F, 2.1F);
  // So wide that every kernel rounds to 1, and so narrow that none reaches a lattice point.
  for (const float sigma : {1e6F, 3e38F, 0.001F}) {
    EXPECT_EQ(HeightsWith(sigma), std::vector<float>(91)) << sigma;
  }
}

TEST_F(Density, TakesPointsSigmaAndGridAtExport) {
  const auto surface = chart->GetSurface(1);
  surface->PointList().Append(4, 2);
  const auto before = HeightsWith(0.5F);
  EXPECT_EQ(before[13 * 3 + 6], 6) << "the height of the grid, at the point";
  surface->PointList().Append(0, 0);
  chart->Sigma(0.9F);
  EXPECT_EQ(HeightsOf(*surface), before);
  EXPECT_EQ(surface->Sigma(), 0.5F);
  EXPECT_EQ(Written(), Written());
  EXPECT_NE(HeightsOf(*surface), before);
  EXPECT_EQ(surface->Sigma(), 0.9F);
}

TEST_F(Density, RejectsAndChangesNothing) {
  const auto surface = chart->GetSurface(1);
  const std::string badSigma = "Invalid sigma value, must be greater than 0";
  const std::string index = "Invalid density surface index, surface count = 1";
  tests::ExpectErrors(
      {{[&] { surface->Sigma(-1); }, badSigma},
       {[&] { surface->Sigma(std::numeric_limits<float>::quiet_NaN()); }, badSigma},
       {[&] { (void)chart->GetSurface(0); }, index},
       {[&] { (void)chart->GetSurface(2); }, index},
       {[&] { surface->XCount(1); }, "Invalid X axis surface point count, must be greater than 1"},
       {[&] { surface->ZSpacing(0); }, "Invalid Z axis surface spacing, must be greater than 0"}});
  EXPECT_EQ(chart->Sigma(), 0.8F);
  EXPECT_EQ(surface->Sigma(), 0.5F);
  EXPECT_EQ(surface->XCount(), 2);
  surface->Sigma(std::numeric_limits<float>::denorm_min());
}

TEST_F(Density, RefusesALatticeThatIsTooLargeAndKeepsTheOldOne) {
  const auto sizeBefore = HeightsWith(1).size();
  const struct { std::int16_t xCells, zCells; } cases[] = {{32766, 2}, {2, 10923}, {10000, 10000}};
  for (const auto& [xCells, zCells] : cases) {
    chart->GridProps()->XAxisCellCount(xCells);
    chart->GridProps()->ZAxisCellCount(zCells);
    EXPECT_EQ(ErrorOf([&] { Written(); }).number, host::ErrorNumber::Overflow);
    EXPECT_EQ(HeightsOf(*chart->GetSurface(1)).size(), sizeBefore);
  }
}

TEST_F(Density, LabelsEveryGridLine) {
  chart->XAxisProps()->LabelHeight(0.5F);
  chart->ZAxisProps()->LabelHeight(0.25F);
  Written();
  EXPECT_EQ(chart->XAxisProps()->Count(), 5);
  EXPECT_EQ(chart->XAxisProps()->Order(), LabelingOrder::MIN_TO_MAX);
  ExpectAt(*chart->XAxisProps()->Root(), -0.25F, 0, 4.08F);
  EXPECT_EQ(chart->ZAxisProps()->Count(), 3);
  EXPECT_EQ(chart->ZAxisProps()->Order(), LabelingOrder::MIN_TO_MAX);
  ExpectAt(*chart->ZAxisProps()->Root(), 8.16F, 0, -0.125F);
}

TEST_F(Density, HasItsDrillUpConeOnceAndLast) {
  const auto countOfRoots = chart->RootNode()->children.Count();
  chart->UseDrillUp(true);
  EXPECT_EQ(chart->RootNode()->children.Count(), countOfRoots) << "until it is written";
  chart->DrillUpProps()->ConeHeight(2);
  Written();
  Written();
  ASSERT_EQ(chart->RootNode()->children.Count(), countOfRoots + 1);
  EXPECT_EQ(chart->RootNode()->children.Item(countOfRoots + 1), chart->DrillUpProps()->RootNode());
  ExpectAt(*chart->DrillUpProps()->Root(), 8, 1.1F, 4);
  chart->UseDrillUp(false);
  Written();
  EXPECT_EQ(chart->RootNode()->children.Count(), countOfRoots);
}

TEST_F(Density, RoutesTheBoxOfEachEntry) {
  chart->SurfaceCount(3);
  chart->LegendProps()->UseSeriesToggle(true);
  chart->GetSurface(1)->LegendText("Here");
  chart->GetSurface(2)->LegendText("  ");
  chart->GetSurface(3)->LegendText("There");
  EXPECT_EQ(Routes(), (tests::Texts{"CHECK_BOX_1.value_changed TO SURFACE_1.set_contentsExist",
                                    "CHECK_BOX_2.value_changed TO SURFACE_3.set_contentsExist"}));
}

}  // namespace
}  // namespace orvane
