/// A new file under a name that the next program to need one takes up again.
#pragma once

#include "orvane/automation/Export.h"

#include <filesystem>
#include <string_view>
#include <system_error>

namespace orvane::host {

/// A file beside another that is to take the other's place. It is locked while it lives, and
/// removed at the end unless it was moved; one that a program left behind when it was ended goes
/// when the next one replaces the same file.
class ORVANE_API TemporaryFile {
 public:
  TemporaryFile() = default;
  TemporaryFile(const TemporaryFile&) = delete;
  TemporaryFile& operator=(const TemporaryFile&) = delete;
  ~TemporaryFile();

  /// Makes the file in the folder of `file`. Called once.
  std::error_code MakeBeside(const std::filesystem::path& file);
  std::error_code Write(std::string_view text);
  std::error_code Permissions(std::filesystem::perms permissions);
  std::error_code MoveTo(const std::filesystem::path& file);

 private:
  std::filesystem::path m_path;  ///< Empty where there is none to remove.
  int m_descriptor = -1;
};

}  // namespace orvane::host
