/// What a user may say about how a table is written, and about what of it is charted.
#pragma once

#include <cstddef>
#include <optional>
#include <string>

namespace orvane::tables {

/// What an empty cell among the numbers means. Previous and Linear leave a gap where there is no
/// value before, or none on both sides.
enum class Missing { Error, Gap, Zero, Previous, Linear };

enum class DecimalMark { Point, Comma };

/// What becomes of the values of a tidy table that meet in one cell.
enum class Aggregate { Sum, Mean, Median, Min, Max, Count };

/// Order of the categories. Value: the largest sum first.
enum class Sort { None, Label, Value };

/// Length of time that a category stands for.
enum class Period { Day, Week, Month, Quarter, Year };

struct ReadOptions {
  char separator = 0;                  ///< "," ";" "|" or a tab; 0: recognised from the file.
  std::optional<DecimalMark> decimal;  ///< Left out, recognised from all numbers of the file.
  std::string encoding;                ///< As iconv calls it; empty: a byte-order mark's, or UTF-8.
  bool hasHeader = true;
  Missing missing = Missing::Error;

  /// Columns to take, by name, by letter or by number from 1, between commas: "Month,C,5-7".
  std::string columns;
  std::string rows;  ///< Rows below the header to take, from 1: "1-12,20,30-".

  /// Columns of a tidy table, as above: one row a value. None of them: the categories are in the
  /// first column and the series in the others.
  std::string category;
  std::string series;                  ///< Left out, one series.
  std::string value;                   ///< May be left out when rows are counted.
  std::optional<Aggregate> aggregate;  ///< Left out, two values for one cell are an error.

  Sort sort = Sort::None;
  std::size_t top =
      0;  ///< The categories with the largest sums to keep, the rest as "Other"; 0: all.
  bool isTransposed = false;
  bool isPercent = false;  ///< Values in per cent of the sum of their category.

  std::string dateFormat;    ///< As strftime has it: "%d.%m.%Y"; empty: ISO 8601.
  bool fillDates = false;    ///< Days, months, ... without a row become gaps.
  std::optional<Period> by;  ///< Categories are dates and their values aggregated, or else summed.
};

}  // namespace orvane::tables
