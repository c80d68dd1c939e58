/// The property page: what it shows of the settings, and what it makes of what is chosen.

#include "support/HostRecorder.h"
#include "support/Raises.h"

#include "orvane/control/OrvaneTemplateCtl.h"
#include "orvane/control/ProtoPath.h"
#include "orvane/forms/Container.h"
#include "orvane/scene/OrvaneModule.h"

#include <gtest/gtest.h>

namespace orvane {
namespace {

using Mode = ProtoPath::Mode;

/// Drives C and D, with three folders.
struct FewFolders final : host::Directories {
  std::string Shown(const std::string& folder) const override {
    for (const char* known : {"C:\\", "C:\\Out", "C:\\Protos", "D:\\Protos", "\\\\server\\share"}) {
      if (folder == known || folder == std::string(known) + "\\") return known;
    }
    throw host::AutomationError(host::ErrorNumber::PathNotFound, "none");
  }
  std::filesystem::path PathOf(const std::string& shown) const override { return shown; }
  std::vector<std::string> FoldersIn(const std::string& shown) const override {
    return shown == "C:\\" ? std::vector<std::string>{"Out", "Protos"} : std::vector<std::string>();
  }
};

class Page : public testing::Test {
 protected:
  void SetUp() override { host::Services().directories.Use(m_folders); }
  void TearDown() override { OrvaneModule::RelativeProtoPath(""); }

  /// A form with two controls whose page is shown; both have the path "old/".
  void Open() {
    for (auto& control : m_controls) {
      control = std::make_shared<OrvaneTemplateCtl>();
      m_form.PlaceSaved(control, host::PropertyBag("ProtoPath=old/"));
    }
    m_shown = m_form.ShowPropertyPage({m_controls[0], m_controls[1]});
  }
  ProtoPath& Proto() { return dynamic_cast<ProtoPath&>(*m_shown); }
  std::string Saved(const char* key) {
    return m_host.settings->saved[std::string("NVOCX/ProtoPath/") + key];
  }

  tests::HostRecorder m_host;
  std::shared_ptr<FewFolders> m_folders = std::make_shared<FewFolders>();
  host::Container m_form;
  std::shared_ptr<OrvaneTemplateCtl> m_controls[2];
  std::unique_ptr<host::PropertyPage> m_shown;
};

TEST_F(Page, ShowsTheSettings) {
  const struct {
    const char *outputDir, *protoDir;
    Mode mode;
    const char *dir1, *dir2, *url;
  } settings[] = {
      {"C:\\Out\\", "C:\\Protos", Mode::Relative, "C:\\Out", "C:\\Protos", "HTTP://"},
      {"C:\\Gone", "C:\\Protos", Mode::Relative, "C:\\", "C:\\Protos", "HTTP://"},
      {"C:\\Out", "C:\\Gone", Mode::Relative, "C:\\Out", "C:\\", "HTTP://"},
      {"", "", Mode::Relative, "C:\\", "C:\\", "HTTP://"},
      {"", "http://x/p/", Mode::Url, "C:\\", "C:\\", "http://x/p/"},
      {"C:\\Out", "HTTP", Mode::Url, "C:\\", "C:\\", "HTTP"},
      {"C:\\Out", "HTT", Mode::Relative, "C:\\Out", "C:\\", "HTTP://"},
  };
  for (const auto& [outputDir, protoDir, mode, dir1, dir2, url] : settings) {
    m_host.Set(outputDir, protoDir);
    Open();
    const Mode other = mode == Mode::Url ? Mode::Relative : Mode::Url;
    EXPECT_TRUE(Proto().optPath(mode).isSelected) << protoDir;
    EXPECT_TRUE(Proto().Frame1(mode).isEnabled) << protoDir;
    EXPECT_FALSE(Proto().optPath(other).isSelected) << protoDir;
    EXPECT_FALSE(Proto().Frame1(other).isEnabled) << protoDir;
    EXPECT_EQ(Proto().Dir1.Path(), dir1);
    EXPECT_EQ(Proto().Dir2.Path(), dir2);
    EXPECT_EQ(Proto().Text1.Text(), url);
    EXPECT_FALSE(Proto().IsChanged());
  }
  m_host.settings->saved.clear();
  Open();
  EXPECT_EQ(Proto().Dir1.Folders(), (std::vector<std::string>{"Out", "Protos"}));
  EXPECT_EQ(Proto().Caption(), "ProtoPath");
  EXPECT_EQ(Proto().optPath(Mode::Url).caption, "Internet URL of proto files");
  EXPECT_EQ(Proto().optPath(Mode::Relative).caption,
            "Relative path to proto files from local graph files");
  EXPECT_EQ(Proto().Dir1.Label() + ", " + Proto().Dir2.Label(),
            "VRML output directory, Proto directory");
}

TEST_F(Page, IsChangedByEachOfItsControls) {
  const std::function<void(ProtoPath&)> changes[] = {
      [](ProtoPath& page) { page.optPath_Click(Mode::Url); },
      [](ProtoPath& page) { page.optPath_Click(Mode::Relative); },
      [](ProtoPath& page) { page.Dir1.Path("C:\\Out"); },
      [](ProtoPath& page) { page.Dir2.Path("C:\\Out"); },
      [](ProtoPath& page) { page.Text1.Text("x"); }};
  for (const auto& change : changes) {
    Open();
    change(Proto());
    EXPECT_TRUE(Proto().IsChanged());
    Proto().Apply();
    EXPECT_FALSE(Proto().IsChanged());
  }
  m_host.settings->saved.clear();
  Open();
  EXPECT_EQ(tests::ErrorOf([&] { Proto().Dir1.Path("C:\\Gone"); }).number,
            host::ErrorNumber::PathNotFound);
  EXPECT_EQ(Proto().Dir1.Path(), "C:\\");
}

struct Applied {
  Mode mode;
  const char *dir1, *dir2, *url;
  const char *outputDir, *protoDir;  ///< The settings afterwards.
  const char* path;                  ///< What both controls have afterwards,
  const char* fault = "";            ///< and what went wrong: an error, or a message.
};

constexpr const char* kMustEnd = "The proto relative path must end with either a / or \\.";
constexpr const char* kNoMatch =
    "Error making relative path : Source and destination drives must match";
constexpr const char* kNoDrive = "Error making relative path : Invalid source drive";

TEST_F(Page, AppliesWhatIsChosen) {
  const Applied cases[] = {
      {Mode::Url, "C:\\Out", "C:\\Protos", "  http://x/p/ ", "", "http://x/p/", "http://x/p/"},
      {Mode::Url, "C:\\Out", "C:\\Protos", "  ", "", "", ""},
      {Mode::Url, "C:\\Out", "C:\\Protos", "http://x/p", "", "http://x/p", "old/", kMustEnd},
      {Mode::Relative, "C:\\Out", "C:\\Protos", "http://x/p/", "C:\\Out", "C:\\Protos",
       "..\\Protos\\"},
      {Mode::Relative, "C:\\", "C:\\Protos", "", "C:\\", "C:\\Protos", "Protos\\"},
      {Mode::Relative, "C:\\Out", "C:\\Out", "", "C:\\Out", "C:\\Out", ""},
      {Mode::Relative, "C:\\Out", "D:\\Protos", "", "C:\\Out", "D:\\Protos", "old/", kNoMatch},
      {Mode::Relative, "\\\\server\\share", "C:\\Out", "", "\\\\server\\share", "C:\\Out", "old/",
       kNoDrive},
  };
  for (const Applied& applied : cases) {
    Open();
    m_host.messages->shown.clear();
    Proto().Dir1.Path(applied.dir1);
    Proto().Dir2.Path(applied.dir2);
    Proto().Text1.Text(applied.url);
    Proto().optPath_Click(applied.mode);
    const auto raised = tests::ErrorOf([&] { Proto().Apply(); });
    const std::string what = std::string(applied.url) + " " + applied.dir2;
    EXPECT_EQ(Saved("OutputDir"), applied.outputDir) << what;
    EXPECT_EQ(Saved("ProtoDir"), applied.protoDir) << what;
    for (const auto& control : m_controls) {
      EXPECT_EQ(control->RelativeProtoPath(), applied.path) << what;
      EXPECT_EQ(m_form.NeedsSaving(control), applied.path != std::string("old/")) << what;
    }
    const std::string fault = applied.fault;
    const bool isError = fault.starts_with("Error");
    EXPECT_EQ(raised.message, isError ? fault : "nothing raised") << what;
    EXPECT_EQ(Proto().IsChanged(), isError) << what;
    EXPECT_EQ(m_host.messages->shown.size(), fault == kMustEnd ? 2U : 0U) << "one for each control";
  }
}

}  // namespace
}  // namespace orvane
