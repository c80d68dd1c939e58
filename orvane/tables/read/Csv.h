/// CSV (RFC 4180) as rows of cells, each with its place in the file.
///
/// Read here rather than with a package so that every complaint names its line and column.
#pragma once

#include "orvane/tables/read/Source.h"

#include <string>
#include <string_view>
#include <vector>

namespace orvane::tables {

struct CsvCell {
  std::string text;
  std::size_t offset;  ///< Of its first byte, the opening quote included.
};

/// Takes a text apart into rows of cells. Cells may be quoted; lines end in LF, CRLF or CR; empty
/// lines are no rows. Raises FileError, naming line and column.
class CsvReader {
 public:
  explicit CsvReader(const Source& source) : m_source(source), m_text(source.Text()) {}

  /// Offset of the byte after what was read.
  std::size_t Offset() const { return m_at; }
  /// Offset of the end of the row last read, before its line break.
  std::size_t RowEnd() const { return m_rowEnd; }

  /// Reads the first row, which says how many cells the others have; there must be one.
  std::vector<CsvCell> ReadHeader();
  /// Reads the next row, which has as many cells as the header; false at the end of the text.
  bool Next(std::vector<CsvCell>& row);

 private:
  bool AtEnd() const { return m_at == m_text.size(); }
  bool AtLineEnd() const { return AtEnd() || m_text[m_at] == '\n' || m_text[m_at] == '\r'; }
  bool AtCellEnd() const { return AtLineEnd() || m_text[m_at] == ','; }
  void SkipLineEnd() { m_at += m_text.substr(m_at).starts_with("\r\n") ? 2 : 1; }

  bool ReadRow(std::vector<CsvCell>& row);
  CsvCell ReadCell();
  std::string ReadQuoted();

  const Source& m_source;
  std::string_view m_text;
  std::size_t m_at = 0;
  std::size_t m_rowEnd = 0;
  std::size_t m_columnCount = 0;
};

/// `text` without the spaces and tabs around it.
std::string_view WithoutBlanks(std::string_view text);

/// The number in `cell`: decimal, finite, with "." and an optional exponent, blanks around it
/// ignored. Raises FileError.
double ReadNumber(const CsvCell& cell, const Source& source);

}  // namespace orvane::tables
