#include "stills/vrml/Lexer.h"

#include <charconv>
#include <cmath>

namespace orvane::stills {

namespace {

bool IsWordChar(char c) {
  return static_cast<unsigned char>(c) > 0x20 &&
         std::string_view("\"#',.[]\\{}").find(c) == std::string_view::npos;
}

bool IsWordStart(char c) {
  return IsWordChar(c) && !(c >= '0' && c <= '9') && c != '+' && c != '-';
}

}  // namespace

Lexer::Lexer(std::string_view text, Place start)
    : m_text(text), m_file(std::move(start.file)), m_line(start.line) {}

void Lexer::Fail(const std::string& message) const {
  throw Error(*m_file + ":" + std::to_string(m_line) + ": " + message);
}

void Lexer::SkipSpace() {
  while (m_at < m_text.size()) {
    const char c = m_text[m_at];
    if (c == '\n') {
      ++m_line;
      ++m_at;
    } else if (c == ' ' || c == '\t' || c == ',' || c == '\r') {
      ++m_at;
    } else if (c == '#') {
      while (m_at < m_text.size() && m_text[m_at] != '\n') ++m_at;
    } else {
      return;
    }
  }
}

std::string Lexer::Found() {
  if (AtEnd()) return "the end of the file";
  std::size_t end = m_at + 1;
  while (end < m_text.size() && end < m_at + 30 && IsWordChar(m_text[end])) ++end;
  return "\"" + std::string(m_text.substr(m_at, end - m_at)) + "\"";
}

void Lexer::Expect(char punctuation) {
  if (!Take(punctuation))
    Fail(std::string("expected \"") + punctuation + "\" but found " + Found());
}

std::string_view Lexer::PeekWord() {
  if (!IsWordStart(Peek())) return {};
  std::size_t end = m_at;
  while (end < m_text.size() && IsWordChar(m_text[end])) ++end;
  return m_text.substr(m_at, end - m_at);
}

bool Lexer::TakeWord(std::string_view word) {
  if (PeekWord() != word) return false;
  m_at += word.size();
  return true;
}

std::string_view Lexer::Word(const char* what) {
  const std::string_view word = PeekWord();
  if (word.empty()) Fail(std::string("expected ") + what + " but found " + Found());
  m_at += word.size();
  return word;
}

const char* Lexer::NumberStart() {
  SkipSpace();
  const char* start = m_text.data() + m_at;
  return m_at < m_text.size() && *start == '+' ? start + 1 : start;
}

void Lexer::NumberEnd(const char* start, const char* end, bool isGood, const char* what) {
  const char* stop = m_text.data() + m_text.size();
  if (!isGood || end == start || (end < stop && IsWordChar(*end))) {
    Fail(std::string("expected ") + what + " but found " + Found());
  }
  m_at = static_cast<std::size_t>(end - m_text.data());
}

double Lexer::Double() {
  const char* start = NumberStart();
  double value = 0;
  const auto [end, fault] = std::from_chars(start, m_text.data() + m_text.size(), value);
  NumberEnd(start, end, fault == std::errc() && std::isfinite(value), "a number");
  return value;
}

float Lexer::Float() {
  const char* start = NumberStart();
  float value = 0;
  const auto [end, fault] = std::from_chars(start, m_text.data() + m_text.size(), value);
  if (fault == std::errc::result_out_of_range) {  // too small for 32 bits, or too large
    const double wide = Double();
    if (std::abs(wide) > 1) Fail("a number is too large");
    return static_cast<float>(wide);
  }
  NumberEnd(start, end, fault == std::errc() && std::isfinite(value), "a number");
  return value;
}

std::int32_t Lexer::Int32() {
  const char* start = NumberStart();
  const char* stop = m_text.data() + m_text.size();
  const bool isHex = stop - start > 2 && start[0] == '0' && (start[1] == 'x' || start[1] == 'X');
  if (isHex) {
    std::uint32_t bits = 0;
    const auto [end, fault] = std::from_chars(start + 2, stop, bits, 16);
    NumberEnd(start + 2, end, fault == std::errc(), "a whole number");
    return static_cast<std::int32_t>(bits);
  }
  std::int32_t value = 0;
  const auto [end, fault] = std::from_chars(start, stop, value);
  NumberEnd(start, end, fault == std::errc(), "a whole number");
  return value;
}

std::string Lexer::String() {
  if (Peek() != '"') Fail("expected a string but found " + Found());
  const int first = m_line;
  std::string text;
  for (++m_at; m_at < m_text.size(); ++m_at) {
    char c = m_text[m_at];
    if (c == '"') {
      ++m_at;
      return text;
    }
    if (c == '\\' && m_at + 1 < m_text.size()) c = m_text[++m_at];
    if (c == '\n') ++m_line;
    text += c;
  }
  m_line = first;
  Fail("a string that begins here has no end");
}

}  // namespace orvane::stills
