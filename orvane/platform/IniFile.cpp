#include "orvane/platform/IniFile.h"

#include "orvane/automation/AutomationError.h"
#include "orvane/platform/FileReplacement.h"
#include "orvane/platform/FolderLock.h"

#include <cstdlib>
#include <fstream>
#include <iterator>
#include <system_error>

namespace orvane::host {
namespace {

namespace fs = std::filesystem;

constexpr std::uintmax_t kMostBytes = 1 << 20;

/// The text of `file`; none when it cannot be had.
std::optional<std::string> TextOf(const fs::path& file) {
  std::error_code error;
  if (!fs::is_regular_file(file, error) || fs::file_size(file, error) > kMostBytes || error) {
    return std::nullopt;
  }
  std::ifstream stream(file, std::ios::binary);
  std::string text{std::istreambuf_iterator<char>(stream), {}};
  if (!stream.is_open() || stream.bad()) return std::nullopt;
  return text;
}

fs::path FolderIn(const char* variable) {
  const char* const value = std::getenv(variable);
  const fs::path folder = value == nullptr ? "" : value;
  return folder.is_absolute() ? folder : fs::path();
}

[[noreturn]] void RaiseFileAccess(const fs::path& file, const std::string& reason) {
  throw AutomationError(ErrorNumber::FileAccess,
                        file.string() + ": the settings cannot be saved: " + reason);
}

}  // namespace

IniText IniFile::Read() const { return IniText(TextOf(m_file).value_or("")); }

void IniFile::Update(const std::function<void(IniText&)>& change) const {
  if (m_file.empty()) {
    throw AutomationError(ErrorNumber::FileAccess,
                          "The settings cannot be saved: neither XDG_CONFIG_HOME nor HOME is the "
                          "path of a folder");
  }
  try {
    const FolderLock lock(m_file.parent_path());
    const auto before = fs::exists(m_file) ? TextOf(m_file) : "";
    if (!before) RaiseFileAccess(m_file, "what is there is not a settings file");
    IniText ini(*before);
    change(ini);
    const std::string after = ini.Text();
    if (after.empty()) {
      std::error_code ignored;
      fs::remove(m_file);
      fs::remove(m_file.parent_path(), ignored);  // Only an empty folder goes.
    } else if (after != *before) {
      if (const auto error = ReplaceFile(m_file, after)) RaiseFileAccess(m_file, error.message());
    }
  } catch (const std::system_error& error) {
    RaiseFileAccess(m_file, error.code().message());
  }
}

IniFile UserIniFile(const std::string& program, const std::string& name) {
  fs::path folder = FolderIn("XDG_CONFIG_HOME");
  if (folder.empty() && !FolderIn("HOME").empty()) folder = FolderIn("HOME") / ".config";
  return IniFile(folder.empty() ? folder : folder / program / name);
}

}  // namespace orvane::host
