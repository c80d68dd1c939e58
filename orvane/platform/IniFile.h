/// A settings file that several programs of a user read and write.
#pragma once

#include "orvane/platform/IniText.h"

#include <filesystem>
#include <functional>
#include <string>
#include <utility>

namespace orvane::host {

/// One file in a folder of its own or shared with others of its kind.
class ORVANE_API IniFile {
 public:
  /// An empty path is a file that does not exist and cannot be written.
  explicit IniFile(std::filesystem::path file) : m_file(std::move(file)) {}

  /// What the file says. A file that is missing, unreadable, no regular file, or larger than 1 MiB
  /// says nothing.
  IniText Read() const;

  /// Applies `change` to what the file says and writes it, while other programs wait. A file that
  /// has nothing left to say is removed, and its folder if that is empty then. Raises FileAccess
  /// when the file exists and cannot be read, or cannot be written; it is then as it was.
  void Update(const std::function<void(IniText&)>& change) const;

 private:
  std::filesystem::path m_file;
};

/// The file `name` of `program` in the user's configuration folder, which is $XDG_CONFIG_HOME or,
/// where that is not an absolute path, $HOME/.config. Where there is neither, a file that does not
/// exist and cannot be written.
ORVANE_API IniFile UserIniFile(const std::string& program, const std::string& name);

}  // namespace orvane::host
