/// Files are written whole or not at all.

#include "support/Raises.h"

#include "orvane/scene/GroupingNodes.h"
#include "orvane/scene/Traversers.h"
#include "orvane/scene/frmMain.h"

#include <filesystem>
#include <fstream>
#include <iterator>

#include <gtest/gtest.h>

namespace orvane::scene {
namespace {

namespace fs = std::filesystem;

class FileTraverser : public testing::Test {
 protected:
  void SetUp() override {
    m_folder = fs::temp_directory_path() / ("orvane_" + std::to_string(::getpid()));
    fs::create_directory(m_folder);
  }
  void TearDown() override { fs::remove_all(m_folder); }

  bool Write(const std::string& name, const std::shared_ptr<Node>& root) {
    return VRMLFileTraverser().Traverse((m_folder / name).string(), root,
                                        std::make_shared<RouteList>());
  }
  std::string Read(const std::string& name) {
    std::ifstream file(m_folder / name, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
  }
  std::ptrdiff_t FileCount() {
    return std::distance(fs::directory_iterator(m_folder), fs::directory_iterator());
  }

  fs::path m_folder;
};

TEST_F(FileTraverser, ReplacesTheFileAndLeavesNothingElse) {
  std::ofstream(m_folder / "Größe.wrl") << "old";
  EXPECT_TRUE(Write("Größe.wrl", Create<Group>()));
  EXPECT_EQ(Read("Größe.wrl"), "#VRML V2.0 utf8\nGroup { }\n");
  EXPECT_EQ(FileCount(), 1);
}

TEST_F(FileTraverser, WritesThroughALink) {
  std::ofstream(m_folder / "real.wrl") << "old";
  fs::create_symlink("real.wrl", m_folder / "link.wrl");
  EXPECT_TRUE(Write("link.wrl", Create<Group>()));
  EXPECT_TRUE(fs::is_symlink(m_folder / "link.wrl"));
  EXPECT_EQ(Read("real.wrl"), "#VRML V2.0 utf8\nGroup { }\n");
}

TEST_F(FileTraverser, LeavesTheOldFileWhenItFails) {
  EXPECT_FALSE(Write("nowhere/out.wrl", Create<Group>()));
  EXPECT_FALSE(Write("", Create<Group>()));
  std::ofstream(m_folder / "out.wrl") << "old";
  const auto loop = Create<Group>();
  loop->children.Append(loop);
  EXPECT_EQ(tests::ErrorOf([&] { Write("out.wrl", loop); }).number, host::ErrorNumber::SceneCycle);
  loop->children.Clear();
  EXPECT_EQ(Read("out.wrl"), "old");
  EXPECT_EQ(FileCount(), 1);
}

}  // namespace
}  // namespace orvane::scene
