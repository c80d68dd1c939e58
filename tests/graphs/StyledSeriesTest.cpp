/// Column and ribbon series: two variants that share everything but their look.

#include "support/Raises.h"

#include "orvane/graphs/grid/ColumnSeriesInfo.h"
#include "orvane/graphs/grid/RibbonGraph.h"

#include <gtest/gtest.h>

namespace orvane {
namespace {

template <class S>
class StyledSeriesOf : public testing::Test {
 protected:
  using Style = decltype(std::declval<S>().Style());

  std::string Shape(int index) { return series->ContentToggle()->contents.Item(index)->TypeName(); }
  float FieldOf(int index, const char* field) {
    const auto node = series->ContentToggle()->contents.Item(index);
    return *node->Get(field).AsObject()->Get("Value").template If<float>();
  }
  void Switch(int style) { series->Style(static_cast<Style>(style)); }

  std::shared_ptr<S> series = std::make_shared<S>();
};

using Series = testing::Types<ColumnSeriesInfo, RibbonSeriesInfo>;
TYPED_TEST_SUITE(StyledSeriesOf, Series);

TYPED_TEST(StyledSeriesOf, KeepsHeightsAndSizesThroughAStyleChange) {
  auto& series = *this->series;
  series.Height().Append(1);
  series.Height().Append(-2);
  series.Depth(0.5F);
  series.Count(7);
  series.Spacing(1.5F);
  series.BevelRadius(0.05F);
  EXPECT_NE(this->Shape(1).find("qm4_Outlined"), std::string::npos);
  this->Switch(1);
  this->Switch(1);
  this->Switch(5);
  this->Switch(-1);
  EXPECT_EQ(series.ContentToggle()->contents.Count(), 2);
  EXPECT_NE(this->Shape(2).find("qm4_Rounded"), std::string::npos) << "behind the popups";
  EXPECT_EQ(this->FieldOf(2, "depth"), 0.5F);
  EXPECT_EQ(this->FieldOf(2, "spacing"), 1.5F);
  EXPECT_EQ(this->FieldOf(2, "bevelRadius"), 0.05F);
  series.Height().Append(3);
  this->Switch(0);
  EXPECT_NE(this->Shape(2).find("qm4_Outlined"), std::string::npos);
  EXPECT_EQ(series.Height().Items(), (std::vector<float>{1, -2, 3}));
}

TYPED_TEST(StyledSeriesOf, RejectsADepthThatLeavesItsPopupsNoSize) {
  auto& series = *this->series;
  series.Depth(0.5F);
  EXPECT_EQ(tests::ErrorOf([&] { series.Depth(1e-45F); }),
            tests::ComponentError("Invalid radius, must be greater than 0"));
  EXPECT_EQ(series.Depth(), 0.5F);
  EXPECT_FLOAT_EQ(series.PopupProps()->Depth(), 0.525F);
}

}  // namespace
}  // namespace orvane
