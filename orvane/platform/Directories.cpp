#include "orvane/platform/Directories.h"

#include "orvane/automation/AutomationError.h"

#include <algorithm>
#include <system_error>

namespace orvane::host {
namespace {

namespace fs = std::filesystem;

bool HasDrive(const std::string& folder) { return folder.size() >= 2 && folder[1] == ':'; }

[[noreturn]] void RaisePathNotFound(const std::string& folder) {
  throw AutomationError(ErrorNumber::PathNotFound, "There is no folder \"" + folder + "\"");
}

}  // namespace

fs::path SingleDrive::PathOf(const std::string& shown) const {
  if (!HasDrive(shown)) return shown;
  if (shown[0] != 'C' && shown[0] != 'c') RaisePathNotFound(shown);
  std::string path = shown.substr(2);
  std::ranges::replace(path, '\\', '/');
  path.erase(0, path.find_first_not_of('/'));
  return fs::path("/" + path).lexically_normal();
}

std::string SingleDrive::Shown(const std::string& folder) const {
  std::error_code error;
  const fs::path path = fs::absolute(PathOf(folder), error).lexically_normal();
  std::string shown = path.string();
  if (folder.empty() || !fs::is_directory(path, error) || shown.find('\\') != std::string::npos) {
    RaisePathNotFound(folder);
  }
  if (shown.size() > 1 && shown.ends_with('/')) shown.pop_back();
  if (shown.starts_with("//")) shown.erase(0, 1);
  std::ranges::replace(shown, '/', '\\');
  return "C:" + shown;
}

std::vector<std::string> SingleDrive::FoldersIn(const std::string& shown) const {
  std::vector<std::string> names;
  std::error_code error;
  fs::directory_iterator entry(PathOf(shown), error);
  for (; !error && entry != fs::directory_iterator(); entry.increment(error)) {
    std::error_code ignored;
    if (entry->is_directory(ignored)) names.push_back(entry->path().filename().string());
  }
  std::ranges::sort(names);
  return names;
}

}  // namespace orvane::host
