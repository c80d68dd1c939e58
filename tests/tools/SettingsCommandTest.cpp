/// The user's settings at the command line: shown, set with their checks, and honoured by worlds.
#include "support/Program.h"
#include "support/ScratchFolder.h"

#include <algorithm>
#include <vector>

#include <gtest/gtest.h>

namespace orvane::tool {
namespace {

namespace fs = std::filesystem;
using tests::FileText;

class SettingsCommand : public testing::Test {
 protected:
  void SetUp() override {
    m_config = std::getenv("XDG_CONFIG_HOME");
    setenv("XDG_CONFIG_HOME", At("config").c_str(), 1);
    for (const char* folder : {"worlds/2024", "protos", "a #b"}) fs::create_directories(At(folder));
    std::ofstream(At("t.csv")) << "m,a\nx,1\n";
    std::ofstream(At("m.json")) << R"({"chart": "AreaGraph"})";
  }
  void TearDown() override { setenv("XDG_CONFIG_HOME", m_config.c_str(), 1); }

  std::string At(const std::string& name) const { return (m_folder.Path() / name).string(); }

  /// Standard output, or the message where the command fails.
  std::string Orvane(const std::vector<std::string>& arguments, int status = 0) {
    const auto outcome = tests::RunOrvane(arguments);
    EXPECT_EQ(outcome.status, status) << outcome.err;
    return outcome.out + outcome.err;
  }
  /// What a world written to `file`, by chart and by build, puts in front of "VR_GRAPH.wrl".
  std::string PrefixOf(const std::string& file, const std::vector<std::string>& more = {}) {
    std::string prefix;
    for (std::vector<std::string> command :
         {std::vector<std::string>{"chart", "area", At("t.csv")}, {"build", At("m.json")}}) {
      command.insert(command.end(), {"-o", file});
      command.insert(command.end(), more.begin(), more.end());
      const std::string out = Orvane(command);
      const std::string world = file == "-" ? out : FileText(file);
      const auto end = world.find("VR_GRAPH.wrl#qm4_ChartGrid");
      const auto start = world.rfind('"', end) + 1;
      const std::string found = world.substr(start, end - start);
      EXPECT_TRUE(prefix.empty() || prefix == found) << prefix << " and " << found;
      prefix = found;
    }
    return prefix;
  }
  std::string Shown(const std::string& protoDir, const std::string& outputDir,
                    const std::string& files) const {
    return "ProtoDir: " + protoDir + "\nOutputDir:" + (outputDir.empty() ? "" : " ") + outputDir +
           "\nPROTO files: " + files + "\n";
  }

  tests::ScratchFolder m_folder;
  std::string m_config;
};

TEST_F(SettingsCommand, LeavesProtosBesideTheWorldUntilSomethingIsSet) {
  EXPECT_EQ(Orvane({"settings"}), Shown("/", "/", "beside each world"));
  EXPECT_FALSE(fs::exists(At("config"))) << "showing writes nothing";
  EXPECT_EQ(PrefixOf(At("worlds/w.wrl")), "");
  EXPECT_TRUE(fs::exists(At("worlds/VR_UI.wrl")));
  EXPECT_EQ(PrefixOf("-"), "");
}

TEST_F(SettingsCommand, LeadsWorldsFromTheirFolderToTheProtos) {
  EXPECT_EQ(Orvane({"settings", "--proto-dir", At("protos"), "--output-dir", At("worlds")}),
            Shown(At("protos"), At("worlds"), "../protos/ from OutputDir"));
  std::string stored = "C:" + At("protos");
  std::ranges::replace(stored, '/', '\\');
  EXPECT_NE(FileText(At("config/NVOCX/settings.ini")).find("ProtoDir=" + stored + "\n"),
            std::string::npos);
  EXPECT_EQ(PrefixOf(At("worlds/w.wrl")), "../protos/");
  EXPECT_EQ(PrefixOf(At("worlds/2024/w.wrl")), "../../protos/");
  EXPECT_EQ(PrefixOf(At("w.wrl")), "protos/");
  EXPECT_EQ(PrefixOf("-"), "../protos/");
  EXPECT_EQ(PrefixOf(At("w.wrl"), {"--proto-prefix", "x/"}), "x/");
  for (const char* folder : {"worlds", "worlds/2024", "."}) {
    EXPECT_FALSE(fs::exists(m_folder.Path() / folder / "VR_UI.wrl")) << folder;
  }
  EXPECT_EQ(PrefixOf(At("protos/w.wrl")), "");
  EXPECT_TRUE(fs::exists(At("protos/VR_UI.wrl")));

  EXPECT_EQ(Orvane({"settings", "--proto-dir", At("a #b")}),
            Shown(At("a #b"), At("worlds"), "../a%20%23b/ from OutputDir"));
  EXPECT_EQ(PrefixOf("-"), "../a%20%23b/");
  EXPECT_EQ(Orvane({"settings", "--proto-dir", "/", "--output-dir", "/"}),
            Shown("/", "/", "beside each world"));
  EXPECT_EQ(PrefixOf(At("w.wrl")), "");
  EXPECT_TRUE(fs::exists(At("VR_UI.wrl")));
}

TEST_F(SettingsCommand, LeadsEveryWorldToAUrl) {
  const char* const url = "HTTPS://example.org/p/";
  EXPECT_EQ(Orvane({"settings", "--proto-dir", url}), Shown(url, "", url));
  EXPECT_EQ(FileText(At("config/NVOCX/settings.ini")),
            std::string("[ProtoPath]\nOutputDir=\nProtoDir=") + url + "\n");
  EXPECT_EQ(PrefixOf(At("worlds/w.wrl")), url);
  EXPECT_EQ(PrefixOf("-"), url);
  EXPECT_FALSE(fs::exists(At("worlds/VR_UI.wrl")));
}

TEST_F(SettingsCommand, RefusesWhatThePageOrTheControlRefuses) {
  const std::string none = "orvane: There is no folder \"" + At("none") + "\"\n";
  const std::pair<std::vector<std::string>, std::string> refused[] = {
      {{"--proto-dir", At("none")}, none},
      {{"--proto-dir", At("protos"), "--output-dir", At("none")}, none},
      {{"--proto-dir", " http://x/p/"}, "orvane: There is no folder \" http://x/p/\"\n"},
      {{"--proto-dir", "http://x/p"}, "The proto relative path must end with either a / or \\.\n"},
      {{"--proto-dir", "http://x/p/", "--output-dir", At("worlds")},
       "OutputDir goes with a folder of PROTO files, not with a URL\n"}};
  Orvane({"settings", "--proto-dir", At("protos"), "--output-dir", At("worlds")});
  const std::string before = FileText(At("config/NVOCX/settings.ini"));
  for (auto [options, message] : refused) {
    options.insert(options.begin(), "settings");
    EXPECT_EQ(Orvane(options, 1), message);
    EXPECT_EQ(FileText(At("config/NVOCX/settings.ini")), before) << message;
  }
  Orvane({"settings", "--proto-dir", "http://x/p/"});
  EXPECT_EQ(Orvane({"settings", "--output-dir", At("worlds")}, 1),
            "ProtoDir is a URL; to set OutputDir, set ProtoDir to a folder with it\n");
}

}  // namespace
}  // namespace orvane::tool
