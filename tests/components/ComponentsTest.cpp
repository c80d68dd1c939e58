/// The components one by one: what they keep, what they swap, what they reject.

#include "support/Raises.h"

#include "orvane/components/BackgroundInfo.h"
#include "orvane/components/DrillDownInfo.h"
#include "orvane/components/GridInfo.h"
#include "orvane/components/GridInteractivityInfo.h"
#include "orvane/components/LightCollection.h"
#include "orvane/components/SeriesPopupInfo.h"
#include "orvane/components/TextInfo.h"
#include "orvane/components/ViewpointCollection.h"

#include <functional>
#include <new>

#include <gtest/gtest.h>

namespace orvane {
namespace {

using scene::Color;
using tests::ComponentError;
using tests::ErrorOf;

template <class N>
std::shared_ptr<N> ChildOf(const ISceneRoot& component, int index = 1) {
  const auto root = component.RootNode();
  const auto transform = std::dynamic_pointer_cast<scene::Transform>(root);
  const auto& children =
      transform ? transform->children : std::dynamic_pointer_cast<scene::Group>(root)->children;
  return std::dynamic_pointer_cast<N>(children.Item(index));
}

TEST(TextInfo, KeepsOneTrimmedLineInsideOneBillboard) {
  TextInfo title;
  for (const auto& [given, kept] : {std::pair("  Rain by month ", "Rain by month"), {"   ", ""}}) {
    title.Text(given);
    EXPECT_EQ(title.Text(), kept);
  }
  const auto shape = ChildOf<scene::Shape>(title);
  EXPECT_EQ(std::dynamic_pointer_cast<scene::Text>(shape->geometry.Value())->string.Count(), 1);
  title.IsBillboarded(true);
  title.IsBillboarded(true);
  EXPECT_EQ(title.Root()->children.Count(), 1);
  EXPECT_EQ(ChildOf<scene::Billboard>(title)->children.Items(), scene::MFNode::List{shape});
  title.IsBillboarded(false);
  EXPECT_EQ(title.Root()->children.Items(), scene::MFNode::List{shape});
}

TEST(BackgroundInfo, KeepsItsColourThroughFadeAndPlain) {
  BackgroundInfo sky;
  const auto node = std::dynamic_pointer_cast<scene::Background>(sky.RootNode());
  using Colors = std::vector<Color>;
  EXPECT_EQ(node->skyColor.Items(), (Colors{{0, 0, 0}, {0, 0, 0}, {1, 1, 1}}));
  EXPECT_EQ(node->skyAngle.Items(), (std::vector<float>{2, 3}));
  sky.BackgroundColor(0x0000FF);
  EXPECT_EQ(node->skyColor.Items(), (Colors{{0, 0, 0}, {1, 0, 0}, {1, 1, 1}}));
  sky.UseBackgroundColorFade(false);
  EXPECT_EQ(node->skyColor.Items(), (Colors{{1, 0, 0}}));
  EXPECT_EQ(node->skyAngle.Count(), 0);
  sky.BackgroundColor(0x00FF00);
  EXPECT_EQ(node->skyColor.Items(), (Colors{{0, 1, 0}}));
  sky.UseBackgroundColorFade(true);
  EXPECT_EQ(node->skyColor.Items(), (Colors{{0, 0, 0}, {0, 1, 0}, {1, 1, 1}}));
}

TEST(GridInfo, KeepsItsExtentWhenTheCellCountChanges) {
  GridInfo grid;
  const auto node = ChildOf<scene::ChartGrid>(grid);
  std::vector<int> heard;
  const auto subscription = grid.XCellCountChanged.Connect([&](int n) { heard.push_back(n); });
  grid.Width(10);
  grid.XAxisCellCount(4);
  EXPECT_EQ(grid.Width(), 10);
  EXPECT_EQ(node->xLineCount.Value(), 5);
  EXPECT_EQ(node->xSpacing.Value(), 2.5F);
  grid.XAxisCellCount(32766);
  for (const auto& let : {std::function<void()>([&] { grid.XAxisCellCount(32767); }),
                          std::function<void()>([&] { grid.Width(1e-40F); })}) {
    EXPECT_EQ(ErrorOf(let).number, host::ErrorNumber::Overflow);
  }
  EXPECT_EQ(grid.XAxisCellCount(), 32766);
  EXPECT_NEAR(grid.Width(), 10, 1e-5);
  EXPECT_EQ(heard, (std::vector<int>{4, 32766}));
  node->zLineCount.Value(1);
  grid.ZAxisCellCount(3);
  EXPECT_EQ(grid.ZAxisCellCount(), 3) << "a grid without extent gets cells";
  const auto full = grid.XCellCountChanged.Connect([](int) { throw std::bad_alloc(); });
  EXPECT_THROW(grid.XAxisCellCount(5), std::bad_alloc);
  EXPECT_EQ(grid.XAxisCellCount(), 5) << "a handler hears of what has happened";
  const auto refusal = grid.XCellCountFollowed.Connect([](int) { throw std::bad_alloc(); });
  EXPECT_THROW(grid.XAxisCellCount(4), std::bad_alloc);
  EXPECT_EQ(grid.XAxisCellCount(), 5) << "a chart that cannot follow rejects the let";
}

TEST(DrillDownInfo, LaysItsConesAlongX) {
  DrillDownInfo cones;
  const auto& locations = ChildOf<scene::ConeCollection>(cones)->coneLocations;
  using Points = std::vector<scene::Vec3f>;
  EXPECT_EQ(locations.Items(), (Points{{0, 0, 0}, {1, 0, 0}}));
  cones.Spacing(2.5F);
  cones.Count(4);
  EXPECT_EQ(locations.Items(), (Points{{0, 0, 0}, {2.5F, 0, 0}, {5, 0, 0}, {7.5F, 0, 0}}));
  EXPECT_EQ(ErrorOf([&] { cones.Count(0); }),
            ComponentError("Invalid count, must be greater than 0"));
  EXPECT_EQ(locations.Count(), 4);
}

TEST(GridInteractivityInfo, HoldsWhatIsSwitchedOn) {
  GridInteractivityInfo navigation;
  const auto root = std::dynamic_pointer_cast<scene::Group>(navigation.RootNode());
  navigation.UseXAxisDrillDown(true);
  navigation.UseDrillUp(true);
  EXPECT_EQ(root->children.Items(),
            (scene::MFNode::List{navigation.XAxisDrillDownProps()->RootNode(),
                                 navigation.DrillUpProps()->RootNode()}));
  navigation.UseXAxisDrillDown(false);
  EXPECT_EQ(root->children.Items(), scene::MFNode::List{navigation.DrillUpProps()->RootNode()});
  navigation.DrillUpProps()->URL("a.wrl");
  navigation.DrillUpProps()->URL("b.wrl");
  const auto anchor = ChildOf<scene::Anchor>(*navigation.DrillUpProps());
  EXPECT_EQ(anchor->url.Items(), std::vector<std::string>{"b.wrl"});
}

TEST(SeriesPopupInfo, ReadsAnUnknownAlignmentAsLeft) {
  SeriesPopupInfo popups;
  popups.UsePopups(true);
  const auto strip = ChildOf<scene::PopupStrip>(popups);
  popups.Alignment(VRMLPopupAlignment::VRML_BOTTOM);
  EXPECT_EQ(strip->alignment.Value(), "BOTTOM");
  strip->alignment.Value("ELSEWHERE");
  EXPECT_EQ(popups.Alignment(), VRMLPopupAlignment::VRML_LEFT);
}

TEST(Collections, HandOutTheNodesThatAreWritten) {
  ViewpointCollection views;
  views.AddViewpoint();
  views.AddViewpoint()->position.Z(3);
  EXPECT_EQ(views.GetViewpoint(2)->position.Z(), 3);
  EXPECT_EQ(ErrorOf([&] { (void)views.GetViewpoint(3); }).number, host::ErrorNumber::ListIndex);
  views.ClearViewpoints();
  views.AddViewpoint();
  EXPECT_EQ(views.Count(), 1);

  LightCollection lights;
  const auto light = lights.AddLightSource();
  EXPECT_EQ(lights.GetLightSource(1), light);
  lights.UseHeadlight(false);
  EXPECT_FALSE(ChildOf<scene::NavigationInfo>(lights)->headlight.Value());
  lights.ClearLightSources();
  EXPECT_EQ(lights.Count(), 0);
  EXPECT_NE(ChildOf<scene::NavigationInfo>(lights), nullptr);
}

/// Late binding lets no number through that is none, and these members are for charts alone.
TEST(Components, RejectWhatHostsCannotLetAndChangeNothing) {
  GridInfo grid;
  DrillUpInfo up;
  DrillDownInfo down;
  SeriesPopupInfo popups;
  const float nan = std::numeric_limits<float>::quiet_NaN();
  const std::string spacing = "Invalid spacing, must be greater than 0";
  down.Spacing(2);
  popups.Depth(2);
  tests::ExpectErrors(
      {{[&] { grid.Width(nan); }, "The graph must be wider than 0"},
       {[&] { up.ConeRadius(nan); }, "Invalid radius, must be greater than 0"},
       {[&] { grid.Transparency(nan); }, "Transparency must be in the range [0..1]"},
       {[&] { down.Spacing(0); }, spacing},
       {[&] { popups.Spacing(nan); }, spacing},
       {[&] { popups.radius(0); }, "Invalid radius, must be greater than 0"},
       {[&] { popups.Depth(-1); }, "Invalid depth, must be greater than 0"},
       {[&] { popups.Count(0); }, "Invalid count, must be greater than 0"}});
  EXPECT_EQ(grid.Width(), 8);
  EXPECT_EQ(down.Spacing(), 2);
  EXPECT_EQ(popups.Depth(), 2);
}

}  // namespace
}  // namespace orvane
