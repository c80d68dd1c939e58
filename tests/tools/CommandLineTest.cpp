/// The program as a whole: files, exit statuses, messages.
#include "CommandLine.h"
#include "ProtoFiles.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <sstream>

#include <gtest/gtest.h>

namespace orvane::tool {
namespace {

namespace fs = std::filesystem;

std::string TextOf(const fs::path& file) {
  std::ostringstream text;
  text << std::ifstream(file, std::ios::binary).rdbuf();
  return text.str();
}

struct Outcome {
  int status;
  std::string out;
  std::string err;
};

Outcome Orvane(std::vector<std::string> arguments) {
  arguments.insert(arguments.begin(), "orvane");
  std::vector<const char*> argv;
  for (const auto& argument : arguments) argv.push_back(argument.c_str());
  std::ostringstream out;
  std::ostringstream err;
  const int status = RunCommandLine(static_cast<int>(argv.size()), argv.data(), out, err);
  return {status, out.str(), err.str()};
}

/// A scratch folder for each test, which is the current one meanwhile.
class CommandLine : public testing::Test {
 protected:
  void SetUp() override {
    const std::string name = testing::UnitTest::GetInstance()->current_test_info()->name();
    m_folder = fs::path(testing::TempDir()) / ("orvane-" + name);
    fs::remove_all(m_folder);
    fs::create_directories(m_folder);
    fs::current_path(m_folder);
    Write("t.csv", "m,a,b\nx,1,2\ny,3,4\n");
  }
  void TearDown() override {
    fs::current_path(m_folder.parent_path());
    fs::remove_all(m_folder);
  }

  static void Write(const std::string& file, const std::string& text) {
    std::ofstream(file, std::ios::binary) << text;
  }
  /// Names of the files in the current folder, sorted.
  static std::vector<std::string> Files() {
    std::vector<std::string> names;
    for (const auto& entry : fs::directory_iterator(".")) names.push_back(entry.path().filename());
    std::sort(names.begin(), names.end());
    return names;
  }

 private:
  fs::path m_folder;
};

TEST_F(CommandLine, WritesAWorldAndItsProtoFiles) {
  const Outcome outcome = Orvane({"chart", "area", "t.csv", "-o", "t.wrl", "--title", "A, B"});
  EXPECT_EQ(outcome.status, 0) << outcome.err;
  EXPECT_EQ(outcome.out + outcome.err, "");
  EXPECT_EQ(Files(), (std::vector<std::string>{"VR_GRAPH.wrl", "VR_NAV.wrl", "VR_UI.wrl", "t.csv",
                                               "t.wrl"}));
  const std::string world = TextOf("t.wrl");
  EXPECT_TRUE(world.starts_with("#VRML V2.0 utf8\n"));
  EXPECT_NE(world.find("[ \"VR_GRAPH.wrl#qm4_ChartGrid\" ]"), std::string::npos);
  EXPECT_NE(world.find("\"A, B\""), std::string::npos);
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
    return Orvane({"chart", kind, "t.csv", "-o", "-"}).out;
  };
  const auto build = [](const std::string& kind) {
    Write("m.json", "{\"chart\": \"" + kind + R"(",
        "GridProps": {"ZAxisCellCount": 2}, "LegendProps": {"UseSeriesToggle": true},
        "series": [{"Height": [1, 3, 2], "PopupProps": {"UsePopups": true}}, {}]})");
    return Orvane({"build", "m.json", "-o", "-"}).out;
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

TEST_F(CommandLine, ChartsSurfaces) {
  Write("gap.csv", "Plan,a,b\nx,,2\ny,3,4\n");
  const std::pair<std::vector<std::string>, const char*> cases[] = {
      {{"surface", "gap.csv"}, "qm4_ElevationWireframe"},
      {{"column-surface", "t.csv", "--surface", "gap.csv"}, "qm4_OutlinedColumnSeries"},
      {{"ribbon-surface", "t.csv", "--surface", "gap.csv", "--style", "rounded"},
       "qm4_RoundedRibbonSeries"}};
  for (auto [arguments, shape] : cases) {
    arguments.insert(arguments.begin(), "chart");
    arguments.insert(arguments.end(), {"--missing", "zero", "-o", "-"});
    const Outcome outcome = Orvane(arguments);
    EXPECT_EQ(outcome.status, 0) << outcome.err;
    EXPECT_NE(outcome.out.find(shape), std::string::npos);
    EXPECT_NE(outcome.out.find("SURFACE_1.set_contentsExist"), std::string::npos);
    EXPECT_NE(outcome.out.find("\"Plan\""), std::string::npos);
  }
}

TEST_F(CommandLine, PutsThePrefixAndNoProtoFiles) {
  EXPECT_EQ(Orvane({"chart", "area", "t.csv", "-o", "t.wrl", "--proto-prefix", "../p/"}).status, 0);
  EXPECT_EQ(Files(), (std::vector<std::string>{"t.csv", "t.wrl"}));
  EXPECT_NE(TextOf("t.wrl").find("[ \"../p/VR_UI.wrl#qm4_CheckBox\" ]"), std::string::npos);
}

TEST_F(CommandLine, WritesToStandardOutputAlone) {
  const Outcome outcome = Orvane({"chart", "area", "t.csv", "-o", "-"});
  EXPECT_EQ(outcome.status, 0);
  EXPECT_TRUE(outcome.out.starts_with("#VRML V2.0 utf8\n"));
  EXPECT_EQ(Files(), std::vector<std::string>{"t.csv"});
}

TEST_F(CommandLine, AppliesItsOptions) {
  Write("gaps.csv", "m,a\nx,\ny,3\n");
  const Outcome outcome =
      Orvane({"chart", "area", "gaps.csv", "-o", "-", "--missing", "zero", "--size", "10,5,2.5",
              "--background", "#ff0000", "--no-toggles", "--no-popups"});
  EXPECT_EQ(outcome.status, 0) << outcome.err;
  for (const char* part : {"skyColor [ 1 0 0 ]", "xSpacing 5", "zSpacing 2.5"}) {
    EXPECT_NE(outcome.out.find(part), std::string::npos) << part;
  }
  for (const char* part : {"qm4_CheckBox", "qm4_PopupStrip"}) {
    EXPECT_EQ(outcome.out.find(part), std::string::npos) << part;
  }
}

TEST_F(CommandLine, AppliesTheOptionsOfPies) {
  Write("pie.csv", "m,a\nx,1\ny,\n");
  const Outcome outcome = Orvane({"chart", "pie", "pie.csv", "-o", "-", "--missing", "zero",
                                  "--style", "ring", "--labels", "always", "--spin"});
  EXPECT_EQ(outcome.status, 0) << outcome.err;
  for (const char* part : {"qm4_RoundedRingSlice", "SPIN_AXIS.rotation_changed", "\"100.0 %\""}) {
    EXPECT_NE(outcome.out.find(part), std::string::npos) << part;
  }
  EXPECT_EQ(outcome.out.find("SLICE_TEXT_TOGGLE_"), std::string::npos);
}

TEST_F(CommandLine, ChartsPoints) {
  Write("p.csv", "x,y,z,frame\n1,2,3,a\n2,3,4,b\n5,6,7,c\n");
  const Outcome smooth = Orvane({"chart", "scatter", "p.csv", "-o", "-", "--loop", "continuous",
                                 "--frame-seconds", "2.5", "--title", "Points"});
  EXPECT_EQ(smooth.status, 0) << smooth.err;
  for (const char* part : {"cycleInterval 7.5", "loop TRUE", "\"Points\""}) {
    EXPECT_NE(smooth.out.find(part), std::string::npos) << part;
  }
  const Outcome slider = Orvane({"chart", "scatter", "p.csv", "-o", "-", "--animate", "slider"});
  EXPECT_EQ(slider.status, 0) << slider.err;
  EXPECT_NE(slider.out.find("maxValue 2"), std::string::npos);
  EXPECT_EQ(slider.out.find("TIME_KEEPER"), std::string::npos);
}

TEST_F(CommandLine, ChartsDensitiesAndTellsTheSigmaItTook) {
  Write("p.csv", "x,z,Kind\n0,0,a\n4,0,a\n0,4,b\n4,4,b\n");
  const Outcome ruled = Orvane({"chart", "density", "p.csv", "-o", "-"});
  EXPECT_EQ(ruled.status, 0);
  EXPECT_TRUE(ruled.err.ends_with(" by Silverman's rule of thumb\n")) << ruled.err;
  EXPECT_NE(ruled.out.find("SURFACE_2.set_contentsExist"), std::string::npos);
  const std::string sigma = ruled.err.substr(8, ruled.err.find(' ', 8) - 8);
  const Outcome given = Orvane({"chart", "density", "p.csv", "--sigma", sigma, "-o", "-"});
  EXPECT_EQ(given.err, "");
  EXPECT_TRUE(given.out.starts_with("#VRML V2.0 utf8"));
  const Outcome wide = Orvane({"chart", "density", "p.csv", "--sigma", "9", "-o", "-"});
  EXPECT_NE(wide.out, given.out);
}

TEST_F(CommandLine, BuildsModelsAndWritesProtoFiles) {
  Write("m.json", R"({"chart": "AreaGraph", "TitleProps": {"Text": "Model"}})");
  EXPECT_EQ(Orvane({"build", "m.json", "-o", "m.wrl"}).status, 0);
  EXPECT_NE(TextOf("m.wrl").find("\"Model\""), std::string::npos);

  EXPECT_EQ(Orvane({"protos", "a/b"}).status, 0);
  for (const ProtoFile& proto : ProtoFiles()) {
    EXPECT_EQ(TextOf("a/b/" + proto.name), TextOf(ORVANE_SOURCE_DIR "/protos/" + proto.name));
    EXPECT_EQ(TextOf(proto.name), proto.text);
  }
}

TEST_F(CommandLine, PrintsTheObjectModelAsDocumented) {
  const Outcome all = Orvane({"types"});
  EXPECT_EQ(all.status, 0);
  EXPECT_TRUE(all.out == TextOf(ORVANE_SOURCE_DIR "/docs/object-model.md"))
      << "docs/object-model.md is not what `orvane types` prints";

  const Outcome one = Orvane({"types", "gridinfo"});
  EXPECT_TRUE(one.out.starts_with("## GridInfo\n"));
  EXPECT_NE(one.out.find("| `Width` | Single | get, let |"), std::string::npos);
}

struct Rejected {
  std::vector<std::string> arguments;
  int status;
  std::string message;
};

TEST_F(CommandLine, RejectsBadInputAndLeavesFilesAlone) {
  Write("empty.csv", "");
  Write("bad.csv", "m,a\nx,abc\n");
  Write("negative.csv", "m,a\nx,-1\n");
  Write("bad.json", "{\"chart\": \"AreaGraph\", \"GridProps\": {\"Width\": 0}}");
  fs::create_directory("folder");
  const std::string before = "what was there before";
  for (const char* file : {"o.wrl", "VR_GRAPH.wrl"}) Write(file, before);
  const auto files = Files();

  const auto area = [](std::vector<std::string> more) {
    more.insert(more.begin(), {"chart", "area"});
    return more;
  };
  const Rejected cases[] = {
      {area({"none.csv", "-o", "o.wrl"}), 1,
       "none.csv: cannot be read: No such file or directory\n"},
      {area({"folder", "-o", "o.wrl"}), 1, "folder: cannot be read: Is a directory\n"},
      {area({"empty.csv", "-o", "o.wrl"}), 1, "empty.csv:1:1: the file is empty\n"},
      {area({"bad.csv", "-o", "o.wrl"}), 1, "bad.csv:2:3: \"abc\" is not a number\n"},
      {area({"bad.csv", "-o", "-"}), 1, "bad.csv:2:3: \"abc\" is not a number\n"},
      {area({"t.csv", "-o", "folder"}), 1, "folder: cannot be written: Is a directory\n"},
      {area({"t.csv", "-o", "no/o.wrl"}), 1,
       "no/VR_GRAPH.wrl: cannot be written: No such file or directory\n"},
      {{"chart", "surface", "bad.csv", "-o", "o.wrl"}, 1, "bad.csv:2:3: \"abc\" is not a number\n"},
      {{"chart", "column-surface", "t.csv", "-o", "o.wrl"}, 2, "--surface is required\n"},
      {{"chart", "ribbon-surface", "t.csv", "--surface", "none.csv", "-o", "o.wrl"},
       1,
       "none.csv: cannot be read: No such file or directory\n"},
      {{"build", "bad.json", "-o", "o.wrl"},
       1,
       "bad.json:1:47: GridProps.Width: The graph must be wider than 0\n"},
      {{"protos", "o.wrl"}, 1, "o.wrl: cannot be made: Not a directory\n"},
      {{}, 2, "A subcommand is required\n"},
      {{"chart", "cake"}, 2, "A subcommand is required\n"},
      {area({"t.csv"}), 2, "--output is required\n"},
      {area({"-o", "o.wrl"}), 2, "table is required\n"},
      {area({"t.csv", "-o", "o.wrl", "--proto-prefix", "p"}), 2,
       "--proto-prefix: must end in / or \\\n"},
      {area({"t.csv", "-o", "o.wrl", "--size", "1,2"}), 2,
       "--size: At least 3 required but received 2\n"},
      {area({"t.csv", "-o", "o.wrl", "--size", "1,0,3"}), 2,
       "--size: 0 is not a number from 0.1 to 10000\n"},
      {area({"t.csv", "-o", "o.wrl", "--size", "nan,1,3"}), 2,
       "--size: nan is not a number from 0.1 to 10000\n"},
      {area({"t.csv", "-o", "o.wrl", "--background", "red"}), 2,
       "--background: red is not a colour (#rrggbb)\n"},
      {area({"t.csv", "-o", "o.wrl", "--missing", "one"}), 2, "--missing: one is not zero\n"},
      {{"chart", "pie", "negative.csv", "-o", "o.wrl"},
       1,
       "negative.csv:2:3: the value -1 is negative\n"},
      {{"chart", "pie", "t.csv", "--style", "flat", "-o", "o.wrl"}, 2, "--style: flat not in {"},
      {{"chart", "density", "bad.csv", "-o", "o.wrl"}, 1, "bad.csv:2:1: \"x\" is not a number\n"},
      {{"chart", "density", "bad.csv", "-o", "o.wrl", "--sigma", "0"},
       2,
       "--sigma: 0 is not a number from 0.001 to 10000\n"},
      {{"chart", "scatter", "t.csv", "-o", "o.wrl"},
       1,
       "t.csv:1:6: the header names no x column\n"},
      {{"chart", "scatter", "t.csv", "-o", "o.wrl", "--frame-seconds", "0.9"},
       2,
       "--frame-seconds: 0.9 is not a number from 1 to 3600\n"},
      {{"chart", "scatter", "t.csv", "-o", "o.wrl", "--loop", "twice"}, 2, "--loop: "},
      {{"types", "Nothing"}, 2, "there is no class \"Nothing\"\n"},
  };
  for (const Rejected& rejected : cases) {
    const Outcome outcome = Orvane(rejected.arguments);
    const std::string what = testing::PrintToString(rejected.arguments);
    EXPECT_EQ(outcome.status, rejected.status) << what;
    EXPECT_TRUE(outcome.err.starts_with(rejected.message)) << what << "\n" << outcome.err;
    EXPECT_EQ(outcome.out, "") << what;
    EXPECT_EQ(Files(), files) << what;
    EXPECT_EQ(TextOf("o.wrl"), before) << what;
    EXPECT_EQ(TextOf("VR_GRAPH.wrl"), before) << what;
  }
}

TEST_F(CommandLine, ReplacesFilesThroughLinks) {
  const std::string real(255, 'n');  // As long as names may be.
  fs::create_symlink(real, "link.wrl");
  // The file is there the second time alone.
  for (const auto& [kind, series] : {std::pair("area", "AreaSeries"), {"column", "ColumnSeries"}}) {
    EXPECT_EQ(Orvane({"chart", kind, "t.csv", "-o", "link.wrl"}).status, 0);
    EXPECT_TRUE(fs::is_symlink("link.wrl"));
    EXPECT_NE(TextOf(real).find(series), std::string::npos);
  }
}

TEST_F(CommandLine, HelpsOnRequest) {
  const Outcome outcome = Orvane({"chart", "area", "--help"});
  EXPECT_EQ(outcome.status, 0);
  EXPECT_NE(outcome.out.find("--proto-prefix"), std::string::npos);
}

}  // namespace
}  // namespace orvane::tool
