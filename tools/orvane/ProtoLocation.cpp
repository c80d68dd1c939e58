#include "ProtoLocation.h"

#include "orvane/automation/ResumeNext.h"
#include "orvane/automation/Trimmed.h"
#include "orvane/control/MakeRelativePath.h"
#include "orvane/control/OrvaneTemplateCtl.h"
#include "orvane/control/ProtoSettings.h"
#include "orvane/forms/Container.h"
#include "orvane/platform/HostServices.h"
#include "orvane/scene/OrvaneModule.h"
#include "orvane/tables/read/Source.h"

#include <memory>
#include <string_view>

namespace orvane::tool {
namespace {

namespace fs = std::filesystem;

/// The path that a new control has: from OutputDir to the PROTO files, or their URL.
std::string PathOfNewControl() {
  const auto control = std::make_shared<OrvaneTemplateCtl>();
  host::Container().PlaceNew(control);
  return control->RelativeProtoPath();
}

/// The folder that a setting names as directory lists show it: the drive's root where it is gone.
std::string ShownFolder(const std::string& stored) {
  std::string shown = ProtoSettings::kNoDirectory;
  host::ResumeNext([&] { shown = host::Services().directories->Shown(stored); });
  return shown;
}

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

}  // namespace

bool LocateProtos(const std::optional<std::string>& prefix, const std::optional<fs::path>& folder) {
  const std::string fromOutputDir = PathOfNewControl();
  if (prefix) {
    OrvaneTemplateCtl().RelativeProtoPath(*prefix);
    return false;
  }
  const std::string protoDir = ProtoSettings::ProtoDir();
  if (fromOutputDir.empty() || ProtoSettings::IsUrl(protoDir)) return fromOutputDir.empty();
  // A world may go elsewhere than to OutputDir, and finds the PROTO files from there as well.
  const auto path =
      folder ? MakeRelativePath(host::Services().directories->Shown(folder->string()), protoDir)
             : fromOutputDir;
  OrvaneModule::RelativeProtoPath(AsUrl(path));
  return path.empty();
}

void ChooseProtos(const ProtoChoice& choice) {
  if (choice.protoDir && ProtoSettings::IsUrl(*choice.protoDir)) {
    if (choice.outputDir) {
      throw tables::FileError("OutputDir goes with a folder of PROTO files, not with a URL");
    }
    const std::string url = host::Trimmed(*choice.protoDir);
    if (!ProtoSettings::IsPrefix(url)) throw tables::FileError(ProtoSettings::kNoPrefix);
    ProtoSettings::SaveOutputDir("");
    ProtoSettings::SaveProtoDir(url);
    return;
  }
  if (!choice.protoDir && ProtoSettings::IsUrl(ProtoSettings::ProtoDir())) {
    throw tables::FileError(
        "ProtoDir is a URL; to set OutputDir, set ProtoDir to a folder with it");
  }
  const auto folder = [](const std::optional<std::string>& chosen, const std::string& stored) {
    return chosen ? host::Services().directories->Shown(*chosen) : ShownFolder(stored);
  };
  // Neither is saved unless both are there.
  const std::string outputDir = folder(choice.outputDir, ProtoSettings::OutputDir());
  const std::string protoDir = folder(choice.protoDir, ProtoSettings::ProtoDir());
  ProtoSettings::SaveOutputDir(outputDir);
  ProtoSettings::SaveProtoDir(protoDir);
}

void ShowProtoSettings(std::ostream& out) {
  const std::string path = PathOfNewControl();
  const std::string protoDir = ProtoSettings::ProtoDir();
  if (ProtoSettings::IsUrl(protoDir)) {
    out << "ProtoDir: " << protoDir << "\nOutputDir:\nPROTO files: " << path << "\n";
    return;
  }
  const auto folder = [](const std::string& stored) {
    return host::Services().directories->PathOf(ShownFolder(stored)).string();
  };
  out << "ProtoDir: " << folder(protoDir) << "\nOutputDir: " << folder(ProtoSettings::OutputDir())
      << "\nPROTO files: " << (path.empty() ? "beside each world" : AsUrl(path) + " from OutputDir")
      << "\n";
}

}  // namespace orvane::tool
