#include "stills/scene/LoopGuard.h"

#include "stills/Error.h"

#include <algorithm>
#include <cctype>
#include <vector>

namespace orvane::stills {

namespace {

bool IsNameChar(char c) {
  return std::isalnum(static_cast<unsigned char>(c)) || c == '_' || c == '$' || (c & 0x80) != 0;
}

/// Copies the script token by token, and adds ticks on the way.
class Guard {
 public:
  explicit Guard(std::string_view script) : m_text(script) {}

  std::string Run() {
    while (m_at < m_text.size()) Token();
    return std::move(m_out);
  }

 private:
  struct Open {
    bool isControl = false;    ///< of if, while, for, switch or with: "{" after it is no function's
    bool isWaiting = false;    ///< of a for: its condition is still to come
    bool isCondition = false;  ///< of a for: a condition or the ";" after none is next
  };

  void Token() {
    const char c = m_text[m_at];
    if (std::isspace(static_cast<unsigned char>(c))) {
      Copy(1);
      return;
    }
    if (c == '/' && Next() == '/')
      Copy(LineEnd(m_at) - m_at);
    else if (c == '/' && Next() == '*')
      Copy(m_text.find("*/", m_at + 2) - m_at + 2);
    else
      Significant(c);
  }

  void Significant(char c) {
    if (!m_open.empty() && m_open.back().isCondition) {
      m_open.back().isCondition = false;
      m_out += c == ';' ? "__tick(),true" : "__tick(),";
    }
    if (c == '"' || c == '\'')
      String(c);
    else if (c == '/' && m_isUnclear)
      throw Error("a \"/\" after \"}\", \"++\" or \"--\" is not taken");
    else if (c == '/' && !m_endsValue)
      Regex();
    else if (IsNameChar(c))
      Word();
    else
      Punctuation(c);
  }

  void Word() {
    std::size_t size = 1;
    while (m_at + size < m_text.size() && IsNameChar(m_text[m_at + size])) ++size;
    const bool isMember = m_last == ".";
    m_last = m_text.substr(m_at, size);
    if (isMember) m_last = "name";
    const bool asksForValue = m_last == "return" || m_last == "typeof" || m_last == "case" ||
                              m_last == "in" || m_last == "delete" || m_last == "void" ||
                              m_last == "throw" || m_last == "new" || m_last == "else" ||
                              m_last == "do" || m_last == "instanceof";
    m_endsValue = !asksForValue;
    m_isUnclear = false;
    Copy(size);
  }

  void Punctuation(char c) {
    const std::string_view rest = m_text.substr(m_at);
    if (rest.starts_with("<!--") || rest.starts_with("-->")) {
      throw Error("a comment of HTML is not taken");
    }
    const std::string_view before = m_last;
    m_last = rest.substr(0, 1);
    m_endsValue = c == ')' || c == ']' || c == '}';
    m_isUnclear = c == '}' || rest.starts_with("++") || rest.starts_with("--");
    Copy(rest.starts_with("++") || rest.starts_with("--") ? 2 : 1);
    if (c == '(')
      OpenParen(before);
    else if (c == ')')
      CloseParen();
    else if (c == ';')
      Semicolon();
    else if (c == '{')
      OpenBrace(before);
    else if (c == '}' && !m_open.empty())
      m_open.pop_back();
    if (c != ')') m_isBody = false;
  }

  void OpenParen(std::string_view before) {
    const bool isControl = before == "if" || before == "while" || before == "for" ||
                           before == "switch" || before == "with";
    m_open.push_back({isControl, before == "for", false});
    if (before == "while") m_out += "__tick(),";
  }

  void OpenBrace(std::string_view before) {
    m_open.push_back({});
    if (before == "finally" || m_isBody) m_out += "__tick();";
  }

  void CloseParen() {
    if (m_open.empty()) return;
    // After if (...) and the like, a "/" begins a regular expression.
    if (m_open.back().isControl) m_endsValue = false;
    m_isBody = !m_open.back().isControl;
    m_open.pop_back();
  }

  void Semicolon() {
    if (m_open.empty() || !m_open.back().isWaiting) return;
    m_open.back().isWaiting = false;
    m_open.back().isCondition = true;
  }

  void String(char quote) {
    std::size_t size = 1;
    while (m_at + size < m_text.size() && m_text[m_at + size] != quote) {
      if (LineEnd(m_at + size) == m_at + size)
        throw Error("a string goes over the end of its line");
      size += m_text[m_at + size] == '\\' ? 2 : 1;
    }
    Value(size + 1);
  }

  void Regex() {
    std::size_t size = 1;
    bool isClass = false;
    for (; m_at + size < m_text.size() && (isClass || m_text[m_at + size] != '/'); ++size) {
      const char c = m_text[m_at + size];
      if (LineEnd(m_at + size) == m_at + size) throw Error("a regular expression has no end");
      if (c == '\\')
        ++size;
      else if (c == '[')
        isClass = true;
      else if (c == ']')
        isClass = false;
    }
    Value(size + 1);
  }

  void Value(std::size_t size) {
    Copy(size);
    m_last = "value";
    m_endsValue = true;
    m_isUnclear = false;
    m_isBody = false;
  }

  /// Where the line ends that `from` is on: all four ends of lines that the language knows.
  std::size_t LineEnd(std::size_t from) const {
    for (; from < m_text.size(); ++from) {
      const std::string_view rest = m_text.substr(from, 3);
      if (rest[0] == '\n' || rest[0] == '\r' || rest == "\u2028" || rest == "\u2029") break;
    }
    return from;
  }

  char Next() const { return m_at + 1 < m_text.size() ? m_text[m_at + 1] : '\0'; }

  void Copy(std::size_t size) {
    size = std::min(size, m_text.size() - m_at);
    m_out += m_text.substr(m_at, size);
    m_at += size;
  }

  std::string_view m_text;
  std::size_t m_at = 0;
  std::string m_out;
  std::string_view m_last;   ///< the last token but space and comments
  bool m_endsValue = false;  ///< a "/" would divide
  bool m_isUnclear = false;  ///< whether it would, cannot be told here
  bool m_isBody = false;     ///< a "{" would begin the body of a function or a catch
  std::vector<Open> m_open;
};

}  // namespace

std::string WithTicks(std::string_view script) { return Guard(script).Run(); }

}  // namespace orvane::stills
