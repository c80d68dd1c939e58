#include "orvane/control/ProtoSettings.h"

#include "orvane/automation/Enumeration.h"
#include "orvane/platform/HostServices.h"

namespace orvane::ProtoSettings {
namespace {

constexpr const char* kApplication = "NVOCX";
constexpr const char* kSection = "ProtoPath";
constexpr const char* kProtoDir = "ProtoDir";
constexpr const char* kOutputDir = "OutputDir";

}  // namespace

std::string ProtoDir(const std::string& fallback) {
  return host::Services().settings->Get(kApplication, kSection, kProtoDir, fallback);
}

void SaveProtoDir(const std::string& directory) {
  host::Services().settings->Save(kApplication, kSection, kProtoDir, directory);
}

std::string OutputDir() {
  return host::Services().settings->Get(kApplication, kSection, kOutputDir, kNoDirectory);
}

void SaveOutputDir(const std::string& directory) {
  host::Services().settings->Save(kApplication, kSection, kOutputDir, directory);
}

bool IsPrefix(const std::string& path) {
  return path.empty() || path.ends_with('\\') || path.ends_with('/');
}

bool IsUrl(const std::string& protoDir) { return host::EqualNoCase(protoDir.substr(0, 4), "HTTP"); }

}  // namespace orvane::ProtoSettings
