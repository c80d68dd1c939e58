#include "orvane/platform/FileReplacement.h"

#include <cerrno>
#include <fstream>

#include <fcntl.h>
#include <unistd.h>

namespace orvane::host {
namespace {

namespace fs = std::filesystem;

std::error_code Put(const fs::path& file, std::string_view text) {
  errno = 0;
  std::ofstream stream(file, std::ios::binary | std::ios::trunc);
  stream.write(text.data(), static_cast<std::streamsize>(text.size()));
  stream.close();
  if (stream) return {};
  return {errno == 0 ? EIO : errno, std::generic_category()};
}

/// Where a file that is not there would be made: the end of the links, if it is one.
fs::path EndOfLinks(fs::path file, std::error_code& error) {
  std::error_code ignored;
  while (!error && fs::is_symlink(fs::symlink_status(file, ignored))) {
    file = file.parent_path() / fs::read_symlink(file, error);
  }
  const fs::path folder = file.has_parent_path() ? file.parent_path() : ".";
  return fs::canonical(folder, error) / file.filename();
}

/// Also a file without any write permission is left to its owner, who may be able to all the same.
bool IsWritable(const fs::path& file, fs::perms permissions) {
  constexpr auto kWrite = fs::perms::owner_write | fs::perms::group_write | fs::perms::others_write;
  return (permissions & kWrite) != fs::perms::none &&
         faccessat(AT_FDCWD, file.c_str(), W_OK, AT_EACCESS) == 0;
}

}  // namespace

FileReplacement::FileReplacement(const fs::path& file, std::string_view text)
    : m_file(file), m_text(text), m_error(WriteNeighbour()) {}

std::error_code FileReplacement::WriteNeighbour() {
  if (m_file.empty()) return std::make_error_code(std::errc::no_such_file_or_directory);
  if (m_file.native().find('\0') != fs::path::string_type::npos) {
    return std::make_error_code(std::errc::invalid_argument);
  }
  std::error_code error;
  const auto status = fs::status(m_file, error);
  if (fs::is_directory(status)) return std::make_error_code(std::errc::is_a_directory);
  const bool isThere = status.type() != fs::file_type::not_found;
  if (error && isThere) return error;
  m_isDevice = isThere && !fs::is_regular_file(status);
  if (m_isDevice) return {};
  error.clear();
  m_file = isThere ? fs::canonical(m_file, error) : EndOfLinks(m_file, error);
  if (error) return error;
  if (isThere && !IsWritable(m_file, status.permissions())) {
    return std::make_error_code(std::errc::permission_denied);
  }
  error = m_neighbour.MakeBeside(m_file);
  if (!error) error = m_neighbour.Write(m_text);
  if (!error && isThere) error = m_neighbour.Permissions(status.permissions());
  return error;
}

std::error_code FileReplacement::MoveIntoPlace() {
  if (m_error) return m_error;
  return m_isDevice ? Put(m_file, m_text) : m_neighbour.MoveTo(m_file);
}

std::error_code ReplaceFile(const fs::path& file, std::string_view text) {
  return FileReplacement(file, text).MoveIntoPlace();
}

}  // namespace orvane::host
