#include "orvane/platform/FolderLock.h"

#include <cerrno>
#include <system_error>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace orvane::host {
namespace {

namespace fs = std::filesystem;

/// Makes `folder` and what it stands in, each with the mode that the XDG base directories ask for.
void MakeFolder(const fs::path& folder) {
  if (folder.has_parent_path() && !fs::exists(folder.parent_path())) {
    MakeFolder(folder.parent_path());
  }
  if (fs::create_directory(folder)) fs::permissions(folder, fs::perms::owner_all);
}

}  // namespace

bool IsStill(int descriptor, const fs::path& path) {
  struct stat held {};
  struct stat named {};
  return fstat(descriptor, &held) == 0 && stat(path.c_str(), &named) == 0 &&
         held.st_ino == named.st_ino && held.st_dev == named.st_dev;
}

FolderLock::FolderLock(const fs::path& folder) {
  for (;;) {
    MakeFolder(folder);
    m_descriptor = open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (m_descriptor < 0) {
      if (errno == ENOENT) continue;  // Removed by another program in between.
      throw std::system_error(errno, std::generic_category());
    }
    int status = 0;
    do {
      status = flock(m_descriptor, LOCK_EX);
    } while (status != 0 && errno == EINTR);
    if (status == 0 && IsStill(m_descriptor, folder)) return;
    const int reason = errno;
    close(m_descriptor);
    if (status != 0) throw std::system_error(reason, std::generic_category());
  }
}

FolderLock::~FolderLock() { close(m_descriptor); }

}  // namespace orvane::host
