#include "Table.h"

#include <charconv>
#include <cmath>
#include <string_view>
#include <system_error>
#include <unordered_map>
#include <utility>

namespace orvane::tool {
namespace {

struct CsvCell {
  std::string text;
  std::size_t offset;  ///< Of its first byte, the opening quote included.
};

/// Takes a text apart into rows of cells.
class CsvReader {
 public:
  explicit CsvReader(const Source& source) : m_source(source), m_text(source.Text()) {}

  /// Offset of the byte after what was read.
  std::size_t Offset() const { return m_at; }
  /// Offset of the end of the row last read, before its line break.
  std::size_t RowEnd() const { return m_rowEnd; }

  /// Reads the next row that is not an empty line; false at the end of the text.
  bool Next(std::vector<CsvCell>& row) {
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

 private:
  bool AtEnd() const { return m_at == m_text.size(); }
  bool AtLineEnd() const { return AtEnd() || m_text[m_at] == '\n' || m_text[m_at] == '\r'; }
  bool AtCellEnd() const { return AtLineEnd() || m_text[m_at] == ','; }

  void SkipLineEnd() { m_at += m_text.substr(m_at).starts_with("\r\n") ? 2 : 1; }

  CsvCell ReadCell() {
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

  std::string ReadQuoted() {
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
    if (!AtCellEnd())
      m_source.Fail(m_at, "expected a comma or the end of the line after the quote");
    return text;
  }

  const Source& m_source;
  std::string_view m_text;
  std::size_t m_at = 0;
  std::size_t m_rowEnd = 0;
};

std::string_view Trimmed(std::string_view text) {
  constexpr std::string_view kBlanks = " \t";
  const std::size_t first = text.find_first_not_of(kBlanks);
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

TableCell ReadNumber(const CsvCell& cell, MissingCell missing, const Source& source) {
  const std::string_view text = Trimmed(cell.text);
  if (text.empty()) {
    if (missing == MissingCell::Zero) return {0, "0", cell.offset};
    source.Fail(cell.offset, "empty cell (--missing zero reads it as 0)");
  }
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
  return {number, std::string(text), cell.offset};
}

void ReadHeader(const std::vector<CsvCell>& row, std::size_t rowEnd, const Source& source,
                Table& table) {
  if (row.size() < 2) source.Fail(rowEnd, "the header names no series after its first column");
  table.categoryHeader = row[0].text;
  std::unordered_map<std::string_view, std::size_t> columns;
  for (std::size_t column = 1; column < row.size(); ++column) {
    const CsvCell& cell = row[column];
    if (column > kMostCells) {
      source.Fail(cell.offset, "more than " + std::to_string(kMostCells) + " series");
    }
    const auto [first, isNew] = columns.try_emplace(cell.text, column);
    if (!isNew) {
      source.Fail(cell.offset, "series name \"" + cell.text + "\" is already that of column " +
                                   std::to_string(first->second + 1));
    }
    table.series.push_back({cell.text, {}, cell.offset});
  }
}

}  // namespace

Table ReadTable(const Source& source, MissingCell missing) {
  CsvReader reader(source);
  Table table;
  table.file = source.Name();
  std::vector<CsvCell> row;
  if (!reader.Next(row)) source.Fail(0, "the file is empty");
  ReadHeader(row, reader.RowEnd(), source, table);

  const std::size_t columnCount = row.size();
  while (reader.Next(row)) {
    if (row.size() != columnCount) {
      source.Fail(row.size() < columnCount ? reader.RowEnd() : row[columnCount].offset,
                  "the row has " + std::to_string(row.size()) + " cell(s), the header has " +
                      std::to_string(columnCount));
    }
    if (table.categories.size() == kMostCells) {
      source.Fail(row[0].offset, "more than " + std::to_string(kMostCells) + " categories");
    }
    for (std::size_t column = 1; column < columnCount; ++column) {
      table.series[column - 1].cells.push_back(ReadNumber(row[column], missing, source));
    }
    table.categories.push_back(std::move(row[0].text));
  }
  if (table.categories.empty()) {
    source.Fail(reader.Offset(), "the header has no rows of numbers below it");
  }
  return table;
}

}  // namespace orvane::tool
