/// A table with a header, as far as all kinds of table are read alike: which columns and rows are
/// taken, and how a whole column spells its numbers.
#pragma once

#include "orvane/tables/read/Numbers.h"
#include "orvane/tables/read/ReadOptions.h"
#include "orvane/tables/read/Rows.h"
#include "orvane/tables/read/Selection.h"

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace orvane::tables {

/// Raises FileError for all that cannot be read, or can be read in two ways.
class TableReader {
 public:
  struct Column {
    std::string name;
    Place place;
    std::string unit;        ///< "%" or a currency that all its numbers have.
    std::size_t source = 0;  ///< Its index in the rows.
    bool isNumber = false;
  };

  /// Reads the header; `options` says which columns are taken, in which order.
  TableReader(Rows& rows, const ReadOptions& options);

  const Origin& From() const { return m_rows.From(); }
  const std::vector<Column>& Columns() const { return m_columns; }
  /// Of the header.
  const Place& HeaderEnd() const { return m_headerEnd; }
  /// Index of the column that is called so, or has that letter or number. `option` asks for it.
  std::size_t Find(const std::string& name, const std::string& option) const;

  /// Says that `columns` hold numbers, and looks through all rows how they are spelled. Where
  /// `mayMiss`, the option `missing` says whether some of them may be left out.
  void ReadNumbersIn(const std::vector<std::size_t>& columns, bool mayMiss);
  /// Drops columns that have neither a name nor a text.
  void DropEmptyColumns();

  /// Reads the next of the rows that are taken.
  bool Next();
  /// Of the row last read, blanks around it taken off, or as it is.
  std::string_view Text(std::size_t column) const;
  std::string_view RawText(std::size_t column) const;
  /// NaN where there is none.
  double Number(std::size_t column) const;
  Place PlaceOf(std::size_t column) const { return m_rows.PlaceOf(m_columns[column].source); }
  [[noreturn]] void Fail(std::size_t column, const std::string& problem) const;
  [[noreturn]] void FailAtEnd(const std::string& problem) const { m_rows.Fail(0, problem); }
  /// Of the rows below the header that were read.
  std::size_t RowNumber() const { return m_rowNumber; }

  /// What a user should know although the table can be read.
  std::vector<std::string> warnings;

 private:
  /// What the numbers of a column have in common.
  struct Spelling {
    std::string first;  ///< The text of its first number; empty: none yet.
    Place firstPlace;
    /// For each decimal mark, how digits are grouped, and the place of who does otherwise.
    std::array<std::string, 2> group;
    std::array<std::optional<Place>, 2> otherGroup;
    std::optional<Place> empty;  ///< The first cell without a text.
    bool hasText = false;
  };

  void TakeHeader(const std::vector<Cell>& header);
  void WarnOfHeader(const std::vector<Cell>& header);
  bool ReadRow();
  bool IsBlankRow() const;
  void CheckLength() const;
  void SurveyRow();
  void SurveyNumber(std::size_t column, std::string_view text);
  void DecideMark();
  [[noreturn]] void FailAsText(std::size_t column, std::string_view text) const;
  [[noreturn]] void FailAsMissing(const Place& place, std::string_view text) const;

  Rows& m_rows;
  const ReadOptions& m_options;
  Selection m_selection;
  std::vector<Column> m_columns;
  std::vector<Spelling> m_spellings;
  Place m_headerEnd;
  std::size_t m_headerSize = 0;
  std::vector<Cell> m_row;
  std::size_t m_rowNumber = 0;
  std::optional<std::size_t> m_lastRow;  ///< The last one that has a text; unknown until surveyed.
  bool m_mayMiss = false;

  DecimalMark m_mark = DecimalMark::Point;
  std::array<bool, 2> m_fits = {true, true};  ///< For each decimal mark.
  std::array<std::string, 2> m_decided;       ///< The text that only this mark fits, its place.
  std::string m_ambiguous;                    ///< One that both fit, with different values.
  Place m_ambiguousPlace;
};

}  // namespace orvane::tables
