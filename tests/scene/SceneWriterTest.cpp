/// The text of worlds: sharing, names, strings, layout, and scenes that cannot be written.

#include "support/Raises.h"

#include "orvane/scene/GraphProtos.h"
#include "orvane/scene/GroupingNodes.h"
#include "orvane/scene/RouteList.h"
#include "orvane/scene/SceneWriter.h"
#include "orvane/scene/SensorNodes.h"
#include "orvane/scene/ShapeNodes.h"
#include "orvane/scene/UiProtos.h"
#include "orvane/scene/ViewNodes.h"
#include "orvane/scene/frmMain.h"

#include <charconv>
#include <random>

#include <gtest/gtest.h>

namespace orvane::scene {
namespace {

using host::ErrorNumber;
using tests::ErrorOf;
using tests::Raised;

std::string Written(const Node& root, TextLayout layout = {false, false}) {
  return SceneWriter::Write(root, RouteList(), layout);
}

TEST(SceneWriter, WritesSharedNodesOnceAndLeavesDefaultsOut) {
  const auto group = Create<Group>();
  const auto appearance = Create<Appearance>();
  for (int i = 0; i < 3; ++i) {
    const auto shape = Create<Shape>();
    shape->appearance.Value(appearance);
    group->children.Append(shape);
  }
  const auto taken = Create<Transform>();
  taken->SetDefName("Appearance_1");
  taken->translation.Y(0.1F);
  group->children.Append(taken);
  EXPECT_EQ(Written(*group),
            "#VRML V2.0 utf8\n"
            "Group { children [ Shape { appearance DEF Appearance_2 Appearance { } } "
            "Shape { appearance USE Appearance_2 } Shape { appearance USE Appearance_2 } "
            "DEF Appearance_1 Transform { translation 0 0.1 0 } ] }\n");
}

TEST(SceneWriter, BreaksAndIndentsLinesAsAsked) {
  const auto sky = Create<Background>();
  sky->skyColor.Append(1, 1, 1);
  sky->skyAngle.Append(2);
  sky->skyAngle.Append(3);
  EXPECT_EQ(Written(*sky, {true, true}),
            "#VRML V2.0 utf8\n"
            "Background {\n\tskyAngle [ 2, 3 ]\n\tskyColor [ 0 0 0, 1 1 1 ]\n}\n");
  EXPECT_EQ(Written(*sky, {true, false}),
            "#VRML V2.0 utf8\nBackground {\nskyAngle [ 2, 3 ]\nskyColor [ 0 0 0, 1 1 1 ]\n}\n");
}

TEST(SceneWriter, DeclaresEachProtoOnceWithEveryLocation) {
  const auto group = Create<Group>();
  OrvaneModule::RelativeProtoPath("../protos/");
  group->children.Append(Create<ContentToggle>());
  OrvaneModule::RelativeProtoPath("..\\p\\");
  group->children.Append(Create<ContentToggle>());
  OrvaneModule::RelativeProtoPath("");
  EXPECT_EQ(Written(*group),
            "#VRML V2.0 utf8\n"
            "EXTERNPROTO qm4_ContentToggle [ exposedField MFNode contents "
            "exposedField SFBool contentsExist ] "
            "[ \"../protos/VR_UI.wrl#qm4_ContentToggle\", "
            "\"..\\\\p\\\\VR_UI.wrl#qm4_ContentToggle\" ] "
            "Group { children [ qm4_ContentToggle { } qm4_ContentToggle { } ] }\n");
}

TEST(SceneWriter, EscapesAndMendsStrings) {
  const std::pair<std::string, std::string> cases[] = {
      {"plain", "plain"},
      {R"(a "b" \c)", R"(a \"b\" \\c)"},
      {"Zürich 東京 😀", "Zürich 東京 😀"},
      {"bad \xC3( \xFF", "bad \uFFFD( \uFFFD"},
      {"\xC0\xAF", "\uFFFD\uFFFD"},            // overlong "/"
      {"\xED\xA0\x80", "\uFFFD\uFFFD\uFFFD"},  // a surrogate
      {"cut \xE6\x9D", "cut \uFFFD\uFFFD"},
      {std::string("a\0b", 3), "a\uFFFDb"},
      {"two\nlines", "two\nlines"},
  };
  for (const auto& [in, out] : cases) {
    const auto text = Create<Text>();
    text->string.Append(in);
    EXPECT_EQ(Written(*text), "#VRML V2.0 utf8\nText { string [ \"" + out + "\" ] }\n");
  }
}

TEST(SceneWriter, WritesFloatsThatReadBackTheSame) {
  std::mt19937 bits(1);
  const auto mover = Create<CoordinateInterpolator>();
  std::vector<float> numbers;
  while (numbers.size() < 20000) {
    const auto number = std::bit_cast<float>(static_cast<std::uint32_t>(bits()));
    if (number - number != 0) continue;
    numbers.push_back(number);
    mover->key.Append(number);
  }
  const std::string text = Written(*mover);
  const char* at = text.data() + text.find('[') + 2;
  for (const float number : numbers) {
    float read = 0;
    const auto result = std::from_chars(at, text.data() + text.size(), read);
    ASSERT_EQ(std::bit_cast<std::uint32_t>(read), std::bit_cast<std::uint32_t>(number));
    at = result.ptr + 2;
  }
}

TEST(SceneWriter, RefusesScenesThatCannotBeWritten) {
  auto top = Create<Group>();
  for (int i = 1; i < 50000; ++i) {
    const auto above = Create<Group>();
    above->children.Append(std::move(top));
    top = above;
  }
  EXPECT_EQ(ErrorOf([&] { Written(*top); }),
            (Raised{ErrorNumber::SceneTooDeep, "More than 1000 nodes hang one below the other"}));
  top.reset();

  const auto root = Create<Transform>();
  const auto inner = Create<Group>();
  root->children.Append(inner);
  inner->SetDefName("INNER");
  inner->children.Append(root);
  EXPECT_EQ(ErrorOf([&] { Written(*root); }),
            (Raised{ErrorNumber::SceneCycle, "The Transform contains itself"}));
  inner->children.Clear();

  const auto twin = Create<Switch>();
  twin->SetDefName("INNER");
  root->children.Append(twin);
  EXPECT_EQ(ErrorOf([&] { Written(*root); }),
            (Raised{ErrorNumber::DuplicateDefName,
                    "A Group and a Switch both have the DEF name \"INNER\""}));
  root->children.Remove(twin);

  const auto box = Create<CheckBox>();
  const auto toggle = Create<ContentToggle>();
  RouteList routes;
  routes.AddRoute(box, "value_changed", toggle, "set_contentsExist");
  const auto write = [&] { SceneWriter::Write(*root, routes, {}); };
  EXPECT_EQ(ErrorOf(write), (Raised{ErrorNumber::RouteOutsideScene,
                                    "The ROUTE end qm4_CheckBox.value_changed has no DEF name"}));
  box->SetDefName("BOX");
  toggle->SetDefName("TOGGLE");
  root->children.Append(toggle);
  EXPECT_EQ(ErrorOf(write),
            (Raised{ErrorNumber::RouteOutsideScene,
                    "The ROUTE end qm4_CheckBox.value_changed (\"BOX\") is not in the scene"}));
  root->children.Append(box);
  EXPECT_NE(SceneWriter::Write(*root, routes, {})
                .find("\nROUTE BOX.value_changed TO TOGGLE.set_contentsExist\n"),
            std::string::npos);
}

TEST(Node, TakesDefNamesThatVrmlCanWrite) {
  const auto group = Create<Group>();
  for (const char* name : {"A", "_1", "SERIES_TOGGLE_2", "Größe", "a-b+c", ""}) {
    EXPECT_EQ(ErrorOf([&] { group->SetDefName(name); }).message, "nothing raised") << name;
  }
  group->SetDefName("KEPT");
  for (const char* name : {"1A", "-a", "a b", "a.b", "a#", "{", "USE", "field", "\xFF", "a\tb"}) {
    EXPECT_EQ(ErrorOf([&] { group->SetDefName(name); }).number, ErrorNumber::InvalidDefName)
        << name;
  }
  EXPECT_EQ(group->DefName(), "KEPT");
}

}  // namespace
}  // namespace orvane::scene
