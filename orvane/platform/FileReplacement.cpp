#include "orvane/platform/FileReplacement.h"

#include <cerrno>
#include <fstream>
#include <random>
#include <string>
#include <utility>

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

}  // namespace

FileReplacement::FileReplacement(fs::path file, std::string_view text)
    : m_file(std::move(file)), m_text(text), m_error(WriteNeighbour()) {}

FileReplacement::~FileReplacement() {
  std::error_code ignored;
  if (!m_neighbour.empty()) fs::remove(m_neighbour, ignored);
}

std::error_code FileReplacement::WriteNeighbour() {
  if (m_file.empty()) return std::make_error_code(std::errc::no_such_file_or_directory);
  std::error_code error;
  const auto status = fs::status(m_file, error);
  if (fs::is_directory(status)) return std::make_error_code(std::errc::is_a_directory);
  if (fs::exists(status)) {
    if (!fs::is_regular_file(status)) return {};
    m_file = fs::canonical(m_file, error);
    if (error) return error;
  } else if (fs::is_symlink(m_file, error)) {
    return {};
  }
  m_neighbour = m_file;
  m_neighbour.replace_filename("." + std::to_string(std::random_device()()) + ".tmp");
  error = Put(m_neighbour, m_text);
  if (!error && fs::exists(status)) fs::permissions(m_neighbour, status.permissions(), error);
  return error;
}

std::error_code FileReplacement::MoveIntoPlace() {
  if (m_error) return m_error;
  if (m_neighbour.empty()) return Put(m_file, m_text);
  std::error_code error;
  fs::rename(m_neighbour, m_file, error);
  if (!error) m_neighbour.clear();
  return error;
}

std::error_code ReplaceFile(const fs::path& file, std::string_view text) {
  return FileReplacement(file, text).MoveIntoPlace();
}

}  // namespace orvane::host
