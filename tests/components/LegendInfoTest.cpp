/// The legend and its check boxes: order, places, names, and the four arrangements.

#include "support/Raises.h"

#include "orvane/components/LegendInfo.h"
#include "orvane/scene/frmMain.h"

#include <limits>

#include <gtest/gtest.h>

namespace orvane {
namespace {

using tests::ComponentError;
using tests::ErrorOf;

class Legend : public testing::Test {
 protected:
  void Add(const std::string& text) {
    legend.AddLegendEntry(scene::Create<scene::Appearance>(), text);
  }
  std::shared_ptr<scene::Transform> LegendTransform() {
    const auto& contents = legend.IsBillboarded() ? Billboard()->children : legend.Root()->children;
    return std::dynamic_pointer_cast<scene::Transform>(contents.Item(1));
  }
  std::shared_ptr<scene::Legend> Proto() {
    return std::dynamic_pointer_cast<scene::Legend>(LegendTransform()->children.Item(1));
  }
  std::shared_ptr<scene::Billboard> Billboard() {
    return std::dynamic_pointer_cast<scene::Billboard>(legend.BillboardNode());
  }

  LegendInfo legend;
};

TEST_F(Legend, StoresEntriesNewestFirst) {
  for (const char* text : {"A", "B", "C"}) Add(text);
  EXPECT_EQ(Proto()->entryTexts.Items(), (std::vector<std::string>{"C", "B", "A"}));
  EXPECT_EQ(Proto()->keyAppearances.Count(), 3);
  EXPECT_EQ(legend.Get1CheckBox(3)->DefName(), "CHECK_BOX_3");
  legend.ClearLegend();
  Add("D");
  Add("E");
  EXPECT_EQ(legend.Get1CheckBox(2)->DefName(), "CHECK_BOX_2");
  for (const int index : {0, 3}) {
    EXPECT_EQ(ErrorOf([&] { (void)legend.Get1CheckBox(static_cast<std::int16_t>(index)); }),
              ComponentError("Invalid index into the list of check boxes"));
  }
}

TEST(SeriesToggleInfo, StandsItsBoxesFirstOnTop) {
  SeriesToggleInfo toggles;
  const auto root = std::dynamic_pointer_cast<scene::Transform>(toggles.RootNode());
  const auto heights = [&] {
    std::vector<float> y;
    for (const auto& node : root->children.Items()) {
      y.push_back(std::dynamic_pointer_cast<scene::Transform>(node)->translation.Y());
    }
    return y;
  };
  for (int i = 0; i < 3; ++i) toggles.AddCheckBox();
  EXPECT_EQ(heights(), (std::vector<float>{3, 1.5F, 0}));
  toggles.Resize(0.3F, static_cast<float>(0.3F * 0.35));
  EXPECT_EQ(heights(), (std::vector<float>{2 * 0.405000031F, 0.405000031F, 0}));
  toggles.Resize(2, 0.5F);
  EXPECT_EQ(heights(), (std::vector<float>{5, 2.5F, 0}));
  EXPECT_EQ(std::dynamic_pointer_cast<scene::CheckBox>(toggles.Get1CheckBox(1))->boxSize.Value(),
            2);
  EXPECT_EQ(ErrorOf([&] { toggles.Height(std::numeric_limits<float>::max()); }).number,
            host::ErrorNumber::Overflow);
  EXPECT_EQ(heights(), (std::vector<float>{5, 2.5F, 0}));
}

TEST_F(Legend, SizesBoxesAndEntriesAlike) {
  legend.UseSeriesToggle(true);
  legend.TextHeight(0.2F);
  Add("A");
  Add("B");
  EXPECT_FLOAT_EQ(Proto()->entryGap.Value(), 0.07F);
  EXPECT_FLOAT_EQ(LegendTransform()->translation.X(), 0.22F);
  const auto toggles = std::dynamic_pointer_cast<scene::Transform>(legend.Root()->children.Item(2));
  const auto first = std::dynamic_pointer_cast<scene::Transform>(toggles->children.Item(1));
  EXPECT_FLOAT_EQ(first->translation.Y(), 0.27F);
  EXPECT_EQ(ErrorOf([&] { legend.TextHeight(std::numeric_limits<float>::max()); }).number,
            host::ErrorNumber::Overflow);
  EXPECT_EQ(legend.TextHeight(), 0.2F);
  EXPECT_FLOAT_EQ(first->translation.Y(), 0.27F);
}

TEST_F(Legend, RaisesOverflowForBoxesThatCannotBePlaced) {
  EXPECT_EQ(ErrorOf([&] { legend.TextHeight(3e38F); }).number, host::ErrorNumber::Overflow);
  EXPECT_EQ(legend.TextHeight(), 1);
  legend.TextHeight(2e38F);
  Add("A");
  Add("B");
  EXPECT_EQ(ErrorOf([&] { Add("C"); }).number, host::ErrorNumber::Overflow);
}

TEST_F(Legend, KeepsToggleAndBillboardApart) {
  const auto legendTransform = LegendTransform();
  EXPECT_EQ(legend.Root()->children.Count(), 1);
  legend.UseSeriesToggle(true);
  const auto toggles = legend.Root()->children.Item(2);
  legend.IsBillboarded(true);
  using List = scene::MFNode::List;
  EXPECT_EQ(legend.Root()->children.Items(), List{Billboard()});
  EXPECT_EQ(Billboard()->children.Items(), (List{legendTransform, toggles}));
  legend.UseSeriesToggle(false);
  EXPECT_EQ(Billboard()->children.Items(), List{legendTransform});
  EXPECT_EQ(legendTransform->translation.X(), 0);
  legend.UseSeriesToggle(true);
  legend.IsBillboarded(false);
  EXPECT_EQ(legend.Root()->children.Items(), (List{legendTransform, toggles}));
  EXPECT_EQ(Billboard()->children.Count(), 0);
}

TEST_F(Legend, ReadsAnUnknownKeyStyleAsBoxes) {
  legend.KeyStyle(LegendKeyStyle::SPHERE_STYLE);
  EXPECT_EQ(Proto()->keyStyle.Value(), "SPHERE");
  Proto()->keyStyle.Value("CONE");
  EXPECT_EQ(legend.KeyStyle(), LegendKeyStyle::BOX_STYLE);
}

}  // namespace
}  // namespace orvane
