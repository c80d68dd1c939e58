/// A lock that keeps programs of one user from changing the files of a folder at the same time.
#pragma once

#include "orvane/automation/Export.h"

#include <filesystem>

namespace orvane::host {

/// Whether `path` still names the file or folder that is open as `descriptor`.
bool IsStill(int descriptor, const std::filesystem::path& path);

/// Held while it lives; the next one to lock the folder, in this program or another, waits. It is
/// a lock on the folder itself: nothing is left behind, however the program ends.
class ORVANE_API FolderLock {
 public:
  /// Makes the folder where it is missing, for its user alone. Throws std::system_error.
  explicit FolderLock(const std::filesystem::path& folder);
  FolderLock(const FolderLock&) = delete;
  FolderLock& operator=(const FolderLock&) = delete;
  ~FolderLock();

 private:
  int m_descriptor;
};

}  // namespace orvane::host
