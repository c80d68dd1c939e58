/// The pie chart: its slices and their sizes, its spin axis, where everything stands, what is
/// routed.

#include "support/Charts.h"

#include "orvane/graphs/pie/PieGraph.h"

namespace orvane {
namespace {

using tests::ComponentError;
using tests::ErrorOf;
using tests::ExpectAt;
using tests::ExpectErrors;
using tests::Texts;

/// The field of any of a slice's shapes, by name.
float Size(scene::Node& shape, const char* field) {
  return *shape.Get(field).AsObject()->Get("Value").If<float>();
}

TEST(PieSlice, BeginsAsAFifthOfThePie) {
  PieSliceInfo slice;
  EXPECT_FLOAT_EQ(slice.Angle(), 1.256636F);
  const auto inner = slice.InnerTransformNode();
  EXPECT_FLOAT_EQ(inner->rotation.Angle(), 0.628318F);
  EXPECT_EQ(inner->rotation.Y(), 1);
  EXPECT_EQ(inner->children.Items(),
            (scene::MFNode::List{slice.PlaneSensorNode(), slice.ContentToggleNode()}));
  EXPECT_EQ(slice.PlaneSensorNode()->maxPosition.X(), 100);
  EXPECT_EQ(slice.PlaneSensorNode()->maxPosition.Y(), 0);
  EXPECT_TRUE(slice.SliceTextToggleNode()->contentsExist.Value());
  EXPECT_TRUE(slice.SliceTextProps()->IsBillboarded());
  EXPECT_FLOAT_EQ(slice.SliceTextProps()->Root()->rotation.Angle(), -0.628318F);
  EXPECT_FLOAT_EQ(slice.DrillDownProps()->Root()->rotation.Angle(), 1.5708F);
}

class Slice : public testing::Test {
 protected:
  std::shared_ptr<scene::Node> Shown(int index = 1) {
    return slice.ContentToggleNode()->contents.Item(index);
  }
  std::shared_ptr<scene::Transform> DrillDown() {
    return std::dynamic_pointer_cast<scene::Transform>(Shown(3));
  }

  PieSliceInfo slice;
};

TEST_F(Slice, PutsTextAndConeAtItsRim) {
  slice.radius(3);
  slice.Height(2);
  const auto text = slice.SliceTextProps()->Root();
  ExpectAt(*text, 3, 2.2F, 0);
  EXPECT_FLOAT_EQ(text->center.Y(), -2.2F);
  EXPECT_FLOAT_EQ(slice.DrillDownProps()->ConeHeight(), 0.3F);
  EXPECT_FLOAT_EQ(slice.DrillDownProps()->ConeRadius(), 0.12F);
  ExpectAt(*DrillDown(), 3.3F, 1, 0);
  EXPECT_FLOAT_EQ(DrillDown()->center.X(), -3.3F);
  EXPECT_FLOAT_EQ(DrillDown()->rotation.Angle(), -0.628318F);
  for (const bool use : {true, true, false, false}) {
    slice.UseDrillDown(use);
    EXPECT_EQ(DrillDown()->children.Count(), use ? 1 : 0);
  }
}

TEST_F(Slice, KeepsEverySizeThroughEveryStyle) {
  slice.radius(4);
  slice.Height(2);
  slice.Percentage(0.25F);
  slice.InnerRadius(0);
  slice.BevelRadius(0.3F);
  const char* const shapes[] = {"qm4_OutlinedPieSlice", "qm4_RoundedPieSlice",
                                "qm4_RoundedRingSlice"};
  for (const int style : {2, 1, 0, 2, 7, -1}) {
    slice.Style(static_cast<SliceStyle>(style));
    const int shown = style == 7 || style == -1 ? 2 : style;  // Others are ignored.
    EXPECT_EQ(static_cast<int>(slice.Style()), shown);
    ASSERT_EQ(slice.ContentToggleNode()->contents.Count(), 3);
    EXPECT_STREQ(Shown()->TypeName(), shapes[shown]);
    EXPECT_EQ(Shown(2), slice.SliceTextToggleNode());
    EXPECT_EQ(Size(*Shown(), "radius"), 4);
    EXPECT_EQ(Size(*Shown(), "height"), 2);
    EXPECT_FLOAT_EQ(Size(*Shown(), "angle"), 1.570795F);
    if (shown > 0) {
      EXPECT_EQ(Size(*Shown(), "bevelRadius"), 0.3F);
    }
  }
  EXPECT_EQ(Size(*Shown(), "innerRadius"), 0);
}

TEST_F(Slice, RejectsWhatIsOutOfRangeAndChangesNothing) {
  slice.radius(3);
  slice.Percentage(0);
  EXPECT_EQ(slice.Angle(), 0);
  slice.Percentage(1);
  EXPECT_FLOAT_EQ(slice.Angle(), 6.28318F);

  const std::string percentage = "Invalid slice percentage, must be in the range [0..1]";
  const std::string radius = "Invalid radius, must be greater than 0";
  ExpectErrors(
      {{[&] { slice.Percentage(std::nanf("")); }, percentage},
       {[&] { slice.radius(0); }, radius},
       {[&] { slice.radius(1e-45F); }, radius},  // Too small for a cone.
       {[&] { slice.InnerRadius(-1); }, "Invalid inner radius, must be greater than or equal to 0"},
       {[&] { slice.BevelRadius(0); }, "Invalid bevel radius, must be greater than 0"}});
  EXPECT_EQ(ErrorOf([&] { slice.radius(3.4e38F); }).number, host::ErrorNumber::Overflow);
  EXPECT_EQ(ErrorOf([&] { slice.Height(3.4e38F); }).number, host::ErrorNumber::Overflow);
  EXPECT_EQ(slice.Percentage(), 1);
  EXPECT_EQ(slice.Height(), 1);
  EXPECT_EQ(slice.radius(), 3);
  EXPECT_EQ(slice.SliceTextProps()->Root()->translation.X(), 3);
  EXPECT_FLOAT_EQ(slice.DrillDownProps()->ConeHeight(), 0.3F);
}

TEST(PieSpinAxis, IsInTheSceneOnlyWhileItIsUsed) {
  PieSpinAxisInfo axis;
  EXPECT_EQ(axis.Root()->children.Count(), 0);
  axis.radius(0.25F);
  axis.Color(0x0000FF);
  axis.UseSpinAxis(true);
  axis.UseSpinAxis(true);
  ASSERT_EQ(axis.Root()->children.Count(), 2);
  EXPECT_EQ(axis.Root()->children.Item(1), axis.CylinderSensorNode());
  EXPECT_STREQ(axis.Root()->children.Item(2)->TypeName(), "Shape");
  axis.UseSpinAxis(false);
  EXPECT_EQ(axis.Root()->children.Count(), 0);
  EXPECT_EQ(axis.radius(), 0.25F);
  EXPECT_EQ(axis.Color(), 0x0000FF);
}

class Pie : public tests::ChartTest<PieGraph> {
 protected:
  std::shared_ptr<PieSliceInfo> Slice(int index) {
    return chart->GetSlice(static_cast<std::int16_t>(index));
  }
  std::shared_ptr<scene::Transform> RootChild(int index) {
    return std::dynamic_pointer_cast<scene::Transform>(chart->RootNode()->children.Item(index));
  }
  std::shared_ptr<scene::Transform> PieTransform() { return RootChild(7); }
  std::shared_ptr<scene::Transform> Holder() { return RootChild(8); }
};

TEST_F(Pie, KeepsItsPartsInOrderWhateverIsUsed) {
  chart->SliceCount(1);
  for (const bool use : {false, true, false}) {
    chart->UseSpinAxis(use);
    chart->UseDrillUp(use);
    Written();
    EXPECT_EQ(
        chart->RootNode()->children.Items(),
        (scene::MFNode::List{RootChild(1), chart->BackgroundProps()->RootNode(),
                             chart->TitleProps()->RootNode(), chart->LegendProps()->RootNode(),
                             chart->Viewpoints()->RootNode(), chart->Lights()->RootNode(),
                             PieTransform(), Holder()}));
    EXPECT_EQ(RootChild(1)->children.Count(), use ? 2 : 0) << "the spin axis";
    EXPECT_EQ(PieTransform()->children.Items(), scene::MFNode::List{Slice(1)->Root()});
    EXPECT_EQ(Holder()->children.Count(), use ? 1 : 0) << "the cone";
  }
}

TEST_F(Pie, GivesItsSizesToTheSlicesItHasAndToNewOnes) {
  chart->SliceCount(2);
  EXPECT_EQ(Slice(2)->radius(), 3);
  chart->radius(5);
  chart->InnerRadius(2);
  chart->BevelRadius(0.5F);
  chart->SliceCount(4);
  for (int i = 1; i <= 4; ++i) {
    EXPECT_EQ(Slice(i)->radius(), 5) << i;
    EXPECT_EQ(Slice(i)->InnerRadius(), 2) << i;
    EXPECT_EQ(Slice(i)->BevelRadius(), 0.5F) << i;
  }
  const auto kept = Slice(1);
  chart->SliceCount(1);
  EXPECT_EQ(Slice(1), kept);
}

TEST_F(Pie, RejectsWhatIsOutOfRangeAndChangesNothing) {
  using Let = void (PieGraph::*)(float);
  for (const Let let : {Let{&PieGraph::radius}, &PieGraph::InnerRadius, &PieGraph::BevelRadius}) {
    EXPECT_EQ(ErrorOf([&] { (chart.get()->*let)(INFINITY); }).number, host::ErrorNumber::Overflow);
  }
  chart->SliceCount(3);
  const std::string before = Written();
  const std::string index = "Invalid slice index, slice count = 3";
  ExpectErrors({{[&] { (void)chart->GetSlice(0); }, index},
                {[&] { (void)chart->GetSlice(4); }, index},
                {[&] { chart->radius(1e-45F); }, "Invalid radius, must be greater than 0"}});
  EXPECT_EQ(ErrorOf([&] { chart->radius(3.4e38F); }).number, host::ErrorNumber::Overflow);
  EXPECT_EQ(Written(), before);
}

TEST_F(Pie, PlacesWhatStandsAboveItByTheTallestSlice) {
  chart->SliceCount(3);
  const float heights[] = {1, 3, 2};
  for (int i = 1; i <= 3; ++i) Slice(i)->Height(heights[i - 1]);
  chart->TitleProps()->TextColor(0x804020);
  chart->UseSpinAxis(true);
  Written();
  EXPECT_EQ(chart->TitleProps()->Root()->translation.Y(), 6);
  ExpectAt(*chart->LegendProps()->Root(), 4.2F, 0.6F, 0);
  const auto axis = RootChild(1);
  EXPECT_EQ(axis->translation.Y(), 1.5F);
  const auto shape = std::dynamic_pointer_cast<scene::Shape>(axis->children.Item(2));
  EXPECT_FLOAT_EQ(Size(*shape->geometry.Value(), "height"), 4.2F);
  EXPECT_FLOAT_EQ(Size(*shape->geometry.Value(), "radius"), 0.15F);
  EXPECT_NE(Written().find("diffuseColor 0.1254902 0.2509804 0.5019608"), std::string::npos);
}

TEST_F(Pie, CarriesItsConeClearOfTheAxis) {
  chart->SliceCount(1);
  Slice(1)->Height(2);
  chart->UseDrillUp(true);
  chart->UseDrillUp(true);
  ASSERT_EQ(Holder()->children.Count(), 1);
  EXPECT_EQ(Holder()->children.Item(1), chart->DrillUpProps()->RootNode());
  Written();
  EXPECT_FLOAT_EQ(chart->DrillUpProps()->ConeRadius(), 0.15F);
  EXPECT_FLOAT_EQ(chart->DrillUpProps()->ConeHeight(), 0.36F);
  EXPECT_FLOAT_EQ(Holder()->translation.Y(), 2.28F);
  chart->UseSpinAxis(true);
  Written();
  EXPECT_FLOAT_EQ(Holder()->translation.Y(), 2.68F);
  chart->UseDrillUp(false);
  EXPECT_EQ(Holder()->children.Count(), 0);
}

TEST_F(Pie, NeedsASliceToHaveAnAxisAndKeepsTheNamesOfOneSwitchedOff) {
  chart->UseSpinAxis(true);
  EXPECT_EQ(ErrorOf([&] { Written(); }),
            ComponentError("Invalid axis height, must be greater than 0"));
  chart->SliceCount(1);
  EXPECT_EQ(Routes().back(), "SPIN_AXIS.rotation_changed TO PIE_TRANS.set_rotation");
  EXPECT_NE(Written().find("DEF SPIN_AXIS CylinderSensor"), std::string::npos);
  chart->UseSpinAxis(false);
  EXPECT_EQ(Routes().size(), 2U) << "of the slice";
  EXPECT_NE(Written().find("DEF PIE_TRANS Transform"), std::string::npos);
  EXPECT_EQ(Written().find("CylinderSensor"), std::string::npos);
}

TEST_F(Pie, RoutesEachSliceFromItsOwnCheckBox) {
  chart->SliceCount(3);
  chart->LegendProps()->UseSeriesToggle(true);
  Slice(2)->ShowInLegend(false);
  chart->UseSpinAxis(true);
  EXPECT_EQ(Routes(), (Texts{"CHECK_BOX_1.value_changed TO SLICE_TOGGLE_1.set_contentsExist",
                             "SLICE_DRAG_1.translation_changed TO INNER_TRANS_1.set_translation",
                             "SLICE_DRAG_1.isActive TO SLICE_TEXT_TOGGLE_1.set_contentsExist",
                             "SLICE_DRAG_2.translation_changed TO INNER_TRANS_2.set_translation",
                             "SLICE_DRAG_2.isActive TO SLICE_TEXT_TOGGLE_2.set_contentsExist",
                             "CHECK_BOX_2.value_changed TO SLICE_TOGGLE_3.set_contentsExist",
                             "SLICE_DRAG_3.translation_changed TO INNER_TRANS_3.set_translation",
                             "SLICE_DRAG_3.isActive TO SLICE_TEXT_TOGGLE_3.set_contentsExist",
                             "SPIN_AXIS.rotation_changed TO PIE_TRANS.set_rotation"}));
}

TEST_F(Pie, ShowsTextsAsItsStyleSays) {
  chart->SliceCount(2);
  const auto toggle = Slice(1)->SliceTextToggleNode();
  // Any value but these two leaves the texts as they are, and nothing brings them out.
  const struct {
    SliceTextVisibility style;
    bool isRouted, isShown;
  } cases[] = {{SliceTextVisibility::SHOW_ON_TOUCH, true, false},
               {static_cast<SliceTextVisibility>(7), false, false},
               {SliceTextVisibility::SHOW_ALWAYS, false, true}};
  for (const auto& test : cases) {
    chart->SliceTextDisplayStyle(test.style);
    EXPECT_EQ(Written().find("isActive") != std::string::npos, test.isRouted);
    EXPECT_EQ(toggle->contentsExist.Value(), test.isShown);
  }
  EXPECT_EQ(Written().find("SLICE_TEXT_TOGGLE_"), std::string::npos);
}

}  // namespace
}  // namespace orvane
