/// Folders as directory lists show them, and the way back.

#include "support/Raises.h"
#include "support/ScratchFolder.h"

#include "orvane/platform/Directories.h"

#include <algorithm>

#include <gtest/gtest.h>

namespace orvane::host {
namespace {

namespace fs = std::filesystem;

class DirectoryLists : public testing::Test {
 protected:
  void SetUp() override {
    for (const char* folder : {"b/c d", "a", "back\\slash"}) {
      fs::create_directories(m_folder.Path() / folder);
    }
    std::ofstream(m_folder.Path() / "file");
  }
  std::string Dos(std::string path) const {
    path = m_folder.Path().string() + path;
    std::ranges::replace(path, '/', '\\');
    return "C:" + path;
  }

  tests::ScratchFolder m_folder;
  SingleDrive m_drive;
};

TEST_F(DirectoryLists, ShowAFolderByDriveAndBackslashes) {
  const std::string root = m_folder.Path().string();
  const std::pair<std::string, std::string> shown[] = {
      {"/", "C:\\"},
      {"C:\\", "C:\\"},
      {"c:/", "C:\\"},
      {"C:", "C:\\"},
      {root + "/b/c d", Dos("/b/c d")},
      {root + "/b/c d/", Dos("/b/c d")},
      {root + "//b/./c d/../", Dos("/b")},
      {Dos("/b/c d"), Dos("/b/c d")},
      {Dos("/b\\c d\\"), Dos("/b/c d")},
  };
  for (const auto& [folder, expected] : shown) {
    EXPECT_EQ(m_drive.Shown(folder), expected) << folder;
    EXPECT_TRUE(fs::equivalent(m_drive.PathOf(expected), m_drive.PathOf(folder))) << folder;
    EXPECT_FALSE(m_drive.PathOf(expected).string().starts_with("//")) << folder;
  }
  const fs::path current = fs::current_path();
  fs::current_path(m_folder.Path() / "b");
  EXPECT_EQ(m_drive.Shown("c d"), Dos("/b/c d"));
  EXPECT_EQ(m_drive.Shown("../a"), Dos("/a"));
  fs::current_path(current);
}

TEST_F(DirectoryLists, RefuseWhatIsNotThereOrCannotBeShown) {
  const std::string root = m_folder.Path().string();
  for (const auto& folder : {std::string(), root + "/none", root + "/file", std::string("D:\\"),
                             Dos("/none"), root + "/back\\slash", std::string("http://x/")}) {
    EXPECT_EQ(tests::ErrorOf([&] { m_drive.Shown(folder); }),
              (tests::Raised{ErrorNumber::PathNotFound, "There is no folder \"" + folder + "\""}));
  }
}

TEST_F(DirectoryLists, ListTheFoldersInOne) {
  EXPECT_EQ(m_drive.FoldersIn(Dos("")), (std::vector<std::string>{"a", "b", "back\\slash"}));
  EXPECT_EQ(m_drive.FoldersIn(Dos("/a")), std::vector<std::string>());
  EXPECT_EQ(m_drive.FoldersIn(Dos("/none")), std::vector<std::string>());
}

}  // namespace
}  // namespace orvane::host
