/// Models: the notation reaches every kind of member, and every complaint names its place.
#include "ModelBuilder.h"
#include "support/ScratchFolder.h"
#include "support/Tables.h"

#include "orvane/graphs/grid/AreaGraph.h"

#include <gtest/gtest.h>

namespace orvane::tool {
namespace {

using tests::ComplaintOf;

/// The chart that "{"chart": "AreaGraph", `members`}" makes.
std::shared_ptr<AreaGraph> Build(const std::string& members) {
  const std::string model = "{\"chart\": \"AreaGraph\",\n" + members + "}";
  return std::dynamic_pointer_cast<AreaGraph>(BuildModel(tables::Source("m.json", model)));
}

TEST(Model, SetsPropertiesOfAllKinds) {
  const auto chart = Build(R"(
    "gridprops": {"WIDTH": 12.5, "ZAxisCellCount": 2, "LineColor": "#0000ff", "WallColor": 255},
    "TitleProps": {"Text": "Häuser", "TextFont": "vrml_sans", "TextStyle": 1, "IsBillboarded": true},
    "XAxisProps": {"Labels": ["a", "b", 3]},
    "series": [{"Height": [1, 2.5]}, {"Material": {"diffuseColor": "#00ff00", "shininess": 0.5}}],
    "InteractivityProps": {"XAxisDrillDownProps": {"DrillDownURL": ["x.wrl"]}})");
  EXPECT_EQ(chart->GridProps()->Width(), 12.5F);
  EXPECT_EQ(chart->GridProps()->LineColor(), 0xFF0000);
  EXPECT_EQ(chart->GridProps()->WallColor(), 0x0000FF);
  EXPECT_EQ(chart->TitleProps()->Text(), "Häuser");
  EXPECT_EQ(chart->TitleProps()->TextFont(), VRMLFontFamily::VRML_SANS);
  EXPECT_EQ(chart->TitleProps()->TextStyle(), VRMLFontStyle::VRML_BOLD);
  EXPECT_TRUE(chart->TitleProps()->IsBillboarded());
  EXPECT_EQ(chart->XAxisProps()->Labels().Items(), (std::vector<std::string>{"a", "b", "3"}));
  EXPECT_EQ(chart->GetSeries(1)->Height().Items(), (std::vector<float>{1, 2.5F}));
  EXPECT_EQ(chart->GetSeries(2)->Material()->diffuseColor.Value(), 0x00FF00);
  EXPECT_EQ(chart->GetSeries(2)->Material()->shininess.Value(), 0.5F);
  EXPECT_EQ(chart->InteractivityProps()->XAxisDrillDownProps()->DrillDownURL().Item(1), "x.wrl");
}

TEST(Model, CallsMethodsAndReachesWhatTheyReturn) {
  const auto chart = Build(R"(
    "GridProps": {"ZAxisCellCount": 2},
    "GetSeries": [[1, {"Depth": 0.25}], [2, {"LegendText": "two"}]],
    "Viewpoints": {"AddViewpoint": [[{"position": [1, 2, 3], "description": "A"}], []],
                   "GetViewpoint": [2, {"orientation": [0, 1, 0, 0.5], "description": "B"}]},
    "Lights": {"AddLightSource": [{"location": {"Y": 4}}]},
    "XAxisProps": {"Labels": {"Append": [["a"], ["b"]], "Item": [[1, "c"], [2, "d"]]}})");
  EXPECT_EQ(chart->GetSeries(1)->Depth(), 0.25F);
  EXPECT_EQ(chart->GetSeries(2)->LegendText(), "two");
  ASSERT_EQ(chart->Viewpoints()->Count(), 2);
  EXPECT_EQ(chart->Viewpoints()->GetViewpoint(1)->position.Z(), 3);
  EXPECT_EQ(chart->Viewpoints()->GetViewpoint(2)->orientation.Angle(), 0.5F);
  EXPECT_EQ(chart->Viewpoints()->GetViewpoint(2)->description.Value(), "B");
  EXPECT_EQ(chart->Lights()->GetLightSource(1)->location.Y(), 4);
  EXPECT_EQ(chart->XAxisProps()->Labels().Items(), (std::vector<std::string>{"c", "d"}));
}

struct BadModel {
  const char* model;
  const char* message;
};

/// Members of an AreaGraph; they begin on line 2.
constexpr BadModel kBadMembers[] = {
    {R"("GridProps": {"Widht": 1})",
     "m.json:2:15: GridProps.Widht: GridInfo has no member \"Widht\""},
    {R"("GridProps": {"Width": [1]})",
     "m.json:2:24: GridProps.Width: this is no object, so it has no members"},
    {R"("GridProps": {"Width": null})",
     "m.json:2:24: GridProps.Width: expected a single value (Single)"},
    {R"("GridProps": 8)",
     "m.json:2:14: GridProps: expected a JSON object with members of GridInfo"},
    {R"("GridProps": [8])", "m.json:2:14: GridProps: GridInfo is not a list"},
    {R"("XAxisProps": {"LabelFont": 3})",
     "m.json:2:29: XAxisProps.LabelFont: 3 is not a value of VRMLFontFamily"},
    {R"("XAxisProps": {"Labels": ["a", ["b", "c"]]})",
     "m.json:2:32: XAxisProps.Labels[2]: MFString.Append takes 1 argument(s), got 2"},
    {R"("TitleProps": {"TextColor": "#12345"})",
     "m.json:2:29: TitleProps.TextColor: Type mismatch: TextInfo.TextColor expects a colour "
     "(#rrggbb), got String \"#12345\""},
    {R"("Viewpoints": {"AddViewpoint": {}})",
     "m.json:2:32: Viewpoints.AddViewpoint: expected an array of arguments"},
    {R"("Viewpoints": {"AddViewpoint": [{"position": [1, 2]}]})",
     "m.json:2:46: Viewpoints.AddViewpoint().position: SFVec3f takes 3 numbers, got 2"},
    {R"("Viewpoints": {"GetViewpoint": [1, {}]})",
     "m.json:2:32: Viewpoints.GetViewpoint: Index 1 is outside the range [1..0] of Group.children"},
    {R"("GridProps": {"ZAxisCellCount": 2}, "GetSeries": [2, {"Depth": -1}])",
     "m.json:2:64: GetSeries(2).Depth: Invalid series depth, must be greater than 0"},
    {R"("series": [{}])", "m.json:2:12: GetSeries(1): Invalid series index, series count = 0"},
    {R"("series": {})", "m.json:2:11: series: expected an array with an object for each series"},
    {R"("GridProps": {"Width": 1, "Width": 2})",
     "m.json:2:27: the key \"Width\" stands twice in one object"},
    {R"("GridProps": {"Width": 1e999})", "m.json:2:28: number overflow parsing '1e999'"},
};

TEST(Model, NamesThePlaceOfWhatIsWrong) {
  for (const auto& [model, message] : kBadMembers) {
    EXPECT_EQ(ComplaintOf([&] { Build(model); }), message) << model;
  }
}

TEST(Model, IsAJsonObjectThatNamesItsChart) {
  const BadModel models[] = {
      {"",
       "m.json:1:1: syntax error while parsing value - unexpected end of input; expected '[', "
       "'{', or a literal"},
      {"[]", "m.json:1:1: a model is a JSON object"},
      {"{}", "m.json:1:1: the model does not name the class of its \"chart\""},
      {"{\"chart\": 1}", "m.json:1:11: chart: the class of a chart is a text"},
      {"{\n \"chart\": \"Chart\"}", "m.json:2:11: chart: there is no chart class \"Chart\""},
  };
  for (const auto& [model, message] : models) {
    EXPECT_EQ(ComplaintOf([&] { BuildModel(tables::Source("m.json", model)); }), message) << model;
  }
  const std::string deep = std::string(100000, '[');
  EXPECT_THROW(BuildModel(tables::Source("m.json", deep)), tables::FileError);
}

TEST(Model, OfTheDocumentationIsTheExampleAndBuilds) {
  const std::string example = tests::FileText(ORVANE_SOURCE_DIR "/examples/rain.json");
  const std::string page = tests::FileText(ORVANE_SOURCE_DIR "/docs/command-line.md");
  ASSERT_FALSE(example.empty());
  EXPECT_NE(page.find("```json\n" + example + "```\n"), std::string::npos);
  const std::string world = BuildWorld(tables::Source("rain.json", example));
  for (const char* part : {"\"Rain in Seattle, spring\"", "[ 4.8, 2.122, 1.6 ]", "\"250 mm\"",
                           "ROUTE CHECK_BOX_2.value_changed TO SERIES_TOGGLE_2.set_contentsExist",
                           "ROUTE X_AXIS_DRILL_DOWN.mouseClickedIndex TO X_AXIS_ROUTER"}) {
    EXPECT_NE(world.find(part), std::string::npos) << part;
  }
}

}  // namespace
}  // namespace orvane::tool
