/// The scatter chart: points, frames, and both kinds of animation.

#include "support/Charts.h"

#include "orvane/graphs/scatter/ScatterGraph.h"

#include <limits>

namespace orvane {
namespace {

using host::ErrorNumber;
using tests::ComponentError;
using tests::ErrorOf;
using tests::ExpectAt;
using tests::ExpectErrors;
using tests::Texts;

constexpr float kNaN = std::numeric_limits<float>::quiet_NaN();

/// The node below `node`, itself included, that is called `name`; nullptr when there is none.
const scene::Node* Find(const scene::Node& node, const std::string& name) {
  if (node.DefName() == name) return &node;
  const scene::Node* found = nullptr;
  for (const auto& entry : node.Interface()) {
    if (entry.field == nullptr) continue;
    entry.field->VisitNodes([&](const scene::Node& child) {
      if (found == nullptr) found = Find(child, name);
    });
  }
  return found;
}

class Scatter : public tests::ChartTest<ScatterGraph> {
 protected:
  template <class N>
  const N* Node(const std::string& name) {
    return dynamic_cast<const N*>(Find(*chart->RootNode(), name));
  }
  const scene::CoordinateInterpolator& Interpolator() {
    return *Node<scene::CoordinateInterpolator>("LOC_INT");
  }
  std::vector<float> XOfKeyValues() {
    std::vector<float> x;
    for (const auto& point : Interpolator().keyValue.Items()) x.push_back(point.x);
    return x;
  }
  /// Frames whose points lie at the given x.
  void Fill(const std::vector<std::vector<float>>& frames) {
    chart->PointFrameCount(static_cast<std::int16_t>(frames.size()));
    for (std::size_t i = 0; i < frames.size(); ++i) {
      const auto frame = chart->Get1PointFrame(static_cast<std::int16_t>(i + 1));
      frame->ClearPoints();
      for (const float x : frames[i]) frame->AddPoint(x, 1, 2, 0.1F, 0xFF8000, 0);
    }
  }
  /// Frames of one point each, at x = 1, 2, ...
  void Fill(int count) {
    std::vector<std::vector<float>> frames;
    for (int i = 1; i <= count; ++i) frames.push_back({static_cast<float>(i)});
    Fill(frames);
  }
};

TEST_F(Scatter, KeepsTheFramesThatStayAndTheirGap) {
  chart->PointFrameCount(5);
  const auto second = chart->Get1PointFrame(2);
  chart->PointFrameCount(2);
  chart->FrameTimeGap(2.5);
  const std::string index = "Invalid index into the list";
  ExpectErrors(
      {{[&] { chart->FrameTimeGap(kNaN); }, "The frame time gap must take at least 1 second"},
       {[&] { (void)chart->Get1PointFrame(0); }, index},
       {[&] { (void)chart->Get1PointFrame(3); }, index},
       {[&] { chart->PointFrameCount(0); },
        "There must be at least one point frame in the scene"}});
  EXPECT_EQ(chart->PointFrameCount(), 2);
  EXPECT_EQ(chart->Get1PointFrame(2), second);
  EXPECT_EQ(chart->FrameTimeGap(), 2.5);
}

TEST_F(Scatter, PassesItsFramesAsItsLoopStyleSays) {
  using enum LoopStyle;
  // Keys are sums of the step, or multiples of it, in 32-bit arithmetic: the last digits differ.
  const struct {
    LoopStyle style;
    int frames;
    double gap;
    std::vector<float> sequence, keys;
    double seconds;
    bool loop;
  } cycles[] = {
      {VRML_NO_LOOP, 2, 2.5, {1, 2}, {0, 0.99F}, 2.5, false},
      {VRML_LOOP_BREAK, 2, 2.5, {1, 2}, {0, 0.99F}, 2.5, true},
      {static_cast<LoopStyle>(7), 3, 1, {1, 2, 3}, {0, 0.495F, 0.99F}, 2, false},
      {VRML_LOOP_BREAK,
       8,
       1.5,
       {1, 2, 3, 4, 5, 6, 7, 8},
       {0, 0.141428575F, 0.28285715F, 0.42428571F, 0.5657143F, 0.707142889F, 0.84857142F,
        0.99000001F},
       10.5,
       true},
      {VRML_BACK_AND_FORTH, 3, 3, {1, 2, 3, 2, 1}, {0, 0.2475F, 0.495F, 0.7425F, 0.99F}, 12, true},
      {VRML_LOOP_CONTINUOUS, 3, 1.1, {1, 2, 3, 1}, {0, 0.33F, 0.66F, 0.99F}, 3 * 1.1, true},
      {VRML_LOOP_CONTINUOUS,
       7,
       1,
       {1, 2, 3, 4, 5, 6, 7, 1},
       {0, 0.141428575F, 0.28285715F, 0.42428571F, 0.5657143F, 0.707142889F, 0.848571479F,
        0.990000069F},
       7,
       true},
  };
  for (const auto& cycle : cycles) {
    SCOPED_TRACE(static_cast<int>(cycle.style) * 100 + cycle.frames);
    Fill(cycle.frames);
    chart->FrameTimeGap(cycle.gap);
    chart->AnimationLoopStyle(cycle.style);
    EXPECT_EQ(Routes(), (Texts{"TIME_KEEPER.fraction_changed TO LOC_INT.set_fraction",
                               "LOC_INT.value_changed TO POINT_COLLECTION.set_locations"}));
    EXPECT_EQ(XOfKeyValues(), cycle.sequence);
    EXPECT_EQ(Interpolator().key.Items(), cycle.keys);
    const auto* timer = Node<scene::TimeSensor>("TIME_KEEPER");
    EXPECT_EQ(timer->cycleInterval.Value(), cycle.seconds);
    EXPECT_EQ(timer->loop.Value(), cycle.loop);
    EXPECT_EQ(Node<scene::SphereCollection>("POINT_COLLECTION"),
              chart->Get1PointFrame(1)->SphereCollectionNode().get());
  }
}

TEST_F(Scatter, RepeatsTheLastPointOfShorterFrames) {
  const std::pair<std::vector<std::vector<float>>, std::vector<float>> cases[] = {
      {{{1, 2}, {11, 12, 13, 14, 15}, {21, 22, 23}},
       {1, 2, 2, 2, 2, 11, 12, 13, 14, 15, 21, 22, 23, 23, 23}},
      {{{}, {11, 12}, {}, {31}}, {0, 0, 11, 12, 12, 12, 31, 31}},
      {{{}, {}}, {}},
  };
  for (const auto& [frames, keyValues] : cases) {
    Fill(frames);
    Written();
    EXPECT_EQ(XOfKeyValues(), keyValues);
    EXPECT_EQ(Interpolator().key.Count(), static_cast<int>(frames.size()));
  }
}

TEST_F(Scatter, StandsStillWithOneFrameAndHasNoChoiceWithoutAny) {
  EXPECT_EQ(ErrorOf([&] { Written(); }), ComponentError("Invalid index into the list"));
  chart->PointAnimationStyle(AnimationStyle::VRML_DISCRETE);
  EXPECT_TRUE(Routes().empty());
  EXPECT_EQ(Node<scene::Switch>("FRAME_SWITCH")->choice.Count(), 0);
  EXPECT_EQ(Node<scene::Switch>("FRAME_SWITCH")->whichChoice.Value(), 0);
  EXPECT_EQ(Node<scene::Slider>("FRAME_SLIDER"), nullptr);
  chart->PointAnimationStyle(AnimationStyle::VRML_ANALOG);
  Fill(std::vector<std::vector<float>>{{1, 2}});
  EXPECT_TRUE(Routes().empty());
  EXPECT_EQ(Interpolator().key.Count() + Interpolator().keyValue.Count(), 0);
  EXPECT_EQ(Node<scene::TimeSensor>("TIME_KEEPER")->cycleInterval.Value(), 1);
  EXPECT_NE(Written().find("locations [ 1 1 2, 2 1 2 ]"), std::string::npos);
}

TEST_F(Scatter, LetsTheSliderChooseAFrame) {
  Fill(3);
  chart->Get1PointFrame(2)->Description("B");
  chart->PointAnimationStyle(AnimationStyle::VRML_DISCRETE);
  chart->GridProps()->Width(10);
  chart->XAxisProps()->LabelHeight(0.4F);
  chart->TitleProps()->TextColor(0x123456);
  EXPECT_EQ(Routes(), Texts{"FRAME_SLIDER.value_changed TO FRAME_SWITCH.set_whichChoice"});
  const auto slider = chart->FrameSlider();
  EXPECT_EQ(slider->Labels().Items(), (Texts{"Point frame 1", "B", "Point frame 3"}));
  EXPECT_EQ(slider->SliderMax(), 2);
  EXPECT_FLOAT_EQ(slider->SliderLength(), 1.8F);
  EXPECT_EQ(slider->LabelColor(), 0x123456);
  EXPECT_FLOAT_EQ(slider->Root()->translation.X(), 12.8F);
  const auto* choices = Node<scene::Switch>("FRAME_SWITCH");
  EXPECT_EQ(choices->choice.Item(3), chart->Get1PointFrame(3)->RootNode());
}

TEST_F(Scatter, PlacesItsPartsByTheGrid) {
  Fill(1);
  const auto grid = chart->GridProps();
  grid->Width(10);
  grid->Height(5);
  grid->Depth(4);
  grid->XAxisCellCount(4);
  grid->YAxisCellCount(5);
  grid->ZAxisCellCount(2);
  chart->XAxisProps()->LabelHeight(0.5F);
  chart->ZAxisProps()->LabelHeight(0.6F);
  chart->ZAxisProps()->Max(8);
  chart->UseDrillUp(true);
  EXPECT_NE(Written().find("[ \"0.00\", \"4.00\", \"8.00\" ]"), std::string::npos);
  ExpectAt(*chart->TitleProps()->Root(), 5, 5.5F, 0);
  ExpectAt(*chart->LegendProps()->Root(), 11, 0.5F, 0);
  ExpectAt(*chart->DrillUpProps()->Root(), 10, 0.55F, 4);
  ExpectAt(*chart->XAxisProps()->Root(), -0.25F, 0, 4.2F);
  ExpectAt(*chart->YAxisProps()->Root(), -0.2F, 5.5F, 4.08F);
  ExpectAt(*chart->ZAxisProps()->Root(), 10.2F, 0, -0.3F);
  const auto expectLabels = [](const ContinuousAxis& axis, int count, float gap,
                               LabelAlignment alignment, LabelingOrder order) {
    EXPECT_EQ(axis.Count(), count);
    EXPECT_EQ(axis.LabelTextGap(), gap);
    EXPECT_EQ(axis.Alignment(), alignment);
    EXPECT_EQ(axis.Order(), order);
  };
  using enum LabelAlignment;
  using enum LabelingOrder;
  expectLabels(*chart->XAxisProps(), 5, 2.5F, RIGHT_ALIGN, MIN_TO_MAX);
  expectLabels(*chart->YAxisProps(), 6, 1, RIGHT_ALIGN, MAX_TO_MIN);
  expectLabels(*chart->ZAxisProps(), 3, 2, LEFT_ALIGN, MIN_TO_MAX);
}

TEST(PointCollection, HandsBackWhatItWasGiven) {
  const auto points = std::make_shared<PointCollection>();
  points->AddPoint(1, 2, 3, 0, 0x0000FF, 0);
  points->AddPoint(4, 5, 6, 0.5F, 0x00FF00, 1);
  points->AddPoint(-7, 8.5F, 9, 0.25F, 0x123456, 0.75F);
  points->RemovePoint(2);
  using Row = host::Value::Numbers;
  EXPECT_EQ(points->Call("get1point", {2}), host::Value(Row{-7, 8.5, 9, 0.25, 0x123456, 0.75}));
  EXPECT_EQ(points->Call("Get1Point", {1}), host::Value(Row{1, 2, 3, 0, 0x0000FF, 0}));
  EXPECT_EQ(ErrorOf([&] {
              (points->Call("Get1Point", {1, 0}));
            }).number,
            ErrorNumber::WrongArgumentCount);
  for (const std::int16_t index : {std::int16_t{0}, std::int16_t{3}}) {
    EXPECT_EQ(ErrorOf([&] { points->Call("Get1Point", {index}); }).number, ErrorNumber::ListIndex);
    EXPECT_EQ(ErrorOf([&] { points->RemovePoint(index); }).number, ErrorNumber::ListIndex);
  }
  EXPECT_EQ(points->Count(), 2);
  points->ClearPoints();
  EXPECT_EQ(points->Count(), 0);
}

TEST(PointCollection, RejectsBadPointsWhole) {
  constexpr float kInfinity = std::numeric_limits<float>::infinity();
  const auto badRadius = ComponentError("Invalid radius, must be greater than or equal to 0");
  const auto badTransparency = ComponentError("Invalid transparency, must be in the range [0..1]");
  const struct {
    float x, radius;
    std::int32_t color;
    float transparency;
    tests::Raised error;
  } cases[] = {
      {0, -0.001F, 0, 2, badRadius},
      {0, kNaN, 0, 0, badRadius},
      {0, 1, 0, -0.001F, badTransparency},
      {0, 1, 0, 1.001F, badTransparency},
      {0, 1, 0, kNaN, badTransparency},
      {0, kInfinity, 0, 0, {ErrorNumber::Overflow, ""}},
      {kNaN, 1, 0, 0, {ErrorNumber::NotFinite, ""}},
      {0, 1, 0x1000000, 0, {ErrorNumber::OutOfRange, ""}},
      {0, 1, -1, 0, {ErrorNumber::OutOfRange, ""}},
  };
  PointCollection points;
  const auto& node = dynamic_cast<const scene::SphereCollection&>(*points.SphereCollectionNode());
  for (const auto& test : cases) {
    const auto error =
        ErrorOf([&] { points.AddPoint(test.x, 0, 0, test.radius, test.color, test.transparency); });
    EXPECT_EQ(error.number, test.error.number);
    EXPECT_TRUE(error.message.starts_with(test.error.message)) << error.message;
    EXPECT_EQ(node.locations.Count() + node.radii.Count() + node.colors.Count() +
                  node.transparencies.Count(),
              0);
  }
}

TEST_F(Scatter, HoldsAsManyPointsAsItCanCount) {
  chart->PointFrameCount(1);
  const auto points = chart->Get1PointFrame(1);
  for (int i = 0; i < 32767; ++i) points->AddPoint(static_cast<float>(i), 0, 0, 0.1F, i, 0);
  EXPECT_EQ(ErrorOf([&] { points->AddPoint(1, 1, 1, 1, 1, 1); }).number, ErrorNumber::Overflow);
  EXPECT_EQ(points->Count(), 32767);
  EXPECT_NE(Written().find(", 32766 0 0 ]"), std::string::npos);
  chart->PointFrameCount(513);
  EXPECT_EQ(ErrorOf([&] { Written(); }),
            (tests::Raised{
                ErrorNumber::Overflow,
                "Overflow: an animation of 513 frames of 32767 points does not fit in memory"}));
}

TEST_F(Scatter, HasAsManyFramesAsItCanCount) {
  chart->PointFrameCount(32767);
  Written();
  EXPECT_EQ(Interpolator().key.Count(), 32767);
  chart->PointAnimationStyle(AnimationStyle::VRML_DISCRETE);
  EXPECT_NE(Written().find("\"Point frame 32767\" ]"), std::string::npos);
}

TEST_F(Scatter, HasALegendWithoutCheckBoxes) {
  Fill(1);
  const auto legend = chart->LegendProps();
  legend->AddLegendEntry(0x0000FF, "first");
  legend->AddLegendEntry(0x00FF00, "second");
  EXPECT_EQ(ErrorOf([&] { legend->AddLegendEntry(-1, "none"); }).number, ErrorNumber::OutOfRange);
  const std::string text = Written();
  EXPECT_NE(text.find("entryTexts [ \"second\", \"first\" ]"), std::string::npos);
  EXPECT_LT(text.find("diffuseColor 0 1 0"), text.find("diffuseColor 1 0 0"));
  EXPECT_EQ(text.find("qm4_CheckBox"), std::string::npos);
  legend->ClearLegend();
  EXPECT_EQ(Written().find("entryTexts ["), std::string::npos);
  EXPECT_NE(Written().find("qm4_Legend {"), std::string::npos);
}

TEST(Slider, LaysOutLabelsAndDirection) {
  using enum SliderTextAlignment;
  using enum SliderAlignment;
  const struct {
    int labels;
    float length, labelHeight, radius;
    SliderTextAlignment alignment;
    SliderAlignment orientation;
    float spacing, x, y;
  } cases[] = {
      {5, 3, 0.5F, 0.2F, RIGHT_ALIGN_TEXT, ZERO_AT_TOP, 1.25F, -0.24F, 3},
      {2, 4, 1, 0.5F, LEFT_ALIGN_TEXT, ZERO_AT_BOTTOM, 3, 0.6F, 0},
      {1, 9, 1, 0.2F, static_cast<SliderTextAlignment>(9), static_cast<SliderAlignment>(9), 3,
       0.24F, 0},
      {0, 4, 2, 0.2F, LEFT_ALIGN_TEXT, ZERO_AT_TOP, 3, 0.24F, 4},
  };
  SliderInfo slider;
  const auto part = [&](int index) {
    const auto& children = slider.Root()->children;
    return std::dynamic_pointer_cast<scene::Transform>(children.Item(index));
  };
  const auto shape = std::dynamic_pointer_cast<scene::Shape>(part(2)->children.Item(1));
  const auto text = std::dynamic_pointer_cast<scene::Text>(shape->geometry.Value());
  const auto font = std::dynamic_pointer_cast<scene::FontStyle>(text->fontStyle.Value());
  for (const auto& test : cases) {
    SCOPED_TRACE(test.labels);
    slider.Labels().Clear();
    for (int i = 0; i < test.labels; ++i) slider.Labels().Append("label");
    slider.SliderLength(test.length);
    slider.LabelHeight(test.labelHeight);
    slider.SliderRadius(test.radius);
    slider.TextAlignment(test.alignment);
    slider.SliderOrientation(test.orientation);
    slider.AlignSlider();
    EXPECT_EQ(font->spacing.Value(), test.spacing);
    const bool isRight = test.alignment == RIGHT_ALIGN_TEXT;
    EXPECT_EQ(font->justify.Items(), (Texts{isRight ? "END" : "BEGIN", "END"}));
    EXPECT_FLOAT_EQ(part(2)->translation.X(), test.x);
    EXPECT_EQ(part(1)->translation.Y(), test.y);
    const bool isTurned = test.orientation == ZERO_AT_TOP;
    EXPECT_EQ(part(1)->rotation.X(), isTurned ? 1 : 0);
    EXPECT_EQ(part(1)->rotation.Angle(), isTurned ? 3.14159F : 0);
  }
}

}  // namespace
}  // namespace orvane
