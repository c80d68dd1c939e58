/// Which separator a text has.
#include "orvane/tables/read/CsvRows.h"

#include <cctype>
#include <string>
#include <string_view>
#include <vector>

namespace orvane::tables {
namespace {

constexpr std::string_view kSeparators = ",;\t|";
constexpr std::size_t kMostSampleRows = 100;

/// What the sample says of one of them.
struct Candidate {
  char separator;
  std::size_t inHeader = 0;
  bool isEven = true;      ///< As often in each row as in the header.
  bool isInDigits = true;  ///< Nowhere but between digits, as in 1,5.
};

/// The rows of `sample` without what stands between quotes.
std::vector<std::string> UnquotedRows(std::string_view sample) {
  std::vector<std::string> rows(1);
  bool isQuoted = false;
  for (const char c : sample) {
    if (c == '"') isQuoted = !isQuoted;
    if (isQuoted) continue;
    if (c != '\n' && c != '\r') {
      rows.back() += c;
    } else if (!rows.back().empty()) {
      if (rows.size() == kMostSampleRows) return rows;
      rows.emplace_back();
    }
  }
  if (rows.back().empty()) rows.pop_back();
  return rows;
}

Candidate Try(char separator, const std::vector<std::string>& rows) {
  Candidate candidate{separator};
  const auto isDigit = [](const std::string& text, std::size_t i) {
    return i < text.size() && std::isdigit(static_cast<unsigned char>(text[i])) != 0;
  };
  for (std::size_t row = 0; row < rows.size(); ++row) {
    const std::string& text = rows[row];
    std::size_t count = 0;
    for (std::size_t i = 0; i < text.size(); ++i) {
      if (text[i] != separator) continue;
      ++count;
      if (i == 0 || !isDigit(text, i - 1) || !isDigit(text, i + 1)) candidate.isInDigits = false;
    }
    if (row == 0) candidate.inHeader = count;
    if (count != candidate.inHeader) candidate.isEven = false;
  }
  return candidate;
}

}  // namespace

char RecogniseSeparator(std::string_view sample) {
  const auto rows = UnquotedRows(sample);
  std::vector<Candidate> present;
  std::vector<Candidate> even;
  for (const char separator : kSeparators) {
    const Candidate candidate = Try(separator, rows);
    if (candidate.inHeader == 0) continue;
    present.push_back(candidate);
    if (candidate.isEven) even.push_back(candidate);
  }
  // "1,5;2,5" in all rows: a decimal comma.
  if (even.size() == 2 && even.front().separator == ',' && even.front().isInDigits) {
    return even.back().separator;
  }
  const auto& fitting = even.empty() ? present : even;
  if (fitting.size() > 1) return 0;
  return fitting.empty() ? ',' : fitting.front().separator;
}

}  // namespace orvane::tables
