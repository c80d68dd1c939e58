/// Rows of cells, wherever they come from, and the way back from a cell to its place for messages.
#pragma once

#include "orvane/automation/Export.h"
#include "orvane/tables/read/Source.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace orvane::tables {

/// Line and column of a text, or row and column of a sheet or a query's result; from 1.
struct Place {
  std::size_t row = 0;
  std::size_t column = 0;
};

/// What messages call the place of a cell.
struct ORVANE_API Origin {
  enum class Kind { Text, Sheet, Result };

  std::string name;  ///< Of the file, of the sheet in its file, or of the result.
  Kind kind = Kind::Text;

  /// "sales.csv:3:5", "sales.xlsx: Sheet1!E3" or "the result: row 3, column 5"; the name alone
  /// without a row.
  std::string Spell(const Place& place) const;
  /// Raises FileError: the place, and the problem behind a colon.
  [[noreturn]] void Fail(const Place& place, const std::string& problem) const;
};

/// One cell; its text is there until the next row is read.
struct Cell {
  std::string_view text;         ///< As its source spells it; dates as ISO 8601 has them.
  std::optional<double> number;  ///< Where the source knows it.
};

/// Rows read one after the other, the header first. Rows without any text between them are none.
class ORVANE_API Rows {
 public:
  explicit Rows(Origin origin) : m_origin(std::move(origin)) {}
  virtual ~Rows() = default;

  const Origin& From() const { return m_origin; }
  /// Whether numbers are spelled as people write them, so that all of a column has to be seen
  /// before one of them can be read.
  virtual bool IsSpelled() const = 0;
  /// Whether a point in a number is its decimal mark as long as nothing says otherwise, as it is
  /// where commas separate cells.
  virtual bool HasDecimalPoint() const { return true; }
  /// Reads the next row; false, with no cells, at the end. Raises FileError.
  virtual bool Next(std::vector<Cell>& row) = 0;
  /// Goes back to before the first row; for spelled rows only.
  virtual void Rewind() = 0;
  /// Of a cell of the row last read, counted from 0; behind the last cell, of the row's end.
  virtual Place PlaceOf(std::size_t column) const = 0;

  [[noreturn]] void Fail(std::size_t column, const std::string& problem) const {
    m_origin.Fail(PlaceOf(column), problem);
  }

 private:
  Origin m_origin;
};

/// `text` without the spaces and tabs around it.
ORVANE_API std::string_view WithoutBlanks(std::string_view text);

}  // namespace orvane::tables
