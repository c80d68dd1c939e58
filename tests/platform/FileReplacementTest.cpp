/// Files that are replaced, and all that can be in the way.
#include "support/ScratchFolder.h"

#include "orvane/platform/FileReplacement.h"

#include <csignal>
#include <fstream>
#include <map>

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace orvane::host {
namespace {

namespace fs = std::filesystem;

/// A scratch folder with a file "old", which is the current one meanwhile.
class Replacement : public testing::Test {
 protected:
  void SetUp() override {
    fs::current_path(m_folder.Path());
    std::ofstream("old") << "old";
  }
  void TearDown() override { fs::current_path("/"); }

  /// What is in the folder: the text of each file.
  static std::map<std::string, std::string> Files() {
    std::map<std::string, std::string> files;
    for (const auto& entry : fs::directory_iterator(".")) {
      std::error_code noFile;
      const bool hasText = entry.is_regular_file(noFile);
      files[entry.path().filename()] = hasText ? tests::FileText(entry.path()) : "";
    }
    return files;
  }

 private:
  tests::ScratchFolder m_folder;
};

TEST_F(Replacement, FailsForAReasonAndLeavesEverythingAsItWas) {
  fs::create_directory("folder");
  fs::create_symlink("loop", "loop");
  std::ofstream("guarded") << "guarded";
  fs::permissions("guarded", fs::perms::owner_read);
  const struct {
    const char* name;
    std::string file;
    std::errc reason;
    rlim_t room = RLIM_INFINITY;
  } cases[] = {
      {"no name", "", std::errc::no_such_file_or_directory},
      {"no folder", "no/new", std::errc::no_such_file_or_directory},
      {"a file as the folder", "old/new", std::errc::not_a_directory},
      {"a folder", "folder", std::errc::is_a_directory},
      {"a NUL in the name", std::string("old\0x", 5), std::errc::invalid_argument},
      {"a name too long", std::string(256, 'n'), std::errc::filename_too_long},
      {"a link to itself", "loop", std::errc::too_many_symbolic_link_levels},
      {"no permission to write", "guarded", std::errc::permission_denied},
      {"a disk that is full", "old", std::errc::file_too_large, 4},
      {"a device that is full", "/dev/full", std::errc::no_space_on_device},
  };
  (void)std::signal(SIGXFSZ, SIG_IGN);
  const auto before = Files();
  for (const auto& [name, file, reason, room] : cases) {
    const rlimit limit{room, RLIM_INFINITY};
    setrlimit(RLIMIT_FSIZE, &limit);
    const std::error_code error = ReplaceFile(file, "new text");
    const rlimit none{RLIM_INFINITY, RLIM_INFINITY};
    setrlimit(RLIMIT_FSIZE, &none);
    EXPECT_EQ(error, reason) << name << ": " << error.message();
    EXPECT_EQ(Files(), before) << name;
  }
}

TEST_F(Replacement, FollowsLinksAndWritesToPipes) {
  const std::string real(255, 'n');  // As long as names may be.
  fs::create_symlink(real, "link");
  for (const char* text : {"made", "replaced"}) {
    EXPECT_EQ(ReplaceFile("link", text), std::error_code());
    EXPECT_TRUE(fs::is_symlink("link"));
    EXPECT_EQ(Files(),
              (std::map<std::string, std::string>{{"old", "old"}, {real, text}, {"link", text}}));
  }
  ASSERT_EQ(mkfifo("pipe", 0600), 0);
  const int reader = open("pipe", O_RDONLY | O_NONBLOCK);
  EXPECT_EQ(ReplaceFile("pipe", "sent"), std::error_code());
  char received[8] = {};
  EXPECT_EQ(read(reader, received, sizeof received), 4);
  EXPECT_STREQ(received, "sent");
  close(reader);
}

TEST_F(Replacement, TakesUpWhatAProgramThatWasEndedHasLeftButNotWhatOneIsWriting) {
  FileReplacement other("old", "other");
  const pid_t child = fork();
  if (child == 0) {
    const FileReplacement unfinished("old", "unfinished");
    (void)raise(SIGKILL);
  }
  waitpid(child, nullptr, 0);
  EXPECT_EQ(Files().size(), 3U);
  EXPECT_EQ(ReplaceFile("old", "new"), std::error_code());
  EXPECT_EQ(Files().size(), 2U) << "what the program left behind is gone";
  EXPECT_EQ(tests::FileText("old"), "new");
  EXPECT_EQ(other.MoveIntoPlace(), std::error_code());
  EXPECT_EQ(Files(), (std::map<std::string, std::string>{{"old", "other"}}));
}

}  // namespace
}  // namespace orvane::host
