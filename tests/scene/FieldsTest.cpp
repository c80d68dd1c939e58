/// Field objects: values, lists counted from 1, and what they refuse.

#include "support/Raises.h"

#include "orvane/scene/GroupingNodes.h"
#include "orvane/scene/SensorNodes.h"
#include "orvane/scene/ShapeNodes.h"
#include "orvane/scene/ViewNodes.h"
#include "orvane/scene/frmMain.h"

#include <cmath>
#include <functional>
#include <limits>

#include <gtest/gtest.h>

namespace orvane::scene {
namespace {

using host::ErrorNumber;
using tests::ErrorOf;
using tests::Raised;

constexpr float kInfinity = std::numeric_limits<float>::infinity();
constexpr float kNan = std::numeric_limits<float>::quiet_NaN();

TEST(SFColor, KeepsEveryByteOnTheRoundTrip) {
  SFColor color;
  for (std::int32_t byte = 0; byte <= 255; ++byte) {
    const std::int32_t rgb = byte | (255 - byte) << 8 | (byte / 2) << 16;
    color.Value(rgb);
    ASSERT_EQ(color.Value(), rgb);
  }
  color.Value(0x0000FF);
  EXPECT_EQ(color.Red(), 1);
  EXPECT_EQ(color.Blue(), 0);
}

/// Turns `v` by a rotation, after Rodrigues.
Vec3f Turned(const SFRotation& r, Vec3f v) {
  const double c = std::cos(r.Angle()), s = std::sin(r.Angle());
  const double dot = r.X() * v.x + r.Y() * v.y + r.Z() * v.z;
  const auto component = [&](double p, double k, double cross) {
    return static_cast<float>(p * c + cross * s + k * dot * (1 - c));
  };
  return {component(v.x, r.X(), r.Y() * v.z - r.Z() * v.y),
          component(v.y, r.Y(), r.Z() * v.x - r.X() * v.z),
          component(v.z, r.Z(), r.X() * v.y - r.Y() * v.x)};
}

TEST(SFRotation, AnglesTurnAboutFixedXThenYThenZ) {
  const auto expectNear = [](const Vec3f& is, const Vec3f& wanted) {
    EXPECT_LT(std::hypot(is.x - wanted.x, is.y - wanted.y, is.z - wanted.z), 1e-4);
  };
  const struct {
    std::array<float, 3> angles;
    Vec3f reading, up;  // Where a text's reading direction (+x) and its upward one (+y) end.
  } cases[] = {
      {{-1.5708F, 1.5708F, 0}, {0, 0, -1}, {-1, 0, 0}},
      {{-1.5708F, 0, 0}, {1, 0, 0}, {0, 0, -1}},
      {{0, 0.7854F, 0}, {0.70711F, 0, -0.70711F}, {0, 1, 0}},
      {{0, 0, 0}, {1, 0, 0}, {0, 1, 0}},
      {{3.14159F, 3.14159F, 0}, {-1, 0, 0}, {0, -1, 0}},
  };
  for (const auto& test : cases) {
    SFRotation rotation;
    rotation.SetFromAngles(test.angles[0], test.angles[1], test.angles[2]);
    expectNear(Turned(rotation, {1, 0, 0}), test.reading);
    expectNear(Turned(rotation, {0, 1, 0}), test.up);
  }
}

TEST(Lists, InsertRemoveAndCopy) {
  const auto group = Create<Group>();
  const auto a = Create<Transform>(), b = Create<Transform>(), c = Create<Transform>();
  group->children.Append(a);
  group->children.Append(c);
  group->children.Insert(2, b);
  group->children.Insert(4, a);
  EXPECT_EQ(group->children.Items(), (MFNode::List{a, b, c, a}));
  group->children.Remove(a);
  EXPECT_EQ(group->children.Items(), (MFNode::List{b, c, a}));

  MFFloat from, to;
  from.Append(1);
  from.Append(2);
  to.Append(9);
  from.CopyTo(to);
  from.Item(1, 5);
  EXPECT_EQ(to.Items(), (MFFloat::List{1, 2}));

  MFFloat list;  // Indexes have more than 16 bits.
  for (int i = 1; i <= 70000; ++i) list.Append(static_cast<float>(i));
  EXPECT_EQ(list.Count(), 70000);
  EXPECT_EQ(list.Item(70000), 70000);
}

TEST(Lists, KeepTheOrderOfTheirSlots) {
  const std::pair<const char*, const char*> orders[] = {
      {"MFNode", "Append Insert Remove Clear Item Count"},
      {"MFString", "Item RemoveAt Append Clear Count"},
      {"MFFloat", "Item Append RemoveAt CopyTo Clear Count"},
      {"MFColor", "Item SetItem Append RemoveAt Clear Count"},
      {"MFVec2f", "Item Count"},
      {"MFVec3f", "Item Append RemoveAt Clear Count"}};
  for (const auto& [type, order] : orders) {
    std::string names;
    for (const auto& member : CoreFactory()->CreateField(type)->Type().Members()) {
      names += (names.empty() ? "" : " ") + member.name;
    }
    EXPECT_TRUE(names.starts_with(order)) << type << ": " << names;
  }
}

TEST(Fields, NameThemselvesInWhatTheyRefuseAndKeepTheirValues) {
  const auto node = Create<Text>();
  const auto material = Create<Material>();
  const auto group = Create<Group>();
  MFFloat negative;
  negative.Append(-1);
  node->string.Append("one");
  node->length.Append(4);
  using enum ErrorNumber;
  const struct {
    std::function<void()> call;
    ErrorNumber number;
    const char* message;
  } cases[] = {
      {[&] { (void)node->string.Item(0); }, ListIndex,
       "Index 0 is outside the range [1..1] of Text.string"},
      {[&] { (void)node->length.Item(2); }, ListIndex,
       "Index 2 is outside the range [1..1] of Text.length"},
      {[&] { node->string.Item(2, "two"); }, ListIndex,
       "Index 2 is outside the range [1..1] of Text.string"},
      {[&] { node->length.RemoveAt(-1); }, ListIndex,
       "Index -1 is outside the range [1..1] of Text.length"},
      {[&] { node->string.Insert(3, "x"); }, ListIndex,
       "Index 3 is outside the range [1..1] of Text.string"},
      {[&] { node->length.Append(kNan); }, NotFinite, "Text.length takes finite numbers only"},
      {[&] { node->length.Item(1, kInfinity); }, NotFinite,
       "Text.length takes finite numbers only"},
      {[&] { node->length.Item(1, -1); }, OutOfRange,
       "Text.length takes numbers in the range [0..inf], got -1"},
      {[&] { negative.CopyTo(node->length); }, OutOfRange,
       "Text.length takes numbers in the range [0..inf], got -1"},
      {[&] { node->maxExtent.Value(-kInfinity); }, NotFinite,
       "Text.maxExtent takes finite numbers only"},
      {[&] { material->diffuseColor.Value(0x1000000); }, OutOfRange,
       "Material.diffuseColor takes a colour in the range [0..16777215], got 16777216"},
      {[&] { Create<Background>()->skyColor.Append(0, 1.5F, 0); }, OutOfRange,
       "Background.skyColor takes components in the range [0..1]"},
      {[&] { Create<Viewpoint>()->fieldOfView.Value(0); }, OutOfRange,
       "Viewpoint.fieldOfView takes numbers in the range (0..3.14159), got 0"},
      {[&] { group->children.Append(nullptr); }, NoNode, "Group.children takes nodes only"},
      {[&] { group->children.Append(material); }, TypeMismatch,
       "Group.children takes children nodes, not Material"},
      {[&] { group->children.Insert(1, node); }, TypeMismatch,
       "Group.children takes children nodes, not Text"},
      {[&] { Create<Shape>()->geometry.Value(Create<PointLight>()); }, TypeMismatch,
       "Shape.geometry takes geometry nodes, not PointLight"},
      {[&] { node->fontStyle.Value(material); }, TypeMismatch,
       "Text.fontStyle takes FontStyle, not Material"},
      {[&] { group->children.Remove(material); }, NodeNotInList,
       "Group.children does not hold this Material, so it cannot be removed"},
  };
  for (const auto& [call, number, message] : cases) {
    EXPECT_EQ(ErrorOf(call), (Raised{number, message}));
  }
  EXPECT_EQ(node->string.Items(), (MFString::List{"one"}));
  EXPECT_EQ(node->length.Items(), (MFFloat::List{4}));
  EXPECT_EQ(node->maxExtent.Value(), 0);
}

TEST(LateBoundFields, AreReachedThroughTheirNodeAndKeepItAlive) {
  host::Value labels;
  {
    const auto text = Create<Text>();
    labels = text->Get("STRING");
  }
  labels.AsObject()->Call("Append", {"kept"});
  EXPECT_EQ(labels.AsObject()->Get("Item", {1}), host::Value("kept"));
  EXPECT_EQ(labels.AsObject()->Get("Count"), host::Value(1));

  const auto view = Create<Viewpoint>();
  view->Get("position").AsObject()->Let("Z", 25);
  EXPECT_EQ(view->position.Z(), 25);
  const auto points = CoreFactory()->CreateField("MFVec3f");
  points->Call("Append", {1, 2, 3.5});
  EXPECT_EQ(points->Get("Item", {1}), host::Value(host::Value::Numbers{1, 2, 3.5}));
}

TEST(LateBoundLists, TakeAllEntriesAtOnceOrNone) {
  using host::Value;
  using Row = Value::Numbers;
  using enum ErrorNumber;
  const auto view = Create<Background>();
  const auto text = Create<Text>();
  const auto points = CoreFactory()->CreateField("MFVec3f");
  const auto plane = CoreFactory()->CreateField("MFVec2f");
  const struct {
    host::Object& list;
    Row accepted;
    Value refused;
    ErrorNumber number;
    const char* message;
  } cases[] = {
      {text->length, Row({1, 2, 3.5}), Row({1, 2, -1}), OutOfRange,
       "Text.length takes numbers in the range [0..inf], got -1"},
      {text->length, Row(), Row({1, 1e39}), Overflow,
       "Overflow: MFFloat.Items: 1e+39 does not fit a 32-bit float"},
      {text->length, Row({4.0}), 5, TypeMismatch,
       "Type mismatch: MFFloat.Items expects a row of numbers, got number 5"},
      {view->skyColor, Row({0, 0.5, 1, 1, 0, 0}), Row({1, 1, 1, 0, 0, 1.5}), OutOfRange,
       "Background.skyColor takes components in the range [0..1]"},
      {*points, Row({1, 2, 3, 4, 5, 6}), Row({1, 2, 3, 4}), TypeMismatch,
       "Type mismatch: MFVec3f.Items expects rows of 3 numbers, got a row of 4 number(s)"},
      {*plane, Row({1, 2, 3, 4}), Row({1, 2, 3, kNan}), Overflow,
       "Overflow: MFVec2f.Items: nan does not fit a 32-bit float"},
  };
  for (const auto& test : cases) {
    test.list.Let("Items", Value(test.accepted));
    EXPECT_EQ(ErrorOf([&] { test.list.Let("Items", test.refused); }),
              (Raised{test.number, test.message}));
    EXPECT_EQ(test.list.Get("Items"), Value(test.accepted)) << test.message;
  }
  EXPECT_EQ(view->skyColor.Items(), (MFColor::List{{0, 0.5F, 1}, {1, 0, 0}}));
  EXPECT_EQ(points->Get("Item", {2}), Value(Row{4, 5, 6}));
  MFVec2f::List early{{1, kInfinity}};
  EXPECT_EQ(ErrorOf([&] { dynamic_cast<MFVec2f&>(*plane).Items(early); }).number,
            ErrorNumber::NotFinite);
}

TEST(Factory, KnowsItsModulesTypesAndNoOthers) {
  const auto& form = frmMain::Instance();
  EXPECT_EQ(form.graph.Factory()->CreateNode("qm4_Legend")->TypeName(), std::string("qm4_Legend"));
  EXPECT_EQ(form.ui.Factory()->CreateNode("Transform")->TypeName(), std::string("Transform"));
  EXPECT_EQ(ErrorOf([&] { form.core.Factory()->CreateNode("qm4_Legend"); }),
            (Raised{ErrorNumber::UnknownType, "There is no node type \"qm4_Legend\""}));
  EXPECT_EQ(ErrorOf([&] { form.core.Factory()->CreateField("MFImage"); }),
            (Raised{ErrorNumber::UnknownType, "There is no field type \"MFImage\""}));
  EXPECT_EQ(ErrorOf([&] { form.core.Factory()->CreateTraverser("Printer"); }),
            (Raised{ErrorNumber::UnknownType, "There is no writer \"Printer\""}));
}

}  // namespace
}  // namespace orvane::scene
