#include "orvane/tables/read/CsvRows.h"

#include "orvane/scene/Utf8.h"
#include "orvane/tables/read/Source.h"
#include "orvane/tables/read/TableInput.h"

#include <fstream>
#include <iostream>
#include <sstream>
#include <utility>

namespace orvane::tables {
namespace {

bool IsBlank(char c) { return c == ' ' || c == '\t'; }
bool IsLineEnd(char c) { return c == '\n' || c == '\r'; }

}  // namespace

CsvRows::CsvRows(std::string name, std::unique_ptr<std::istream> bytes, const ReadOptions& options)
    : Rows({name, Origin::Kind::Text}),
      m_input(std::move(name), std::move(bytes), options.encoding),
      m_separator(options.separator) {
  Start();
  if (m_separator != 0) return;
  // Only whole rows say how many cells a row has.
  std::string_view sample = m_buffer;
  if (!m_isLastPiece) sample = sample.substr(0, sample.find_last_of("\r\n") + 1);
  m_separator = RecogniseSeparator(sample);
  if (m_separator == 0) {
    FailAt(0, "more than one separator fits: --separator says which it is");
  }
}

void CsvRows::Start() {
  m_buffer.clear();
  m_row = m_at = m_rowEnd = m_newLines = 0;
  m_line = 1;
  m_known = {};
  m_spans.clear();
  m_isLastPiece = !m_input.Read(m_buffer);
  // How spreadsheets say it.
  const std::string_view text = m_buffer;
  if (!text.starts_with("sep=") || text.size() < 6 || !IsLineEnd(text[5])) return;
  m_separator = text[4];
  m_at = m_row = m_rowEnd = text.substr(5, 2) == "\r\n" ? 7 : 6;
  m_line = 2;
}

void CsvRows::Rewind() {
  m_input.Rewind();
  Start();
}

bool CsvRows::Next(std::vector<Cell>& row) {
  row.clear();
  while (!SkipLineEnds()) Refill();
  m_row = m_rowEnd = m_at;
  m_line += m_newLines;
  m_newLines = 0;
  m_known = {};
  m_spans.clear();
  if (m_at == m_buffer.size()) return false;
  while (!ReadRow()) Refill();
  CheckText();
  GiveCells(row);
  return true;
}

/// Reads another piece behind what is not yet a row, and goes back to the beginning of that.
bool CsvRows::Refill() {
  m_buffer.erase(0, m_row);
  m_row = m_at = 0;
  m_known = {};
  m_newLines = 0;
  m_isLastPiece = !m_input.Read(m_buffer);
  return !m_isLastPiece;
}

/// False when the buffer ended and is not the last.
bool CsvRows::SkipLineEnds() {
  const auto isLineFeed = [&](std::size_t at) {
    return at < m_buffer.size() && m_buffer[at] == '\n';
  };
  // What the row last read ended with is behind it, so that a refill does not count it again.
  while (m_at < m_buffer.size() && IsLineEnd(m_buffer[m_at])) {
    if (m_buffer[m_at] == '\r' && m_at + 1 == m_buffer.size() && !m_isLastPiece) {
      m_line += m_newLines;
      m_row = m_at;
      return false;
    }
    m_at += m_buffer[m_at] == '\r' && isLineFeed(m_at + 1) ? 2 : 1;
    ++m_newLines;
  }
  if (m_at < m_buffer.size() || m_isLastPiece) return true;
  m_line += m_newLines;
  m_row = m_at;
  return false;
}

bool CsvRows::IsCellEnd(std::size_t at) const {
  return at == m_buffer.size() || m_buffer[at] == m_separator || IsLineEnd(m_buffer[at]);
}

/// False when the buffer ended before the row and is not the last.
bool CsvRows::ReadRow() {
  m_spans.clear();
  const char* const text = m_buffer.data();
  const std::size_t size = m_buffer.size();
  while (true) {
    const std::size_t start = m_at;
    std::size_t quote = start;
    while (quote < size && text[quote] == ' ') ++quote;
    if (quote < size && text[quote] == '"') {
      m_at = quote;
      if (!ReadQuoted()) return false;
    } else {
      std::size_t at = start;
      const char separator = m_separator;
      while (at < size && text[at] != separator && text[at] != '\n' && text[at] != '\r') {
        if (text[at] == '"') FailAt(at, "a quote inside a cell that is not quoted");
        ++at;
      }
      m_at = at;
      m_spans.push_back({start, start, m_at, false});
    }
    if (m_at == size || text[m_at] != m_separator) break;
    ++m_at;
  }
  if (m_at == size && !m_isLastPiece) return false;
  m_rowEnd = m_at;
  return true;
}

bool CsvRows::ReadQuoted() {
  Span span{m_at, m_at + 1, 0, false};
  ++m_at;
  while (true) {
    const std::size_t quote = m_buffer.find('"', m_at);
    if (quote == std::string::npos || quote + 1 == m_buffer.size()) {
      if (!m_isLastPiece) return false;
      if (quote == std::string::npos) FailAt(span.start, "the quote is never closed");
    }
    m_at = quote + 1;
    if (m_at == m_buffer.size() || m_buffer[m_at] != '"') break;
    span.hasQuotes = true;
    ++m_at;
  }
  span.end = m_at - 1;
  const std::string_view text =
      std::string_view(m_buffer).substr(span.begin, span.end - span.begin);
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] == '\n' || (text[i] == '\r' && !text.substr(i + 1).starts_with('\n'))) ++m_newLines;
  }
  while (m_at < m_buffer.size() && IsBlank(m_buffer[m_at]) && m_buffer[m_at] != m_separator) ++m_at;
  if (!IsCellEnd(m_at)) {
    FailAt(m_at,
           std::string("expected \"") + m_separator + "\" or the end of the line after the quote");
  }
  m_spans.push_back(span);
  return true;
}

void CsvRows::CheckText() const {
  const std::string_view row = std::string_view(m_buffer).substr(m_row, m_rowEnd - m_row);
  unsigned char bits = 0;
  bool hasNul = false;
  for (const char c : row) {
    bits |= static_cast<unsigned char>(c);
    hasNul |= c == '\0';
  }
  if (bits < 0x80 && !hasNul) return;
  for (std::size_t at = 0; at < row.size();) {
    if (row[at] == '\0') {
      FailAt(m_row + at, "NUL where text is expected (--encoding UTF-16LE reads what has no mark)");
    }
    const std::size_t length = scene::Utf8Length(row.substr(at));
    if (length == 0) {
      FailAt(m_row + at, "malformed UTF-8 (--encoding names another, such as windows-1252)");
    }
    at += length;
  }
}

void CsvRows::GiveCells(std::vector<Cell>& row) {
  m_unquoted.clear();
  m_unquoted.reserve(m_rowEnd - m_row);  // So that no text in it ever moves.
  const std::string_view buffer = m_buffer;
  for (const Span& span : m_spans) {
    std::string_view text = buffer.substr(span.begin, span.end - span.begin);
    if (span.hasQuotes) {
      const std::size_t start = m_unquoted.size();
      for (std::size_t i = 0; i < text.size(); ++i) {
        m_unquoted += text[i];
        if (text[i] == '"') ++i;
      }
      text = std::string_view(m_unquoted).substr(start);
    }
    row.push_back({text, {}});
  }
}

Place CsvRows::PlaceOf(std::size_t column) const {
  return PlaceAt(column < m_spans.size() ? m_spans[column].start : m_rowEnd);
}

Place CsvRows::PlaceAt(std::size_t offset) const {
  // Goes on from the place last asked for: rows may have thousands of cells.
  if (m_known.row < m_line || offset < m_knownOffset) {
    m_known = {m_line, 1};
    m_knownOffset = m_row;
  }
  const std::string_view text =
      std::string_view(m_buffer).substr(m_knownOffset, offset - m_knownOffset);
  std::size_t start = 0;
  for (std::size_t i = 0; i < text.size(); ++i) {
    // A CR right before a LF belongs to it.
    if (text[i] != '\n' && (text[i] != '\r' || m_buffer[m_knownOffset + i + 1] == '\n')) continue;
    m_known = {m_known.row + 1, 1};
    start = i + 1;
  }
  m_known.column += scene::CharacterCount(text.substr(start));
  m_knownOffset = offset;
  return m_known;
}

void CsvRows::FailAt(std::size_t offset, const std::string& problem) const {
  From().Fail(PlaceAt(offset), problem);
}

TableInput TableFile(const std::string& path) {
  if (path == "-") {
    return {"standard input", [](const ReadOptions& options) {
              auto text = std::make_unique<std::stringstream>();
              *text << std::cin.rdbuf();  // Read twice, as all texts are.
              return std::make_unique<CsvRows>("standard input", std::move(text), options);
            }};
  }
  return {path, [path](const ReadOptions& options) {
            return std::make_unique<CsvRows>(path, std::make_unique<std::ifstream>(OpenFile(path)),
                                             options);
          }};
}

TableInput TableText(const std::string& name, const std::string& text) {
  return {name, [name, text](const ReadOptions& options) {
            return std::make_unique<CsvRows>(name, std::make_unique<std::istringstream>(text),
                                             options);
          }};
}

}  // namespace orvane::tables
