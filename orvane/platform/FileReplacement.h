/// Writing files so that their readers see the old text or the new one, never half of it.
#pragma once

#include "orvane/automation/Export.h"
#include "orvane/platform/TemporaryFile.h"

#include <filesystem>
#include <string_view>
#include <system_error>

namespace orvane::host {

/// The new text of a file, written beside it and moved into place on demand; without that, the old
/// file stays whole. Links are followed. What is no regular file (a terminal, a pipe) is written
/// only when it is to be moved. A file that may not be written is not replaced.
class ORVANE_API FileReplacement {
 public:
  /// Writes `text`, which must last until it is moved, to a temporary neighbour of `file`.
  FileReplacement(const std::filesystem::path& file, std::string_view text);

  /// Why the text could not be written; nothing where it could.
  std::error_code Error() const { return m_error; }
  /// The file itself, behind all links, as far as it could be found.
  const std::filesystem::path& File() const { return m_file; }
  /// Whether it is there and no regular file.
  bool IsDevice() const { return m_isDevice; }
  /// Puts the text into the file's place and returns why that failed, if it did.
  std::error_code MoveIntoPlace();

 private:
  std::error_code WriteNeighbour();

  std::filesystem::path m_file;
  std::string_view m_text;
  bool m_isDevice = false;
  TemporaryFile m_neighbour;
  std::error_code m_error;
};

/// Replaces the text of one file.
ORVANE_API std::error_code ReplaceFile(const std::filesystem::path& file, std::string_view text);

}  // namespace orvane::host
