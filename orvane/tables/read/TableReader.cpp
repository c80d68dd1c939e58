#include "orvane/tables/read/TableReader.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

namespace orvane::tables {
namespace {

using Fault = SpelledNumber::Fault;

constexpr std::array<DecimalMark, 2> kMarks = {DecimalMark::Point, DecimalMark::Comma};
constexpr const char* kMissingHelp = "(--missing zero, previous or linear says what it stands for)";

std::string Quoted(std::string_view text) { return '"' + std::string(text) + '"'; }

/// Whether numbers in a header look like values rather than like years or places along an axis.
bool LookLikeValues(const std::vector<double>& numbers) {
  const bool areYears = std::all_of(numbers.begin(), numbers.end(), [](double number) {
    return number == std::floor(number) && number >= 1000 && number < 3000;
  });
  if (numbers.empty() || areYears) return false;
  if (numbers.size() < 3) return true;
  const double step = numbers[1] - numbers[0];
  for (std::size_t i = 2; i < numbers.size(); ++i) {
    const double deviation = numbers[i] - numbers[i - 1] - step;
    if (std::abs(deviation) > 1e-6 * std::abs(step)) return true;
  }
  return false;
}

}  // namespace

TableReader::TableReader(Rows& rows, const ReadOptions& options)
    : m_rows(rows), m_options(options), m_selection(options.rows, "--rows") {
  if (options.decimal) {
    m_fits = {*options.decimal == DecimalMark::Point, *options.decimal == DecimalMark::Comma};
    m_mark = *options.decimal;
  }
  std::vector<Cell> header;
  if (!m_rows.Next(header)) From().Fail({1, 1}, "the file is empty");
  m_headerSize = header.size();
  m_headerEnd = m_rows.PlaceOf(header.size());
  TakeHeader(header);
  if (m_options.hasHeader) {
    WarnOfHeader(header);
  } else {
    m_rows.Rewind();
  }
}

void TableReader::TakeHeader(const std::vector<Cell>& header) {
  for (std::size_t i = 0; i < header.size(); ++i) {
    const std::string name = m_options.hasHeader ? std::string(header[i].text)
                             : i == 0            ? ""
                                                 : "Column " + std::to_string(i + 1);
    m_columns.push_back({name, m_rows.PlaceOf(i), "", i, false});
  }
  if (m_options.columns.empty()) return;
  std::vector<Column> taken;
  for (const std::string& name : ListOf(m_options.columns)) {
    const std::size_t dash = name.find('-');
    const bool isName = std::any_of(m_columns.begin(), m_columns.end(),
                                    [&](const Column& column) { return column.name == name; });
    const bool isRange = !isName && dash != std::string::npos;
    const std::size_t first =
        Find(std::string(WithoutBlanks(name.substr(0, isRange ? dash : name.size()))), "--columns");
    const std::size_t last =
        isRange ? Find(std::string(WithoutBlanks(name.substr(dash + 1))), "--columns") : first;
    for (std::size_t i = first; i <= last; ++i) taken.push_back(m_columns[i]);
  }
  m_columns = std::move(taken);
}

void TableReader::WarnOfHeader(const std::vector<Cell>& header) {
  std::vector<double> numbers;
  for (std::size_t i = 1; i < header.size(); ++i) {
    const auto number = ReadSpelled(WithoutBlanks(header[i].text), m_mark);
    if (number.fault != Fault::None) return;
    numbers.push_back(number.value);
  }
  if (!LookLikeValues(numbers)) return;
  warnings.push_back(From().Spell(m_rows.PlaceOf(0)) +
                     ": the header looks like data (--no-header reads it as such)");
}

std::size_t TableReader::Find(const std::string& name, const std::string& option) const {
  std::string names;
  for (std::size_t i = 0; i < m_columns.size(); ++i) {
    if (WithoutBlanks(m_columns[i].name) == name) return i;
    if (i < 20) names += (i == 0 ? "" : ", ") + m_columns[i].name;
  }
  if (const auto number = ColumnNumber(name); number && *number <= m_columns.size()) {
    return *number - 1;
  }
  throw FileError(From().name + ": " + option + ": no column is called " + Quoted(name) +
                  "; there are " + names);
}

bool TableReader::ReadRow() {
  while (m_rows.Next(m_row)) {
    ++m_rowNumber;
    if (m_lastRow && m_rowNumber > *m_lastRow) return false;
    if (m_selection.IsBeyond(m_rowNumber)) return false;
    if (m_selection.Has(m_rowNumber)) return true;
  }
  return false;
}

bool TableReader::Next() { return ReadRow(); }

std::string_view TableReader::RawText(std::size_t column) const {
  const std::size_t source = m_columns[column].source;
  return source < m_row.size() ? m_row[source].text : std::string_view();
}

std::string_view TableReader::Text(std::size_t column) const {
  return WithoutBlanks(RawText(column));
}

double TableReader::Number(std::size_t column) const {
  const std::size_t source = m_columns[column].source;
  if (source < m_row.size() && m_row[source].number) return *m_row[source].number;
  const std::string_view text = Text(column);
  if (text.empty() || IsNoValue(text)) {
    if (!m_mayMiss || m_options.missing == Missing::Error) FailAsMissing(PlaceOf(column), text);
    return std::numeric_limits<double>::quiet_NaN();
  }
  const SpelledNumber number = ReadSpelled(text, m_mark);
  if (number.fault != Fault::None) FailAsText(column, text);
  return number.value;
}

void TableReader::Fail(std::size_t column, const std::string& problem) const {
  From().Fail(PlaceOf(column), problem);
}

bool TableReader::IsBlankRow() const {
  return std::all_of(m_row.begin(), m_row.end(),
                     [](const Cell& cell) { return WithoutBlanks(cell.text).empty(); });
}

/// Cells without a text that are too many, or too few for columns without a name, do no harm.
void TableReader::CheckLength() const {
  std::size_t named = m_headerSize;
  const auto isNameless = [&](std::size_t source) {
    return std::any_of(m_columns.begin(), m_columns.end(), [&](const Column& column) {
      return column.source == source && WithoutBlanks(column.name).empty();
    });
  };
  if (m_row.size() < named) {
    while (named > m_row.size() && isNameless(named - 1)) --named;
  }
  std::size_t count = m_row.size();
  while (count > m_headerSize && WithoutBlanks(m_row[count - 1].text).empty()) --count;
  if (count >= named && count <= m_headerSize) return;
  m_rows.Fail(count < named ? count : m_headerSize, "the row has " + std::to_string(m_row.size()) +
                                                        " cell(s), the header has " +
                                                        std::to_string(m_headerSize));
}

void TableReader::ReadNumbersIn(const std::vector<std::size_t>& columns, bool mayMiss) {
  m_mayMiss = mayMiss;
  for (const std::size_t column : columns) m_columns[column].isNumber = true;
  m_spellings.resize(m_columns.size());
  if (!m_rows.IsSpelled()) return;
  std::optional<Place> blank;
  std::size_t lastRow = 0;
  while (ReadRow()) {
    if (IsBlankRow()) {
      if (!blank) blank = m_rows.PlaceOf(columns.empty() ? 0 : m_columns[columns.front()].source);
      continue;
    }
    if (m_row.size() != m_headerSize) CheckLength();
    if (blank && (!mayMiss || m_options.missing == Missing::Error)) FailAsMissing(*blank, "");
    lastRow = m_rowNumber;
    SurveyRow();
  }
  m_lastRow = lastRow;
  DecideMark();
  m_rows.Rewind();
  m_rowNumber = 0;
  std::vector<Cell> header;
  if (m_options.hasHeader) m_rows.Next(header);
}

void TableReader::SurveyRow() {
  for (std::size_t i = 0; i < m_columns.size(); ++i) {
    Spelling& spelling = m_spellings[i];
    const std::string_view text = Text(i);
    if (text.empty()) {
      if (!spelling.empty) spelling.empty = PlaceOf(i);
    } else {
      spelling.hasText = true;
    }
    if (!m_columns[i].isNumber) continue;
    if (text.empty() || IsNoValue(text)) {
      if (m_mayMiss && m_options.missing != Missing::Error) continue;
      // Behind the last column that has a name there may be nothing at all.
      if (text.empty() && !spelling.hasText && WithoutBlanks(m_columns[i].name).empty()) continue;
      FailAsMissing(PlaceOf(i), text);
    }
    SurveyNumber(i, text);
  }
}

void TableReader::SurveyNumber(std::size_t column, std::string_view text) {
  Spelling& spelling = m_spellings[column];
  std::array<SpelledNumber, 2> read;
  std::array<bool, 2> isNumber{};
  for (std::size_t i = 0; i < kMarks.size(); ++i) {
    // Once it is known that commas are no decimal marks, few texts need a second reading.
    if (!m_fits[i]) continue;
    read[i] = ReadSpelled(text, kMarks[i]);
    isNumber[i] = read[i].fault == Fault::None;
  }
  if (!isNumber[0] && !isNumber[1]) FailAsText(column, text);
  if (isNumber[0] != isNumber[1]) {
    const std::size_t fitting = isNumber[0] ? 0 : 1;
    if (m_fits[1 - fitting]) {
      m_fits[1 - fitting] = false;
      m_decided[fitting] = Quoted(text) + " at " + From().Spell(PlaceOf(column));
    }
  } else if (read[0].value != read[1].value && m_ambiguous.empty() &&
             !(m_rows.HasDecimalPoint() && text.find(',') == std::string_view::npos)) {
    m_ambiguous = text;
    m_ambiguousPlace = PlaceOf(column);
  }
  const std::string_view unit = isNumber[0] ? read[0].unit : read[1].unit;
  if (spelling.first.empty()) {
    spelling.first = text;
    spelling.firstPlace = PlaceOf(column);
    m_columns[column].unit = unit;
  } else if (m_columns[column].unit != unit) {
    Fail(column,
         Quoted(text) + " has not the unit of " + Quoted(spelling.first) + ", the column's first");
  }
  for (std::size_t i = 0; i < kMarks.size(); ++i) {
    if (!isNumber[i] || read[i].group.empty()) continue;
    if (spelling.group[i].empty()) spelling.group[i] = read[i].group;
    if (spelling.group[i] != read[i].group && !spelling.otherGroup[i]) {
      spelling.otherGroup[i] = PlaceOf(column);
    }
  }
}

void TableReader::DecideMark() {
  if (m_fits[0] && m_fits[1] && !m_ambiguous.empty()) {
    From().Fail(m_ambiguousPlace, Quoted(m_ambiguous) +
                                      " can be read in two ways: --decimal . or --decimal , "
                                      "says which is the decimal mark");
  }
  m_mark = m_fits[0] ? DecimalMark::Point : DecimalMark::Comma;
  const std::size_t mark = m_fits[0] ? 0 : 1;
  for (const Spelling& spelling : m_spellings) {
    if (!spelling.otherGroup[mark]) continue;
    From().Fail(*spelling.otherGroup[mark], "digits are grouped in two ways in one column");
  }
}

void TableReader::FailAsMissing(const Place& place, std::string_view text) const {
  const std::string problem = text.empty() ? "empty cell" : Quoted(text) + " is not a number";
  From().Fail(place, m_mayMiss ? problem + " " + kMissingHelp : problem);
}

void TableReader::FailAsText(std::size_t column, std::string_view text) const {
  for (std::size_t i = 0; i < kMarks.size(); ++i) {
    if (ReadSpelled(text, kMarks[i]).fault != Fault::None || m_fits[i]) continue;
    const std::array<std::string, 2> marks = {"point", "comma"};
    const std::string& decided = m_decided[1 - i];
    Fail(column, Quoted(text) + " has a decimal " + marks[i] +
                     (decided.empty() ? ", which --decimal rules out"
                                      : ", where " + decided + " has a " + marks[1 - i]));
  }
  const Fault fault = ReadSpelled(text, m_mark).fault;
  if (fault == Fault::TooLargeOrSmall) Fail(column, Quoted(text) + " is too large or too small");
  if (fault == Fault::NotFinite) Fail(column, Quoted(text) + " is not a finite number");
  std::string problem = Quoted(text) + " is not a number";
  // A text in the first row where another column has a number: one row a value, perhaps.
  if (m_mayMiss && m_spellings[column].first.empty() && column > 0) {
    for (std::size_t i = m_columns.size(); i-- > 1;) {
      const bool isNumber = std::any_of(kMarks.begin(), kMarks.end(), [&](DecimalMark mark) {
        return ReadSpelled(Text(i), mark).fault == Fault::None;
      });
      if (i == column || !isNumber) continue;
      problem += "; a table with a row for each value takes --category " +
                 Quoted(m_columns[0].name) + " --series " + Quoted(m_columns[column].name) +
                 " --value " + Quoted(m_columns[i].name);
      break;
    }
  }
  Fail(column, problem);
}

void TableReader::DropEmptyColumns() {
  while (m_columns.size() > 1 && WithoutBlanks(m_columns.back().name).empty() &&
         m_rows.IsSpelled() && !m_spellings[m_columns.size() - 1].hasText) {
    m_columns.pop_back();
    m_spellings.pop_back();
  }
  for (std::size_t i = 0; i < m_columns.size(); ++i) {
    const bool mayMiss = m_mayMiss && m_options.missing != Missing::Error;
    if (m_columns[i].isNumber && m_spellings[i].empty && !mayMiss) {
      FailAsMissing(*m_spellings[i].empty, "");
    }
  }
}

}  // namespace orvane::tables
