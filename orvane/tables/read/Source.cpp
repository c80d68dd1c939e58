#include "orvane/tables/read/Source.h"

#include "orvane/scene/Utf8.h"

#include <cerrno>
#include <iterator>
#include <string_view>
#include <system_error>
#include <utility>

namespace orvane::tables {

namespace {

FileError Unreadable(const std::filesystem::path& path, const std::error_code& error) {
  return FileError(path.string() + ": cannot be read: " + error.message());
}

}  // namespace

std::ifstream OpenFile(const std::filesystem::path& path) {
  std::error_code error;
  if (std::filesystem::is_directory(path, error)) {
    throw Unreadable(path, std::make_error_code(std::errc::is_a_directory));
  }
  errno = 0;
  std::ifstream file(path, std::ios::binary);
  if (!file) throw Unreadable(path, {errno, std::generic_category()});
  return file;
}

Source::Source(std::string name, std::string text)
    : m_name(std::move(name)), m_text(std::move(text)) {
  constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
  if (m_text.starts_with(kByteOrderMark)) m_text.erase(0, kByteOrderMark.size());

  for (std::size_t at = 0; at < m_text.size();) {
    if (m_text[at] == '\0') Fail(at, "NUL where text is expected");
    const std::size_t length = scene::Utf8Length(std::string_view(m_text).substr(at));
    if (length == 0) Fail(at, "malformed UTF-8");
    at += length;
  }
}

Source Source::Read(const std::filesystem::path& path) {
  std::ifstream file = OpenFile(path);
  std::string text{std::istreambuf_iterator<char>(file), {}};
  if (file.bad()) throw Unreadable(path, std::make_error_code(std::errc::io_error));
  return {path.string(), std::move(text)};
}

void Source::Fail(std::size_t offset, const std::string& problem) const {
  const std::string_view before = std::string_view(m_text).substr(0, offset);
  std::size_t line = 1;
  std::size_t start = 0;
  for (std::size_t i = 0; i < before.size(); ++i) {
    // A CR right before a LF belongs to it.
    if (before[i] != '\n' && (before[i] != '\r' || m_text[i + 1] == '\n')) continue;
    ++line;
    start = i + 1;
  }
  const std::size_t column = scene::CharacterCount(before.substr(start)) + 1;
  throw FileError(m_name + ":" + std::to_string(line) + ":" + std::to_string(column) + ": " +
                  problem);
}

}  // namespace orvane::tables
