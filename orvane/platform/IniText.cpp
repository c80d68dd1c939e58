#include "orvane/platform/IniText.h"

#include "orvane/automation/AutomationError.h"

#include <algorithm>
#include <charconv>

namespace orvane::host {
namespace {

bool IsControl(char c) { return static_cast<unsigned char>(c) < 0x20 || c == 0x7F; }
bool IsBlank(char c) { return c == ' ' || c == '\t' || c == '\r'; }

std::string_view Stripped(std::string_view text) {
  while (!text.empty() && IsBlank(text.front())) text.remove_prefix(1);
  while (!text.empty() && IsBlank(text.back())) text.remove_suffix(1);
  return text;
}

/// The section that `line` begins, if it begins one.
std::optional<std::string_view> HeaderOf(std::string_view line) {
  line = Stripped(line);
  if (!line.starts_with('[') || !line.ends_with(']')) return std::nullopt;
  return Stripped(line.substr(1, line.size() - 2));
}

/// Whether `line` gives `key` a value, damaged or not.
bool IsOf(std::string_view line, std::string_view key) {
  const auto equals = line.find('=');
  return equals != std::string_view::npos && Stripped(line.substr(0, equals)) == key;
}

constexpr std::string_view kEscaped = "\\\"\n\r\t";
constexpr std::string_view kEscapes = "\\\"nrt";

std::string Quoted(std::string_view value) {
  const bool isPlain =
      std::ranges::none_of(value, IsControl) && Stripped(value) == value && !value.starts_with('"');
  if (isPlain) return std::string(value);
  std::string quoted = "\"";
  for (const char c : value) {
    if (const auto escape = kEscaped.find(c); escape != std::string_view::npos) {
      quoted += {'\\', kEscapes[escape]};
    } else if (IsControl(c)) {
      constexpr std::string_view kDigits = "0123456789abcdef";
      const auto code = static_cast<unsigned char>(c);
      quoted += {'\\', 'x', kDigits[code / 16], kDigits[code % 16]};
    } else {
      quoted += c;
    }
  }
  return quoted + '"';
}

/// What stands between double quotes; none when it does not end well.
std::optional<std::string> Unquoted(std::string_view text) {
  std::string value;
  for (std::size_t i = 1; i < text.size(); ++i) {
    if (text[i] == '"') return i + 1 == text.size() ? std::optional(value) : std::nullopt;
    if (text[i] != '\\') {
      value += text[i];
      continue;
    }
    if (++i == text.size()) break;
    if (const auto escape = kEscapes.find(text[i]); escape != std::string_view::npos) {
      value += kEscaped[escape];
    } else {
      unsigned char code = 0;
      const auto digits = text.substr(i + 1, 2);
      const char* const end = digits.data() + digits.size();
      if (text[i] != 'x' || digits.size() != 2 ||
          std::from_chars(digits.data(), end, code, 16).ptr != end) {
        break;
      }
      value += static_cast<char>(code);
      i += 2;
    }
  }
  return std::nullopt;
}

}  // namespace

IniText::IniText(std::string_view text) {
  while (!text.empty()) {
    const auto end = std::min(text.find('\n'), text.size());
    m_lines.emplace_back(text.substr(0, end));
    text.remove_prefix(std::min(end + 1, text.size()));
  }
}

bool IniText::IsName(std::string_view name) {
  return !name.empty() && Stripped(name) == name && std::ranges::none_of(name, IsControl) &&
         name.find_first_of("=[]\"") == std::string_view::npos && name.front() != '#' &&
         name.front() != ';';
}

std::optional<IniText::Range> IniText::Find(std::string_view section) const {
  const auto isHeader = [](const std::string& line) { return HeaderOf(line).has_value(); };
  auto first = m_lines.begin();
  if (!section.empty()) {
    first =
        std::ranges::find_if(m_lines, [&](const auto& line) { return HeaderOf(line) == section; });
    if (first == m_lines.end()) return std::nullopt;
    ++first;
  }
  const auto last = std::find_if(first, m_lines.end(), isHeader);
  return Range{static_cast<std::size_t>(first - m_lines.begin()),
               static_cast<std::size_t>(last - m_lines.begin())};
}

std::optional<std::string> IniText::Get(std::string_view section, std::string_view key) const {
  const auto range = Find(section);
  if (!range) return std::nullopt;
  for (std::size_t i = range->first; i < range->last; ++i) {
    const std::string_view line = m_lines[i];
    if (!IsOf(line, key)) continue;
    const auto value = Stripped(line.substr(line.find('=') + 1));
    if (value.starts_with('"')) return Unquoted(value);
    if (std::ranges::any_of(value, IsControl)) return std::nullopt;
    return std::string(value);
  }
  return std::nullopt;
}

void IniText::Set(std::string_view section, std::string_view key, std::string_view value) {
  Require(section.empty() || IsName(section), "Invalid name of a section of settings");
  Require(IsName(key), "Invalid name of a setting");
  std::string line(key);
  line.append("=").append(Quoted(value));
  auto range = Find(section);
  if (!range) {
    if (!m_lines.empty()) m_lines.emplace_back();
    m_lines.push_back("[" + std::string(section) + "]");
    range = Range{m_lines.size(), m_lines.size()};
  }
  for (std::size_t i = range->first; i < range->last; ++i) {
    if (!IsOf(m_lines[i], key)) continue;
    m_lines[i] = line;
    return;
  }
  // Ahead of the empty lines that part this section from the next.
  auto end = range->last;
  while (end > range->first && Stripped(m_lines[end - 1]).empty()) --end;
  m_lines.insert(m_lines.begin() + static_cast<std::ptrdiff_t>(end), line);
}

void IniText::Remove(std::string_view section) {
  const auto range = Find(section);
  if (!range) return;
  const auto at = [&](std::size_t i) { return m_lines.begin() + static_cast<std::ptrdiff_t>(i); };
  m_lines.erase(at(range->first - (section.empty() ? 0 : 1)), at(range->last));
  while (!m_lines.empty() && Stripped(m_lines.back()).empty()) m_lines.pop_back();
}

std::string IniText::Text() const {
  std::string text;
  for (const auto& line : m_lines) text += line + '\n';
  return text;
}

}  // namespace orvane::host
