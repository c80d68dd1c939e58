/// The surface chart: lattices and their limits, where surfaces stand, names and ROUTEs.

#include "support/Charts.h"

#include "orvane/graphs/surface/SurfaceGraph.h"

#include <limits>

namespace orvane {
namespace {

using tests::ComponentError;
using tests::ErrorOf;
using tests::ExpectErrors;
using tests::Texts;

Texts TextsOf(const SurfaceInfo& surface) {
  return surface.PopupProps()->PopupSurfaceNode()->popupText.Items();
}

/// The heights of the shaded surface, which those of the wires and the popups must equal.
std::vector<float> HeightsOf(const SurfaceInfo& surface) {
  const auto holder = surface.ContentToggle()->contents.Item(2);
  const auto wires = std::dynamic_pointer_cast<scene::ElevationWireframe>(
      std::dynamic_pointer_cast<scene::Transform>(holder)->children.Item(1));
  const auto popups = surface.PopupProps()->PopupSurfaceNode();
  EXPECT_EQ(wires->height.Items(), surface.Heights());
  EXPECT_EQ(popups->height.Items(), surface.Heights());
  EXPECT_EQ(wires->xDimension.Value() * wires->zDimension.Value(), wires->height.Count());
  EXPECT_EQ(popups->xDimension.Value(), wires->xDimension.Value());
  EXPECT_EQ(popups->xSpacing.Value(), wires->xSpacing.Value());
  EXPECT_EQ(popups->zSpacing.Value(), wires->zSpacing.Value());
  return surface.Heights();
}

TEST(SurfaceInfo, SetsOnePointInAllLattices) {
  SurfaceInfo surface;
  EXPECT_EQ(HeightsOf(surface), std::vector<float>(4));
  EXPECT_EQ(TextsOf(surface), Texts(4));
  surface.XCount(5);
  surface.ZCount(3);
  surface.Set1HeightPoint(2, 3, 1.5F, "top");
  std::vector<float> heights(15);
  heights[11] = 1.5F;
  Texts texts(15);
  texts[11] = "top";
  EXPECT_EQ(HeightsOf(surface), heights);
  EXPECT_EQ(TextsOf(surface), texts);
  surface.XSpacing(2.5F);
  EXPECT_EQ(HeightsOf(surface), heights);
  surface.XCount(5);
  EXPECT_EQ(HeightsOf(surface), std::vector<float>(15)) << "also for the count there is";
  EXPECT_EQ(TextsOf(surface), Texts(15));
}

TEST(SurfaceInfo, RejectsAndChangesNothing) {
  SurfaceInfo surface;
  surface.XCount(5);
  surface.ZCount(3);
  surface.Set1HeightPoint(1, 1, 2, "kept");
  constexpr float kInfinite = std::numeric_limits<float>::infinity();
  const std::string x = "Invalid X axis surface point, must be in the range [1..5";
  const std::string z = "Invalid Z axis surface point, must be in the range [1..3";
  ExpectErrors(
      {{[&] { surface.Set1HeightPoint(0, 1, 9, "x"); }, x},
       {[&] { surface.Set1HeightPoint(6, 9, 9, "x"); }, x},
       {[&] { surface.Set1HeightPoint(5, 4, 9, "x"); }, z},
       {[&] { surface.XCount(1); }, "Invalid X axis surface point count, must be greater than 1"},
       {[&] { surface.ZCount(-5); }, "Invalid Z axis surface point count, must be greater than 1"},
       {[&] { surface.XSpacing(0); }, "Invalid X axis surface spacing, must be greater than 0"},
       {[&] { surface.ZSpacing(-1); }, "Invalid Z axis surface spacing, must be greater than 0"}});
  EXPECT_EQ(ErrorOf([&] { surface.Set1HeightPoint(1, 1, kInfinite, "x"); }).number,
            host::ErrorNumber::NotFinite);
  std::vector<float> heights(15);
  heights[0] = 2;
  EXPECT_EQ(HeightsOf(surface), heights);
  EXPECT_EQ(TextsOf(surface)[0], "kept");
  EXPECT_EQ(surface.XSpacing(), 1);
}

TEST(SurfaceInfo, TakesLargeLatticesAndRefusesThoseBeyondMemory) {
  SurfaceInfo surface;
  surface.XCount(300);
  surface.ZCount(300);
  surface.Set1HeightPoint(300, 300, 7, "last");
  EXPECT_EQ(HeightsOf(surface).back(), 7);
  EXPECT_EQ(TextsOf(surface).back(), "last");
  surface.ZCount(2);
  surface.XCount(32767);
  EXPECT_EQ(ErrorOf([&] { surface.ZCount(32767); }),
            (tests::Raised{host::ErrorNumber::Overflow,
                           "Overflow: a surface of 32767 x 32767 points does not fit in memory"}));
  EXPECT_EQ(surface.ZCount(), 2);
  EXPECT_EQ(HeightsOf(surface), std::vector<float>(2 * 32767));
}

using Surfaces = tests::ChartTest<SurfaceGraph>;

TEST_F(Surfaces, FollowTheirCountAndTheGrid) {
  EXPECT_EQ(ErrorOf([&] { (void)chart->GetSurface(1); }),
            ComponentError("Invalid surface index, surface count = 0"));
  chart->GridProps()->XAxisCellCount(5);
  chart->SurfaceCount(3);
  const auto first = chart->GetSurface(1);
  EXPECT_EQ(first->XCount(), 5);
  EXPECT_EQ(first->ZCount(), 4);
  first->Set1HeightPoint(1, 1, 3, "x");
  chart->SurfaceCount(3);
  chart->SurfaceCount(2);
  ExpectErrors({{[&] { (void)chart->GetSurface(3); }, "Invalid surface index, surface count = 2"},
                {[&] { (void)chart->GetSurface(0); }, "Invalid surface index, surface count = 2"}});
  EXPECT_EQ(chart->SurfaceCount(), 2);
  EXPECT_EQ(chart->GetSurface(1), first);
  EXPECT_EQ(first->Heights()[0], 3);
  chart->GridProps()->ZAxisCellCount(7);
  EXPECT_EQ(HeightsOf(*first), std::vector<float>(35));
  EXPECT_EQ(HeightsOf(*chart->GetSurface(2)), std::vector<float>(35));
}

TEST_F(Surfaces, NeedTwoCellsEachWay) {
  const auto tooFew = ComponentError("Invalid Z axis surface point count, must be greater than 1");
  chart->SurfaceCount(1);
  chart->GetSurface(1)->Set1HeightPoint(1, 1, 3, "kept");
  EXPECT_EQ(ErrorOf([&] { chart->GridProps()->ZAxisCellCount(1); }), tooFew);
  EXPECT_EQ(chart->GridProps()->ZAxisCellCount(), 4) << "a rejected count is taken back";
  EXPECT_EQ(chart->GridProps()->Depth(), 8);
  EXPECT_EQ(chart->GetSurface(1)->Heights()[0], 3);
  chart->SurfaceCount(0);
  chart->GridProps()->ZAxisCellCount(1);
  EXPECT_EQ(ErrorOf([&] { chart->SurfaceCount(2); }), tooFew);
  EXPECT_EQ(chart->SurfaceCount(), 0);
}

TEST_F(Surfaces, StandOverTheCentresOfCells) {
  chart->GridProps()->Width(10);
  chart->GridProps()->Depth(4);
  chart->SurfaceCount(2);
  Written();
  Written();
  for (std::int16_t i = 1; i <= 2; ++i) {
    const auto surface = chart->GetSurface(i);
    EXPECT_EQ(surface->XSpacing(), 2.5F);
    EXPECT_EQ(surface->ZSpacing(), 1);
    tests::ExpectAt(*surface->Root(), 1.25F, 0.01F, 0.5F);
    EXPECT_FLOAT_EQ(surface->PopupProps()->PopupSurfaceNode()->popupDepth.Value(), 0.15F);
  }
  // The Group of the surfaces is the last child, and holds each once.
  const auto group = std::dynamic_pointer_cast<scene::Group>(
      chart->RootNode()->children.Item(chart->RootNode()->children.Count()));
  EXPECT_EQ(group->children.Items(), (scene::MFNode::List{chart->GetSurface(1)->RootNode(),
                                                          chart->GetSurface(2)->RootNode()}));
}

TEST_F(Surfaces, RouteTheBoxOfTheirEntry) {
  chart->SurfaceCount(4);
  chart->LegendProps()->UseSeriesToggle(true);
  const char* const texts[] = {"", "Land", "  ", "Sea"};
  for (std::int16_t i = 1; i <= 4; ++i) chart->GetSurface(i)->LegendText(texts[i - 1]);
  const Texts routes = {"CHECK_BOX_1.value_changed TO SURFACE_2.set_contentsExist",
                        "CHECK_BOX_2.value_changed TO SURFACE_4.set_contentsExist"};
  EXPECT_EQ(Routes(), routes);
  EXPECT_EQ(Routes(), routes) << "once each, however often the chart is written";
  EXPECT_EQ(Written().find("SURFACE_1"), std::string::npos);
  chart->GetSurface(2)->LegendText("");
  EXPECT_EQ(Routes(), Texts{"CHECK_BOX_1.value_changed TO SURFACE_4.set_contentsExist"});
  EXPECT_EQ(Written().find("SURFACE_2"), std::string::npos) << "an earlier name is taken off";
}

TEST_F(Surfaces, NavigateAsOtherChartsDo) {
  chart->InteractivityProps()->UseXAxisDrillDown(true);
  EXPECT_EQ(Routes(), Texts{"X_AXIS_DRILL_DOWN.mouseClickedIndex TO X_AXIS_ROUTER.set_linkIndex"});
}

}  // namespace
}  // namespace orvane
