#include "orvane/tables/read/Csv.h"

#include <charconv>
#include <cmath>
#include <system_error>

namespace orvane::tables {

std::vector<CsvCell> CsvReader::ReadHeader() {
  std::vector<CsvCell> header;
  if (!ReadRow(header)) m_source.Fail(0, "the file is empty");
  m_columnCount = header.size();
  return header;
}

bool CsvReader::Next(std::vector<CsvCell>& row) {
  if (!ReadRow(row)) return false;
  if (row.size() != m_columnCount) {
    m_source.Fail(row.size() < m_columnCount ? m_rowEnd : row[m_columnCount].offset,
                  "the row has " + std::to_string(row.size()) + " cell(s), the header has " +
                      std::to_string(m_columnCount));
  }
  return true;
}

bool CsvReader::ReadRow(std::vector<CsvCell>& row) {
  while (AtLineEnd() && !AtEnd()) SkipLineEnd();
  if (AtEnd()) return false;
  row.clear();
  row.push_back(ReadCell());
  while (!AtLineEnd()) {
    ++m_at;  // The comma: ReadCell stops at nothing else.
    row.push_back(ReadCell());
  }
  m_rowEnd = m_at;
  if (!AtEnd()) SkipLineEnd();
  return true;
}

CsvCell CsvReader::ReadCell() {
  CsvCell cell{"", m_at};
  if (!AtEnd() && m_text[m_at] == '"') {
    cell.text = ReadQuoted();
    return cell;
  }
  for (; !AtCellEnd(); ++m_at) {
    if (m_text[m_at] == '"') m_source.Fail(m_at, "a quote inside a cell that is not quoted");
    cell.text += m_text[m_at];
  }
  return cell;
}

std::string CsvReader::ReadQuoted() {
  const std::size_t start = m_at++;
  std::string text;
  while (true) {
    const std::size_t quote = m_text.find('"', m_at);
    if (quote == std::string_view::npos) m_source.Fail(start, "the quote is never closed");
    text += m_text.substr(m_at, quote - m_at);
    m_at = quote + 1;
    if (AtEnd() || m_text[m_at] != '"') break;
    text += m_text[m_at++];
  }
  if (!AtCellEnd()) m_source.Fail(m_at, "expected a comma or the end of the line after the quote");
  return text;
}

std::string_view WithoutBlanks(std::string_view text) {
  constexpr std::string_view kBlanks = " \t";
  const std::size_t first = text.find_first_not_of(kBlanks);
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

double ReadNumber(const CsvCell& cell, const Source& source) {
  const std::string_view text = WithoutBlanks(cell.text);
  if (text.empty()) source.Fail(cell.offset, "empty cell");
  const std::string quoted = '"' + std::string(text) + '"';
  std::string_view digits = text;
  if (digits.starts_with('+') && !digits.starts_with("+-")) digits.remove_prefix(1);

  double number = 0;
  const auto result = std::from_chars(digits.data(), digits.data() + digits.size(), number);
  if (result.ptr != digits.data() + digits.size() || result.ec == std::errc::invalid_argument) {
    source.Fail(cell.offset, quoted + " is not a number");
  }
  if (result.ec == std::errc::result_out_of_range) {
    source.Fail(cell.offset, quoted + " is too large or too small");
  }
  if (!std::isfinite(number)) source.Fail(cell.offset, quoted + " is not a finite number");
  return number;
}

}  // namespace orvane::tables
