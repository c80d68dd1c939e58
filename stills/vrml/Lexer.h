/// Words, numbers and strings of a VRML97 file, with the line that each stands on.
#pragma once

#include "stills/Error.h"
#include "stills/vrml/Texts.h"

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

namespace orvane::stills {

/// Reads a text from front to back. What is not as it should be raises an Error that says where.
class Lexer {
 public:
  /// `file` is named in errors; lines count from `line`.
  Lexer(std::string_view text, Place start);

  Place Here() const { return {m_file, m_line}; }
  [[noreturn]] void Fail(const std::string& message) const;

  /// True at the end of the text.
  bool AtEnd() {
    SkipSpace();
    return m_at == m_text.size();
  }

  /// The next character that is not space, or 0 at the end.
  char Peek() {
    SkipSpace();
    return m_at < m_text.size() ? m_text[m_at] : '\0';
  }

  /// True, and past it, if that character is next.
  bool Take(char punctuation) {
    if (Peek() != punctuation) return false;
    ++m_at;
    return true;
  }

  void Expect(char punctuation);

  /// The identifier or keyword that is next, without passing it; empty for none.
  std::string_view PeekWord();
  /// True, and past it, if that word is next.
  bool TakeWord(std::string_view word);
  /// An identifier; `what` is named where there is none.
  std::string_view Word(const char* what);

  float Float();
  double Double();
  std::int32_t Int32();
  std::string String();

 private:
  void SkipSpace();
  /// What stands next, for an error.
  std::string Found();
  /// Start of a number, past a "+" that from_chars does not take.
  const char* NumberStart();
  void NumberEnd(const char* start, const char* end, bool isGood, const char* what);

  std::string_view m_text;
  std::size_t m_at = 0;
  std::shared_ptr<const std::string> m_file;
  int m_line;
};

}  // namespace orvane::stills
