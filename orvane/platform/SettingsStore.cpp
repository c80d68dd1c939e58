#include "orvane/platform/SettingsStore.h"

#include "orvane/automation/AutomationError.h"
#include "orvane/platform/IniFile.h"

namespace orvane::host {
namespace {

/// An application's name is also that of a folder.
bool IsApplication(const std::string& name) {
  return IniText::IsName(name) && name.front() != '.' && name.find('/') == std::string::npos;
}

IniFile FileOf(const std::string& application) { return UserIniFile(application, "settings.ini"); }

}  // namespace

std::string UserSettings::Get(const std::string& application, const std::string& section,
                              const std::string& key, const std::string& fallback) const {
  if (!IsApplication(application)) return fallback;
  return FileOf(application).Read().Get(section, key).value_or(fallback);
}

void UserSettings::Save(const std::string& application, const std::string& section,
                        const std::string& key, const std::string& value) {
  Require(IsApplication(application), "Invalid name of an application with settings");
  FileOf(application).Update([&](IniText& ini) { ini.Set(section, key, value); });
}

}  // namespace orvane::host
