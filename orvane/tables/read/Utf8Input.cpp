#include "orvane/tables/read/Utf8Input.h"

#include "orvane/tables/read/Source.h"

#include <array>
#include <cerrno>
#include <string_view>
#include <system_error>
#include <utility>

#include <iconv.h>

namespace orvane::tables {
namespace {

constexpr std::size_t kPiece = std::size_t{1} << 18;
constexpr std::string_view kUtf8Mark = "\xEF\xBB\xBF";

}  // namespace

Utf8Input::Utf8Input(std::string name, std::unique_ptr<std::istream> bytes, std::string encoding)
    : m_name(std::move(name)), m_bytes(std::move(bytes)), m_encoding(std::move(encoding)) {
  Start();
}

Utf8Input::~Utf8Input() {
  if (m_converter != nullptr) iconv_close(m_converter);
}

void Utf8Input::Start() {
  m_pending.resize(kUtf8Mark.size());
  m_pending.resize(ReadBytes(m_pending.data(), m_pending.size()));
  if (m_encoding.empty()) {
    if (m_pending.starts_with("\xFF\xFE")) m_encoding = "UTF-16LE";
    if (m_pending.starts_with("\xFE\xFF")) m_encoding = "UTF-16BE";
  }
  if (m_pending == kUtf8Mark) m_pending.clear();
  if (m_encoding.empty() || m_converter != nullptr) return;
  // NOLINTNEXTLINE(performance-no-int-to-ptr): the C interface's own sign of failure.
  const auto failed = reinterpret_cast<iconv_t>(-1);
  const iconv_t converter = iconv_open("UTF-8", m_encoding.c_str());
  if (converter == failed) {
    throw FileError(m_name + ": no encoding is called \"" + m_encoding + '"');
  }
  m_converter = converter;
}

void Utf8Input::Rewind() {
  m_bytes->clear();
  m_bytes->seekg(0);
  m_converted = 0;
  if (m_converter != nullptr) iconv(m_converter, nullptr, nullptr, nullptr, nullptr);
  Start();
}

std::size_t Utf8Input::ReadBytes(char* to, std::size_t size) {
  m_bytes->read(to, static_cast<std::streamsize>(size));
  if (m_bytes->bad()) {
    throw FileError(m_name + ": cannot be read: " + std::generic_category().message(EIO));
  }
  return static_cast<std::size_t>(m_bytes->gcount());
}

bool Utf8Input::Read(std::string& text) {
  if (m_converter != nullptr) return ReadConverted(text);
  text += m_pending;
  const std::size_t taken = m_pending.size();
  m_pending.clear();
  const std::size_t before = text.size();
  text.resize(before + kPiece);
  const std::size_t count = ReadBytes(text.data() + before, kPiece);
  text.resize(before + count);
  return taken + count > 0;
}

bool Utf8Input::ReadConverted(std::string& text) {
  const std::size_t before = m_pending.size();
  m_pending.resize(before + kPiece);
  const std::size_t count = ReadBytes(m_pending.data() + before, kPiece);
  m_pending.resize(before + count);
  if (m_pending.empty()) return false;

  const bool isStart = m_converted == 0;
  const std::size_t start = text.size();
  char* from = m_pending.data();
  std::size_t left = m_pending.size();
  std::array<char, 4096> converted{};
  while (left > 0) {
    char* to = converted.data();
    std::size_t room = converted.size();
    const std::size_t status = iconv(m_converter, &from, &left, &to, &room);
    const int error = errno;
    text.append(converted.data(), converted.size() - room);
    if (status != static_cast<std::size_t>(-1) || error == E2BIG) continue;
    if (error == EINVAL && count > 0) break;  // The rest of a character comes with the next piece.
    throw FileError(m_name + ": byte " + std::to_string(m_converted + m_pending.size() - left + 1) +
                    " is not " + m_encoding);
  }
  m_converted += m_pending.size() - left;
  m_pending.erase(0, m_pending.size() - left);
  if (isStart && std::string_view(text).substr(start).starts_with(kUtf8Mark)) {
    text.erase(start, kUtf8Mark.size());
  }
  return true;
}

}  // namespace orvane::tables
