/// Text with separators between cells (RFC 4180 and what is like it) as rows of cells.
///
/// Read here rather than with a package so that every complaint names its line and column.
#pragma once

#include "orvane/tables/read/ReadOptions.h"
#include "orvane/tables/read/Rows.h"
#include "orvane/tables/read/Utf8Input.h"

#include <istream>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace orvane::tables {

/// Takes a text apart, holding a piece of it at a time. Cells may be quoted; lines end in LF, CRLF
/// or CR; empty lines are no rows. A first line "sep=;" names the separator.
///
/// Raises FileError, naming line and column, also for malformed UTF-8, for NUL, and where the
/// separator can be one or the other.
class CsvRows final : public Rows {
 public:
  /// `name` is what messages call the text.
  CsvRows(std::string name, std::unique_ptr<std::istream> bytes, const ReadOptions& options);

  bool IsSpelled() const override { return true; }
  bool HasDecimalPoint() const override { return m_separator == ','; }
  bool Next(std::vector<Cell>& row) override;
  void Rewind() override;
  Place PlaceOf(std::size_t column) const override;

 private:
  /// A cell's bytes in the buffer; `start` is that of its quotes.
  struct Span {
    std::size_t start;
    std::size_t begin;
    std::size_t end;
    bool hasQuotes;  ///< Doubled ones, each of which stands for one.
  };

  void Start();
  bool SkipLineEnds();
  bool ReadRow();
  bool ReadQuoted();
  bool Refill();
  bool IsCellEnd(std::size_t at) const;
  void CheckText() const;
  void GiveCells(std::vector<Cell>& row);
  Place PlaceAt(std::size_t offset) const;
  [[noreturn]] void FailAt(std::size_t offset, const std::string& problem) const;

  Utf8Input m_input;
  char m_separator;
  std::string m_buffer;
  bool m_isLastPiece = false;
  std::size_t m_row = 0;       ///< Where the row last read begins in the buffer.
  std::size_t m_at = 0;        ///< Where the next one does.
  std::size_t m_rowEnd = 0;    ///< Of the row last read, before its line break.
  std::size_t m_line = 1;      ///< Of the row last read.
  std::size_t m_newLines = 0;  ///< From there to `m_at`.
  mutable Place m_known;       ///< Of the byte at `m_knownOffset`, in the row last read.
  mutable std::size_t m_knownOffset = 0;
  std::vector<Span> m_spans;
  std::string m_unquoted;
};

/// The separator that takes `sample`, the beginning of a text, apart into rows of one length.
/// 0 where there is more than one.
char RecogniseSeparator(std::string_view sample);

}  // namespace orvane::tables
