/// Axes: the labels a value axis makes, the spacing of lines, and where the header goes.

#include "support/Raises.h"

#include "orvane/components/ContinuousAxis.h"
#include "orvane/components/DiscreteAxis.h"

#include <gtest/gtest.h>

namespace orvane {
namespace {

using tests::ErrorOf;
using Lines = std::vector<std::string>;

/// The text nodes of an axis: labels (0) and header (1).
struct Part {
  std::shared_ptr<scene::Transform> transform;
  std::shared_ptr<scene::Text> text;
  std::shared_ptr<scene::FontStyle> font;
};

Part PartOf(const Axis& axis, int index) {
  Part part;
  part.transform =
      std::dynamic_pointer_cast<scene::Transform>(axis.Root()->children.Item(index + 1));
  const auto shape = std::dynamic_pointer_cast<scene::Shape>(part.transform->children.Item(1));
  part.text = std::dynamic_pointer_cast<scene::Text>(shape->geometry.Value());
  part.font = std::dynamic_pointer_cast<scene::FontStyle>(part.text->fontStyle.Value());
  return part;
}

Lines LabelsOf(const Axis& axis) { return PartOf(axis, 0).text->string.Items(); }

TEST(ContinuousAxis, MakesLabelsFromRangeCountAndOrder) {
  ContinuousAxis axis;
  EXPECT_EQ(LabelsOf(axis), Lines());
  axis.Min(0);
  axis.Max(100);
  axis.Count(5);
  EXPECT_EQ(LabelsOf(axis), (Lines{"100.00", "75.00", "50.00", "25.00", "0.00"}));
  axis.Order(LabelingOrder::MIN_TO_MAX);
  EXPECT_EQ(LabelsOf(axis), (Lines{"0.00", "25.00", "50.00", "75.00", "100.00"}));
  axis.NumericFormat("0");
  axis.Order(LabelingOrder::MIN_TO_MAX);
  EXPECT_EQ(LabelsOf(axis).front(), "0.00") << "the same order makes nothing anew";
  axis.Count(2);
  EXPECT_EQ(LabelsOf(axis), (Lines{"0", "100"}));
}

TEST(ContinuousAxis, KeepsItsLabelsWhenTheyCannotBeMade) {
  ContinuousAxis axis;
  axis.Max(3000);
  axis.Min(1000);
  axis.Count(3);
  const Lines labels{"3,000.00", "2,000.00", "1,000.00"};
  EXPECT_EQ(ErrorOf([&] { axis.Count(1); }).number, host::ErrorNumber::DivisionByZero);
  EXPECT_EQ(LabelsOf(axis), labels);
  axis.Count(3);
  EXPECT_EQ(ErrorOf([&] { axis.Min(std::numeric_limits<float>::infinity()); }).number,
            host::ErrorNumber::Overflow);
  EXPECT_EQ(axis.Min(), 1000);
  EXPECT_EQ(LabelsOf(axis), labels);
}

TEST(DiscreteAxis, CutsLabelsButAddsNone) {
  DiscreteAxis axis;
  for (const char* label : {"a", "b", "c", "d", "e"}) axis.Labels().Append(label);
  axis.LabelCount(2);
  axis.LabelCount(7);
  EXPECT_EQ(LabelsOf(axis), (Lines{"a", "b"}));
  axis.LabelCount(-1);
  EXPECT_EQ(axis.LabelCount(), 0);
}

TEST(Axis, PutsTheHeaderBesideTheMiddleOfTheLabels) {
  DiscreteAxis axis;
  const Part header = PartOf(axis, 1);
  axis.Header("  ");
  axis.AlignHeader();
  EXPECT_EQ(header.font->justify.Items(), Lines{"MIDDLE"}) << "blank: nothing changes";
  EXPECT_EQ(axis.Header(), "  ");

  axis.Header("Month");
  axis.LabelTextGap(2);
  axis.AlignHeader();
  EXPECT_EQ(header.transform->translation.Y(), 1) << "no labels: -1 lines down";
  EXPECT_EQ(header.transform->translation.X(), 0);

  for (const char* label : {"A", "BB", "C.D"}) axis.Labels().Append(label);
  header.transform->translation.Z(5);
  axis.AlignHeader();
  EXPECT_EQ(header.font->justify.Items(), (Lines{"MIDDLE", "BEGIN"}));
  EXPECT_FLOAT_EQ(header.transform->translation.X(), 1.21F);
  EXPECT_FLOAT_EQ(header.transform->translation.Y(), -2);
  EXPECT_EQ(header.transform->translation.Z(), 5);
  EXPECT_FLOAT_EQ(header.transform->rotation.Angle(), 1.5708F);
  axis.Alignment(LabelAlignment::RIGHT_ALIGN);
  axis.AlignHeader();
  EXPECT_FLOAT_EQ(header.transform->translation.X(), -1.21F);
  EXPECT_FLOAT_EQ(header.transform->rotation.Angle(), -1.5708F);
  axis.AlignHeader({{0, 3}, 0.5});
  EXPECT_EQ(header.transform->translation.X(), -3);
  EXPECT_EQ(header.transform->translation.Y(), -2.5F);
}

TEST(Axis, LevelsLabelsOfAnyHeightBelowItsOrigin) {
  DiscreteAxis axis;
  axis.LabelHeight(2);
  axis.LevelLabels(0.5);
  EXPECT_FLOAT_EQ(PartOf(axis, 0).transform->translation.Y(), -1.7F);
}

TEST(Axis, SpacesItsLinesByTheGap) {
  DiscreteAxis axis;
  EXPECT_EQ(ErrorOf([&] { axis.LabelTextGap(0); }),
            tests::ComponentError("Invalid label text gap, must be greater than 0"));
  EXPECT_EQ(axis.LabelTextGap(), 0.1F);
  axis.LabelHeight(0.5F);
  EXPECT_FLOAT_EQ(PartOf(axis, 0).font->spacing.Value(), 0.2F);
  axis.LabelTextGap(0.3F);
  EXPECT_FLOAT_EQ(PartOf(axis, 0).font->spacing.Value(), 0.6F);
}

}  // namespace
}  // namespace orvane
