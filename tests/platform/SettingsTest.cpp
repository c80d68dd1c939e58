/// The user's settings: where they are kept, and what neither damage nor haste may cost.

#include "support/Raises.h"
#include "support/ScratchFolder.h"

#include "orvane/platform/SettingsStore.h"

#include <thread>
#include <vector>

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace orvane::host {
namespace {

namespace fs = std::filesystem;
using tests::ErrorOf;
using tests::FileText;

/// The value of a variable of the environment while this lives; nullptr for none.
class Variable {
 public:
  Variable(const char* name, const char* value) : m_name(name) {
    if (const char* old = std::getenv(name)) m_old = old;
    Put(value);
  }
  Variable(const Variable&) = delete;
  Variable& operator=(const Variable&) = delete;
  ~Variable() { Put(m_old ? m_old->c_str() : nullptr); }

 private:
  void Put(const char* value) const {
    value == nullptr ? unsetenv(m_name) : setenv(m_name, value, 1);
  }
  const char* m_name;
  std::optional<std::string> m_old;
};

class Settings : public testing::Test {
 protected:
  std::string Get(const std::string& key) { return m_store.Get("App", "Section", key, "default"); }
  void Save(const std::string& key, const std::string& value) {
    m_store.Save("App", "Section", key, value);
  }
  void Write(const std::string& text) {
    fs::create_directories(m_file.parent_path());
    std::ofstream(m_file, std::ios::binary) << text;
  }
  std::ptrdiff_t FileCount() const {
    return std::distance(fs::directory_iterator(m_file.parent_path()), fs::directory_iterator());
  }

  tests::ScratchFolder m_folder;
  Variable m_config{"XDG_CONFIG_HOME", m_folder.Path().c_str()};
  fs::path m_file = m_folder.Path() / "App" / "settings.ini";
  UserSettings m_store;
};

TEST_F(Settings, AreReadableTextInTheUsersFolder) {
  EXPECT_EQ(Get("Key"), "default");
  EXPECT_FALSE(fs::exists(m_file.parent_path())) << "reading makes no folder";
  Save("Key", "C:\\Protos");
  Save("Other", "2");
  Save("Key", "C:\\Out");
  EXPECT_EQ(FileText(m_file), "[Section]\nKey=C:\\Out\nOther=2\n");
  EXPECT_EQ(FileCount(), 1);
  EXPECT_EQ(fs::status(m_file.parent_path()).permissions(), fs::perms::owner_all);
}

TEST_F(Settings, FollowTheXdgBaseDirectories) {
  const std::string root = m_folder.Path().string();
  const std::string config = root + "/c";
  const std::string home = root + "/h";
  const std::pair<const char*, std::string> places[] = {{config.c_str(), "/c/App/settings.ini"},
                                                        {"relative", "/h/.config/App/settings.ini"},
                                                        {nullptr, "/h/.config/App/settings.ini"}};
  for (const auto& [configHome, file] : places) {
    const Variable first("XDG_CONFIG_HOME", configHome);
    const Variable second("HOME", home.c_str());
    Save("Key", file);
    EXPECT_EQ(FileText(root + file), "[Section]\nKey=" + file + "\n");
    EXPECT_EQ(Get("Key"), file);
    fs::remove_all(root + file);
  }
  const Variable first("XDG_CONFIG_HOME", nullptr);
  const Variable second("HOME", "relative");
  EXPECT_EQ(ErrorOf([&] { Save("Key", "v"); }).number, ErrorNumber::FileAccess);
  EXPECT_EQ(Get("Key"), "default");
}

TEST_F(Settings, ReadAsTheirDefaultsWhenDamaged) {
  const std::string large(2 << 20, 'x');
  for (const std::string& text :
       {std::string(300, '\0'), std::string("[Section\nKey=v"), std::string("Key=v\n"),
        std::string("\xff\xfe[\0S\0]", 7), large}) {
    Write(text);
    EXPECT_EQ(Get("Key"), "default") << text.substr(0, 20);
  }
  EXPECT_EQ(
      ErrorOf([&] { Save("Key", "v"); }).message,
      m_file.string() + ": the settings cannot be saved: what is there is not a settings file");
  EXPECT_EQ(FileText(m_file), large) << "a large file is not lost";
  Write("garbage \x02\n[Section]\nKey=v");
  Save("Other", "1");
  EXPECT_EQ(FileText(m_file), "garbage \x02\n[Section]\nKey=v\nOther=1\n");
}

TEST_F(Settings, ReadAsTheirDefaultsWhereThereIsNoFile) {
  const auto expectNone = [&](const char* what) {
    EXPECT_EQ(Get("Key"), "default") << what;
    EXPECT_EQ(ErrorOf([&] { Save("Key", "v"); }).number, ErrorNumber::FileAccess) << what;
  };
  fs::create_directories(m_file);
  expectNone("a folder");
  fs::remove(m_file);
  ASSERT_EQ(mkfifo(m_file.c_str(), 0600), 0);
  expectNone("a pipe: nobody waits for somebody to write");
  fs::remove_all(m_file.parent_path());
  std::ofstream(m_file.parent_path()) << "a file";
  expectNone("a file where the folder should be");
}

TEST_F(Settings, StayInTheirFolderWhateverTheNames) {
  for (const char* application : {"", "..", "a/b", "../x", ".x", "a\nb"}) {
    EXPECT_EQ(m_store.Get(application, "s", "k", "default"), "default");
    EXPECT_EQ(ErrorOf([&] { m_store.Save(application, "s", "k", "v"); }),
              tests::ComponentError("Invalid name of an application with settings"))
        << application;
  }
  EXPECT_TRUE(fs::is_empty(m_folder.Path()));
}

/// Saves `count` settings of its own, and reads whole values of the others meanwhile.
bool SaveMany(const std::string& who, int count) {
  UserSettings store;
  bool isWhole = true;
  for (int i = 0; i < count; ++i) {
    store.Save("App", who, std::to_string(i), std::string(200, 'v'));
    store.Save("App", "Shared", "Key", std::string(200, who.back()));
    const std::string shared = store.Get("App", "Shared", "Key", "none");
    isWhole = isWhole && shared.size() == 200 && shared == std::string(200, shared[0]);
  }
  return isWhole;
}

TEST_F(Settings, OfTwoProgramsAndSeveralThreadsAreAllKept) {
  constexpr int kCount = 15;
  std::vector<pid_t> programs;
  for (const char* who : {"program1", "program2"}) {
    const pid_t pid = fork();
    ASSERT_GE(pid, 0);
    if (pid == 0) _exit(SaveMany(who, kCount) ? 0 : 1);
    programs.push_back(pid);
  }
  std::vector<std::thread> threads;
  bool isWhole[2] = {};
  for (int i = 0; i < 2; ++i) {
    threads.emplace_back(
        [i, &isWhole] { isWhole[i] = SaveMany("thread" + std::to_string(i), kCount); });
  }
  for (auto& thread : threads) thread.join();
  EXPECT_TRUE(isWhole[0] && isWhole[1]);
  for (const pid_t pid : programs) {
    int status = -1;
    ASSERT_EQ(waitpid(pid, &status, 0), pid);
    EXPECT_EQ(status, 0);
  }
  for (const char* who : {"program1", "program2", "thread0", "thread1"}) {
    for (int i = 0; i < kCount; ++i) {
      EXPECT_EQ(m_store.Get("App", who, std::to_string(i), ""), std::string(200, 'v')) << who << i;
    }
  }
  EXPECT_EQ(FileCount(), 1) << "no temporary file and no lock is left";
}

}  // namespace
}  // namespace orvane::host
