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

TEST(TextInfo, KeepsOneTrimmedLine) {
  TextInfo title;
  title.Text("  Rain by month ");
  EXPECT_EQ(title.Text(), "Rain by month");
  title.Text("   ");
  EXPECT_EQ(title.Text(), "");
  const auto text =
      std::dynamic_pointer_cast<scene::Text>(ChildOf<scene::Shape>(title)->geometry.Value());
  EXPECT_EQ(text->string.Items(), std::vector<std::string>{""});
}

TEST(TextInfo, TurnsInsideOneBillboard) {
  TextInfo title;
  const auto shape = ChildOf<scene::Shape>(title);
  title.IsBillboarded(true);
  title.IsBillboarded(true);
  EXPECT_EQ(title.Root()->children.Count(), 1);
  const auto billboard = ChildOf<scene::Billboard>(title);
  EXPECT_EQ(billboard->children.Items(), scene::MFNode::List{shape});
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
  grid.Width(12);
  EXPECT_EQ(node->xSpacing.Value(), 3);
  EXPECT_EQ(grid.XAxisCellCount(), 4);
  EXPECT_EQ(heard, std::vector<int>{4});
  grid.XAxisCellCount(32766);
  EXPECT_EQ(ErrorOf([&] { grid.XAxisCellCount(32767); }).number, host::ErrorNumber::Overflow);
  EXPECT_EQ(grid.XAxisCellCount(), 32766);
  EXPECT_EQ(ErrorOf([&] { grid.Width(1e-40F); }).number, host::ErrorNumber::Overflow);
  EXPECT_NEAR(grid.Width(), 12, 1e-5);
  EXPECT_EQ(heard, (std::vector<int>{4, 32766}));
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

TEST(SeriesPopupInfo, IsInTheSceneOnlyWhileInUse) {
  SeriesPopupInfo popups;
  const auto root = std::dynamic_pointer_cast<scene::Transform>(popups.RootNode());
  EXPECT_EQ(root->children.Count(), 0);
  popups.UsePopups(true);
  popups.UsePopups(true);
  EXPECT_EQ(root->children.Count(), 1);
  const auto strip = ChildOf<scene::PopupStrip>(popups);
  popups.Alignment(VRMLPopupAlignment::VRML_BOTTOM);
  popups.Alignment(static_cast<VRMLPopupAlignment>(4));
  EXPECT_EQ(strip->alignment.Value(), "BOTTOM");
  strip->alignment.Value("ELSEWHERE");
  EXPECT_EQ(popups.Alignment(), VRMLPopupAlignment::VRML_LEFT);
  popups.UsePopups(false);
  EXPECT_EQ(root->children.Count(), 0);
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

/// A let that is rejected at its limit and beyond, and accepted inside.
struct Limit {
  const char* name;
  std::function<void(float)> let;
  std::function<float()> get;
  std::vector<float> rejected;
  std::vector<float> accepted;
  const char* message;
};

std::vector<Limit> Limits() {
  const float nan = std::numeric_limits<float>::quiet_NaN();
  const std::vector<float> notPositive = {0, -1, nan};
  const std::vector<float> positive = {0.01F, 5};
  const std::vector<float> outsideUnit = {-0.01F, 1.01F, nan};
  const std::vector<float> unit = {0, 0.5F, 1};
  const auto title = std::make_shared<TextInfo>();
  const auto grid = std::make_shared<GridInfo>();
  const auto up = std::make_shared<DrillUpInfo>();
  const auto down = std::make_shared<DrillDownInfo>();
  const auto popups = std::make_shared<SeriesPopupInfo>();
#define MEMBER(object, member) \
  [=](float v) { object->member(v); }, [=] { return float(object->member()); }
  return {
      {"TextHeight", MEMBER(title, TextHeight), notPositive, positive,
       "Invalid Text height, must be greater than 0"},
      {"Width", MEMBER(grid, Width), notPositive, positive, "The graph must be wider than 0"},
      {"Height", MEMBER(grid, Height), notPositive, positive, "The graph must be taller than 0"},
      {"Depth", MEMBER(grid, Depth), notPositive, positive, "The graph must be deeper than 0"},
      {"Transparency", MEMBER(grid, Transparency), outsideUnit, unit,
       "Transparency must be in the range [0..1]"},
      {"UpRadius", MEMBER(up, ConeRadius), notPositive, positive,
       "Invalid radius, must be greater than 0"},
      {"UpHeight", MEMBER(up, ConeHeight), notPositive, positive,
       "Invalid height, must be greater than 0"},
      {"UpTransparency", MEMBER(up, ConeTransparency), outsideUnit, unit,
       "Invalid transparency, must be in the range [0..1]"},
      {"DownRadius", MEMBER(down, ConeRadius), notPositive, positive,
       "Invalid radius, must be greater than 0"},
      {"DownHeight", MEMBER(down, ConeHeight), notPositive, positive,
       "Invalid height, must be greater than 0"},
      {"DownSpacing", MEMBER(down, Spacing), notPositive, positive,
       "Invalid spacing, must be greater than 0"},
      {"PopupTextHeight", MEMBER(popups, TextHeight), notPositive, positive,
       "Invalid popup height, must be greater than 0"},
      {"PopupRadius", MEMBER(popups, radius), notPositive, positive,
       "Invalid radius, must be greater than 0"},
      {"PopupDepth", MEMBER(popups, Depth), notPositive, positive,
       "Invalid depth, must be greater than 0"},
      {"PopupSpacing", MEMBER(popups, Spacing), notPositive, positive,
       "Invalid spacing, must be greater than 0"},
      {"XCells",
       [=](float v) { grid->XAxisCellCount(static_cast<std::int16_t>(v)); },
       [=] { return float(grid->XAxisCellCount()); },
       {0, -3},
       {1, 7},
       "The graph must have at least one cell on the X axis"},
      {"YCells",
       [=](float v) { grid->YAxisCellCount(static_cast<std::int16_t>(v)); },
       [=] { return float(grid->YAxisCellCount()); },
       {0, -3},
       {1, 7},
       "The graph must have at least one cell on the Y axis"},
      {"ZCells",
       [=](float v) { grid->ZAxisCellCount(static_cast<std::int16_t>(v)); },
       [=] { return float(grid->ZAxisCellCount()); },
       {0, -3},
       {1, 7},
       "The graph must have at least one cell on the Z axis"},
      {"PopupCount",
       [=](float v) { popups->Count(static_cast<std::int16_t>(v)); },
       [=] { return float(popups->Count()); },
       {0, -3},
       {1, 7},
       "Invalid count, must be greater than 0"},
  };
#undef MEMBER
}

class LimitedLet : public testing::TestWithParam<Limit> {};

TEST_P(LimitedLet, RaisesItsMessageAndChangesNothing) {
  const Limit& limit = GetParam();
  for (const float value : limit.accepted) {
    limit.let(value);
    EXPECT_FLOAT_EQ(limit.get(), value);
  }
  const float kept = limit.get();
  for (const float value : limit.rejected) {
    EXPECT_EQ(ErrorOf([&] { limit.let(value); }), ComponentError(limit.message)) << value;
    EXPECT_EQ(limit.get(), kept);
  }
}

INSTANTIATE_TEST_SUITE_P(Components, LimitedLet, testing::ValuesIn(Limits()),
                         [](const auto& test) { return test.param.name; });

}  // namespace
}  // namespace orvane
