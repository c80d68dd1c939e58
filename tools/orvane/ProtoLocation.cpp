#include "ProtoLocation.h"

#include "orvane/control/MakeRelativePath.h"
#include "orvane/control/OrvaneTemplateCtl.h"
#include "orvane/control/ProtoPath.h"
#include "orvane/control/ProtoSettings.h"
#include "orvane/forms/Container.h"
#include "orvane/platform/HostServices.h"
#include "orvane/tables/read/Source.h"

#include <array>
#include <memory>
#include <string_view>
#include <utility>
#include <vector>

namespace orvane::tool {
namespace {

namespace fs = std::filesystem;
using Mode = ProtoPath::Mode;

/// A form with one new control on it, as a form designer has it.
struct Form {
  Form() { container.PlaceNew(control); }

  std::unique_ptr<host::PropertyPage> ShowPage() const {
    return container.ShowPropertyPage({control});
  }

  host::Container container;
  std::shared_ptr<OrvaneTemplateCtl> control = std::make_shared<OrvaneTemplateCtl>();
};

ProtoPath& AsProtoPath(host::PropertyPage& page) { return dynamic_cast<ProtoPath&>(page); }

/// A relative path of folders as a URL: slashes, and an escape for what means something in a URL.
std::string AsUrl(std::string_view path) {
  constexpr std::string_view kDigits = "0123456789ABCDEF";
  std::string url;
  for (const char c : path) {
    if (c == '\\') {
      url += '/';
    } else if (std::string_view(" \"#%<>?").find(c) != std::string_view::npos) {
      const auto code = static_cast<unsigned char>(c);
      url += {'%', kDigits[code / 16], kDigits[code % 16]};
    } else {
      url += c;
    }
  }
  return url;
}

/// Settings that are saved together in the end, or not at all.
class StagedSettings final : public host::SettingsStore {
 public:
  explicit StagedSettings(std::shared_ptr<host::SettingsStore> store) : m_store(std::move(store)) {}

  std::string Get(const std::string& application, const std::string& section,
                  const std::string& key, const std::string& fallback) const override {
    return m_store->Get(application, section, key, fallback);
  }
  void Save(const std::string& application, const std::string& section, const std::string& key,
            const std::string& value) override {
    m_saved.push_back({application, section, key, value});
  }

  void Commit() const {
    for (const auto& [application, section, key, value] : m_saved) {
      m_store->Save(application, section, key, value);
    }
  }

 private:
  std::shared_ptr<host::SettingsStore> m_store;
  std::vector<std::array<std::string, 4>> m_saved;
};

/// Keeps the message that is shown, for the error that ends the command.
class KeptMessage final : public host::MessageBox {
 public:
  void Show(const std::string& text, host::MessageIcon, const std::string&) override {
    m_text = text;
  }
  const std::string& Text() const { return m_text; }

 private:
  std::string m_text;
};

void Fill(ProtoPath& page, const ProtoChoice& choice) {
  if (choice.protoDir && ProtoSettings::IsUrl(*choice.protoDir)) {
    if (choice.outputDir) {
      throw tables::FileError("OutputDir goes with a folder of PROTO files, not with a URL");
    }
    page.optPath_Click(Mode::Url);
    page.Text1.Text(*choice.protoDir);
    return;
  }
  if (!choice.protoDir && page.optPath(Mode::Url).isSelected) {
    throw tables::FileError(
        "ProtoDir is a URL; to set OutputDir, set ProtoDir to a folder with it");
  }
  page.optPath_Click(Mode::Relative);
  if (choice.outputDir) page.Dir1.Path(*choice.outputDir);
  if (choice.protoDir) page.Dir2.Path(*choice.protoDir);
}

}  // namespace

bool LocateProtos(const std::optional<std::string>& prefix, const std::optional<fs::path>& folder) {
  const auto control = Form().control;
  if (prefix) {
    control->RelativeProtoPath(*prefix);
    return false;
  }
  const std::string fromOutputDir = control->RelativeProtoPath();
  const std::string protoDir = ProtoSettings::ProtoDir();
  if (fromOutputDir.empty() || ProtoSettings::IsUrl(protoDir)) return fromOutputDir.empty();
  // A world may go elsewhere than to OutputDir, and finds the PROTO files from there as well.
  const auto path =
      folder ? MakeRelativePath(host::Services().directories->Shown(folder->string()), protoDir)
             : fromOutputDir;
  control->RelativeProtoPath(AsUrl(path));
  return path.empty();
}

void ChooseProtos(const ProtoChoice& choice) {
  auto& services = host::Services();
  const auto settings = std::make_shared<StagedSettings>(services.settings.InUse());
  const auto message = std::make_shared<KeptMessage>();
  services.settings.Use(settings);
  services.messages.Use(message);
  const auto page = Form().ShowPage();
  Fill(AsProtoPath(*page), choice);
  page->Apply();
  if (!message->Text().empty()) throw tables::FileError(message->Text());
  settings->Commit();
}

void ShowProtoSettings(std::ostream& out) {
  const Form form;
  const auto shown = form.ShowPage();
  const ProtoPath& page = AsProtoPath(*shown);
  const std::string path = form.control->RelativeProtoPath();
  if (page.optPath(Mode::Url).isSelected) {
    out << "ProtoDir: " << page.Text1.Text() << "\nOutputDir:\nPROTO files: " << path << "\n";
    return;
  }
  const auto folder = [](const host::DirectoryList& list) {
    return host::Services().directories->PathOf(list.Path()).string();
  };
  out << "ProtoDir: " << folder(page.Dir2) << "\nOutputDir: " << folder(page.Dir1)
      << "\nPROTO files: " << (path.empty() ? "beside each world" : AsUrl(path) + " from OutputDir")
      << "\n";
}

}  // namespace orvane::tool
