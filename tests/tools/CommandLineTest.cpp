/// The program as a whole: files, exit statuses, messages.
#include "support/Program.h"
#include "support/ScratchFolder.h"

#include "orvane/scene/ProtoFiles.h"

#include <algorithm>
#include <filesystem>
#include <fstream>

#include <gtest/gtest.h>

namespace orvane::tool {
namespace {

namespace fs = std::filesystem;
using tests::FileText;
using tests::Outcome;
using Texts = std::vector<std::string>;

/// Runs the program with arguments that hold no spaces.
Outcome Orvane(const std::string& command) {
  std::istringstream words(command);
  return tests::RunOrvane({std::istream_iterator<std::string>(words), {}});
}

/// A scratch folder for each test, which is the current one meanwhile.
class CommandLine : public testing::Test {
 protected:
  void SetUp() override {
    fs::current_path(m_folder.Path());
    Write("t.csv", "m,a,b\nx,1,2\ny,3,4\n");
  }
  void TearDown() override { fs::current_path("/"); }

  static void Write(const std::string& file, const std::string& text) {
    std::ofstream(file, std::ios::binary) << text;
  }
  /// Names of the files in the current folder, sorted.
  static Texts Files() {
    Texts names;
    for (const auto& entry : fs::directory_iterator(".")) names.push_back(entry.path().filename());
    std::sort(names.begin(), names.end());
    return names;
  }

 private:
  tests::ScratchFolder m_folder;
};

TEST_F(CommandLine, WritesAWorldAndItsProtoFiles) {
  EXPECT_EQ(Orvane("chart area t.csv -o t.wrl --proto-prefix ../p/").status, 0);
  EXPECT_EQ(Files(), (Texts{"t.csv", "t.wrl"})) << "no PROTO files where there is a prefix";
  EXPECT_NE(FileText("t.wrl").find("[ \"../p/VR_UI.wrl#qm4_CheckBox\" ]"), std::string::npos);

  const Outcome outcome = Orvane("chart area t.csv -o t.wrl --title A,B");
  EXPECT_EQ(outcome.status, 0) << outcome.err;
  EXPECT_EQ(outcome.out + outcome.err, "");
  EXPECT_EQ(Files(), (Texts{"VR_GRAPH.wrl", "VR_NAV.wrl", "VR_UI.wrl", "t.csv", "t.wrl"}));
  const std::string world = FileText("t.wrl");
  EXPECT_TRUE(world.starts_with("#VRML V2.0 utf8\n"));
  EXPECT_NE(world.find("[ \"VR_GRAPH.wrl#qm4_ChartGrid\" ]"), std::string::npos);
  EXPECT_NE(world.find("\"A,B\""), std::string::npos);
}

/// `text` without the declaration and the instances of the PROTO `type`.
std::string Without(std::string text, const std::string& type) {
  text.erase(text.find("#" + type), type.size() + 1);  // The end of the declaration's location.
  for (auto at = text.find(type); at != std::string::npos; at = text.find(type, at)) {
    auto end = text.find_first_of("[{", at);
    int depth = 0;
    do {
      depth += text[end] == '{' || text[end] == '[';
      depth -= text[end] == '}' || text[end] == ']';
    } while (++end < text.size() && depth > 0);
    text.erase(at, end - at);
  }
  return text;
}

TEST_F(CommandLine, ChartsAreasAndRibbonsAlikeButForTheShapesOfTheirSeries) {
  const auto chart = [](const std::string& kind) {
    return Orvane("chart " + kind + " t.csv -o -").out;
  };
  const auto build = [](const std::string& kind) {
    Write("m.json", "{\"chart\": \"" + kind + R"(",
        "GridProps": {"ZAxisCellCount": 2}, "LegendProps": {"UseSeriesToggle": true},
        "series": [{"Height": [1, 3, 2], "PopupProps": {"UsePopups": true}}, {}]})");
    return Orvane("build m.json -o -").out;
  };
  const std::pair<std::string, std::string> pairs[] = {{chart("area"), chart("ribbon")},
                                                       {build("AreaGraph"), build("RibbonGraph")}};
  for (const auto& [areas, ribbons] : pairs) {
    EXPECT_NE(areas.find("qm4_PopupStrip {"), std::string::npos);
    EXPECT_NE(areas.find("ROUTE CHECK_BOX_2.value_changed"), std::string::npos);
    EXPECT_EQ(Without(areas, "qm4_OutlinedAreaSeries"),
              Without(ribbons, "qm4_OutlinedRibbonSeries"));
  }
}

TEST_F(CommandLine, WritesWhatItsOptionsSayToStandardOutputAlone) {
  Write("gap.csv", "Plan,a,b\nx,,2\ny,3,4\n");
  Write("pie.csv", "m,a\nx,1\ny,\n");
  Write("p.csv", "x,y,z,frame\n1,2,3,a\n2,3,4,b\n5,6,7,c\n");
  const auto files = Files();
  const Texts plan = {"SURFACE_1.set_contentsExist", "\"Plan\"", "qm4_ElevationWireframe"};
  const struct {
    std::string command;
    Texts present, absent;
  } cases[] = {
      {"surface gap.csv --missing zero", plan, {"Series {"}},
      {"column-surface t.csv --surface gap.csv --missing zero", plan, {"qm4_Rounded"}},
      {"column-surface t.csv --surface gap.csv --missing zero", {"qm4_OutlinedColumnSeries {"}, {}},
      {"ribbon-surface t.csv --surface gap.csv --missing zero", plan, {"qm4_Rounded"}},
      {"ribbon-surface t.csv --surface gap.csv --missing zero --style rounded",
       {"qm4_RoundedRibbonSeries {"},
       {}},
      {"area gap.csv --missing zero --size 10,5,2.5 --background #ff0000 --no-toggles --no-popups",
       {"skyColor [ 1 0 0 ]", "xSpacing 5", "zSpacing 1.25"},
       {"qm4_CheckBox", "qm4_PopupStrip"}},
      {"pie pie.csv --missing zero --style ring --labels always --spin",
       {"qm4_RoundedRingSlice", "SPIN_AXIS.rotation_changed", "\"100.0 %\""},
       {"SLICE_TEXT_TOGGLE_"}},
      {"scatter p.csv --loop continuous --frame-seconds 2.5 --title Points",
       {"cycleInterval 7.5", "loop TRUE", "\"Points\""},
       {"FRAME_SLIDER"}},
      {"scatter p.csv --animate slider", {"maxValue 2"}, {"TIME_KEEPER"}},
  };
  for (const auto& [command, present, absent] : cases) {
    SCOPED_TRACE(command);
    const Outcome outcome = Orvane("chart " + command + " -o -");
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(outcome.err, "");
    EXPECT_TRUE(outcome.out.starts_with("#VRML V2.0 utf8\n"));
    for (const auto& part : present) EXPECT_NE(outcome.out.find(part), std::string::npos) << part;
    for (const auto& part : absent) EXPECT_EQ(outcome.out.find(part), std::string::npos) << part;
    EXPECT_EQ(Files(), files);
  }
}

TEST_F(CommandLine, ChartsDensitiesAndTellsTheSigmaItTook) {
  Write("p.csv", "x,z,Kind\n0,0,a\n4,0,a\n0,4,b\n4,4,b\n");
  const Outcome ruled = Orvane("chart density p.csv -o -");
  EXPECT_EQ(ruled.status, 0);
  EXPECT_TRUE(ruled.err.ends_with(" by Silverman's rule of thumb\n")) << ruled.err;
  EXPECT_NE(ruled.out.find("SURFACE_2.set_contentsExist"), std::string::npos);
  const std::string sigma = ruled.err.substr(8, ruled.err.find(' ', 8) - 8);
  const Outcome given = Orvane("chart density p.csv -o - --sigma " + sigma);
  EXPECT_EQ(given.err, "");
  EXPECT_TRUE(given.out.starts_with("#VRML V2.0 utf8"));
  const Outcome wide = Orvane("chart density p.csv -o - --sigma 9");
  EXPECT_NE(wide.out, given.out);
}

TEST_F(CommandLine, BuildsModelsAndWritesProtoFiles) {
  Write("m.json", R"({"chart": "AreaGraph", "TitleProps": {"Text": "Model"}})");
  EXPECT_EQ(Orvane("build m.json -o m.wrl").status, 0);
  EXPECT_NE(FileText("m.wrl").find("\"Model\""), std::string::npos);

  EXPECT_EQ(Orvane("protos a/b").status, 0);
  for (const ProtoFile& proto : ProtoFiles()) {
    EXPECT_EQ(FileText("a/b/" + proto.name), FileText(ORVANE_PROTO_DIR "/" + proto.name));
    EXPECT_EQ(FileText(proto.name), proto.text);
  }
}

TEST_F(CommandLine, PrintsTheObjectModelAsDocumented) {
  const Outcome all = Orvane("types");
  EXPECT_EQ(all.status, 0);
  EXPECT_TRUE(all.out == FileText(ORVANE_SOURCE_DIR "/docs/object-model.md"))
      << "docs/object-model.md is not what `orvane types` prints";

  const Outcome one = Orvane("types gridinfo");
  EXPECT_TRUE(one.out.starts_with("## GridInfo\n"));
  EXPECT_NE(one.out.find("| `Width` | Single | get, let |"), std::string::npos);
}

TEST_F(CommandLine, RejectsBadInputAndLeavesFilesAlone) {
  Write("empty.csv", "");
  Write("bad.csv", "m,a\nx,abc\n");
  Write("negative.csv", "m,a\nx,-1\n");
  Write("bad.json", "{\"chart\": \"AreaGraph\", \"GridProps\": {\"Width\": 0}}");
  Write("model.wrl", "{\"chart\": \"AreaGraph\"}");
  Write("grid.csv", "m,a,b\nx,1,2\ny,3,4\n");
  fs::create_symlink("grid.csv", "link.wrl");
  fs::create_directory("folder");
  const std::string before = "what was there before";
  for (const char* file : {"o.wrl", "VR_GRAPH.wrl"}) Write(file, before);
  const auto files = Files();

  const struct {
    int status;
    std::string command, message;
  } cases[] = {
      {1, "chart area none.csv -o o.wrl", "none.csv: cannot be read: No such file or directory\n"},
      {1, "chart area folder -o o.wrl", "folder: cannot be read: Is a directory\n"},
      {1, "chart area empty.csv -o o.wrl", "empty.csv:1:1: the file is empty\n"},
      {1, "chart area bad.csv -o o.wrl", "bad.csv:2:3: \"abc\" is not a number\n"},
      {1, "chart area bad.csv -o -", "bad.csv:2:3: \"abc\" is not a number\n"},
      {1, "chart area t.csv -o folder", "folder: cannot be written: Is a directory\n"},
      {1, "chart area t.csv -o no/o.wrl",
       "no/VR_GRAPH.wrl: cannot be written: No such file or directory\n"},
      {1, "chart surface bad.csv -o o.wrl", "bad.csv:2:3: \"abc\" is not a number\n"},
      {2, "chart column-surface t.csv -o o.wrl", "--surface is required\n"},
      {1, "chart ribbon-surface t.csv --surface none.csv -o o.wrl",
       "none.csv: cannot be read: No such file or directory\n"},
      {1, "build bad.json -o o.wrl",
       "bad.json:1:47: GridProps.Width: The graph must be wider than 0\n"},
      {1, "protos o.wrl", "o.wrl: cannot be made: Not a directory\n"},
      {2, "", "A subcommand is required\n"},
      {2, "chart cake", "there is no chart \"cake\"; there are area, column, ribbon, pie, "},
      {2, "chart area t.csv", "--output is required\n"},
      {2, "chart area -o o.wrl", "table is required\n"},
      {2, "chart area t.csv -o o.wrl --proto-prefix p", "--proto-prefix: must end in / or \\\n"},
      {2, "chart area t.csv -o o.wrl --size 1,2", "--size: 1,2 is not three numbers: W,H,D\n"},
      {2, "chart area t.csv -o o.wrl --size 1,0,3",
       "--size: 0 is not a number from 0.1 to 10000\n"},
      {2, "chart area t.csv -o o.wrl --size nan,1,3",
       "--size: nan is not a number from 0.1 to 10000\n"},
      {2, "chart area t.csv -o o.wrl --background red",
       "--background: red is not a colour (#rrggbb)\n"},
      {2, "chart area t.csv -o o.wrl --missing one",
       "--missing: one is not one of error|zero|previous|linear\n"},
      {1, "chart pie negative.csv -o o.wrl", "negative.csv:2:3: the value -1 is negative\n"},
      {2, "chart pie t.csv --style flat -o o.wrl",
       "--style: flat is not one of outlined|rounded|ring\n"},
      {1, "chart density bad.csv -o o.wrl", "bad.csv:2:1: \"x\" is not a number\n"},
      {2, "chart density bad.csv -o o.wrl --sigma 0",
       "--sigma: 0 is not a number from 0.001 to 10000\n"},
      {1, "chart scatter t.csv -o o.wrl", "t.csv:1:6: the header names no x column\n"},
      {2, "chart scatter t.csv -o o.wrl --frame-seconds 0.9",
       "--frame-seconds: 0.9 is not a number from 1 to 3600\n"},
      {2, "chart scatter t.csv -o o.wrl --loop twice", "--loop: "},
      {2, "chart area t.csv -o t.csv", "--output: t.csv ends in none of .wrl, "},
      {2, "chart area t.csv -o o", "--output: o ends in none of .wrl, "},
      {1, "chart ribbon-surface t.csv --surface grid.csv -o link.wrl",
       "link.wrl: cannot be written: it is read by this command\n"},
      {1, "build model.wrl -o ./model.wrl",
       "./model.wrl: cannot be written: it is read by this command\n"},
      {1, "chart area t.csv -o folder/../VR_UI.wrl",
       "folder/../VR_UI.wrl: cannot be written: it is another file of this command\n"},
      {2, "chart area t.csv -o o.wrl --title \xff", "argument 7 is not UTF-8\n"},
      {2, "types Nothing", "there is no class \"Nothing\"\n"},
  };
  for (const auto& [status, command, message] : cases) {
    SCOPED_TRACE(command);
    const Outcome outcome = Orvane(command);
    EXPECT_EQ(outcome.status, status);
    EXPECT_TRUE(outcome.err.starts_with(message)) << outcome.err;
    EXPECT_EQ(outcome.out, "");
    EXPECT_EQ(Files(), files);
    EXPECT_EQ(FileText("o.wrl"), before);
    EXPECT_EQ(FileText("VR_GRAPH.wrl"), before);
  }
}

TEST_F(CommandLine, HelpsOnRequest) {
  const Outcome outcome = Orvane("chart area --help");
  EXPECT_EQ(outcome.status, 0);
  EXPECT_NE(outcome.out.find("--proto-prefix"), std::string::npos);
}

}  // namespace
}  // namespace orvane::tool
