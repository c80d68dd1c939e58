/// Files are written whole or not at all.

#include "support/Raises.h"
#include "support/ScratchFolder.h"

#include "orvane/scene/GroupingNodes.h"
#include "orvane/scene/Traversers.h"
#include "orvane/scene/frmMain.h"

#include <gtest/gtest.h>

namespace orvane::scene {
namespace {

namespace fs = std::filesystem;

class FileTraverser : public testing::Test {
 protected:
  bool Write(const std::string& name, const std::shared_ptr<Node>& root) {
    return VRMLFileTraverser().Traverse((m_folder / name).string(), root,
                                        std::make_shared<RouteList>());
  }
  std::string Read(const std::string& name) { return tests::FileText(m_folder / name); }
  std::ptrdiff_t FileCount() {
    return std::distance(fs::directory_iterator(m_folder), fs::directory_iterator());
  }

  tests::ScratchFolder m_scratch;
  fs::path m_folder = m_scratch.Path();
};

TEST_F(FileTraverser, ReplacesTheFileAndLeavesNothingElse) {
  std::ofstream(m_folder / "Größe.wrl") << "old";
  EXPECT_TRUE(Write("Größe.wrl", Create<Group>()));
  EXPECT_EQ(Read("Größe.wrl"), "#VRML V2.0 utf8\nGroup { }\n");
  EXPECT_EQ(FileCount(), 1);
}

TEST_F(FileTraverser, LeavesTheOldFileWhenItFails) {
  EXPECT_FALSE(Write("nowhere/out.wrl", Create<Group>()));
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
