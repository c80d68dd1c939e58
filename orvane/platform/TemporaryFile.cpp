#include "orvane/platform/TemporaryFile.h"

#include "orvane/platform/FolderLock.h"

#include <cerrno>
#include <functional>
#include <string>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace orvane::host {
namespace {

namespace fs = std::filesystem;

std::error_code LastError() { return {errno, std::generic_category()}; }

/// Whether another program holds the file. Where files cannot be locked, none does.
bool IsTaken(int descriptor) {
  return flock(descriptor, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK;
}

/// Removes the file at `path` unless a program holds it; whether the name is free then.
bool RemoveAbandoned(const fs::path& path) {
  const int descriptor = open(path.c_str(), O_WRONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC);
  if (descriptor < 0) return errno == ENOENT;
  const bool isAbandoned = !IsTaken(descriptor) && IsStill(descriptor, path);
  const bool isRemoved = isAbandoned && unlink(path.c_str()) == 0;
  close(descriptor);
  return isRemoved;
}

}  // namespace

TemporaryFile::~TemporaryFile() {
  if (!m_path.empty()) unlink(m_path.c_str());
  if (m_descriptor >= 0) close(m_descriptor);
}

std::error_code TemporaryFile::MakeBeside(const fs::path& file) {
  // The name goes with the file's, and is short however long that is.
  const auto stem = "." + std::to_string(std::hash<std::string>()(file.filename().native()));
  constexpr int kMostPrograms = 1000;  // Of those that replace the file at one time.
  constexpr mode_t kMode = 0666;
  for (int number = 0; number < kMostPrograms; ++number) {
    const fs::path path = file.parent_path() / (stem + "." + std::to_string(number) + ".tmp");
    m_descriptor = open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, kMode);
    if (m_descriptor < 0) {
      if (errno != EEXIST) return LastError();
      if (RemoveAbandoned(path)) --number;
      continue;
    }
    if (!IsTaken(m_descriptor) && IsStill(m_descriptor, path)) {
      m_path = path;
      return {};
    }
    close(m_descriptor);  // Another program has found it before it was locked.
    m_descriptor = -1;
  }
  return std::make_error_code(std::errc::file_exists);
}

std::error_code TemporaryFile::Write(std::string_view text) {
  while (!text.empty()) {
    const auto count = write(m_descriptor, text.data(), text.size());
    if (count < 0 && errno != EINTR) return LastError();
    if (count > 0) text.remove_prefix(static_cast<std::size_t>(count));
  }
  return {};
}

std::error_code TemporaryFile::Permissions(fs::perms permissions) {
  return fchmod(m_descriptor, static_cast<mode_t>(permissions)) == 0 ? std::error_code()
                                                                     : LastError();
}

std::error_code TemporaryFile::MoveTo(const fs::path& file) {
  if (rename(m_path.c_str(), file.c_str()) != 0) return LastError();
  m_path.clear();
  return {};
}

}  // namespace orvane::host
