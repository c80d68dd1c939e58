/// Tables: what reads, and every complaint with its line and column.
#include "support/Tables.h"

#include "orvane/tables/read/Table.h"

#include <string>

#include <gtest/gtest.h>

namespace orvane::tables {
namespace {

Table Read(const std::string& text, const ReadOptions& options = {}) {
  return ReadTable(*TableText("t.csv", text).open(options), options);
}

TEST(Table, GivesItsLabelsAndNumbers) {
  using Texts = std::vector<std::string>;
  const struct {
    std::string text;
    Texts categories, series;
    std::vector<double> numbers;  ///< Series after series.
  } cases[] = {
      {"m,a,b\nx,1,2\ny,3,4\n", {"x", "y"}, {"a", "b"}, {1, 3, 2, 4}},
      {"\xEF\xBB\xBFm,a\nx,1\n", {"x"}, {"a"}, {1}},  // A byte order mark.
      {"m,a\r\nx,1\r\ny,2", {"x", "y"}, {"a"}, {1, 2}},
      {"m,a\rx,1\r", {"x"}, {"a"}, {1}},
      {"\"m\",\"a, \"\"b\"\"\"\n\"x\ny\",\"1\"\n", {"x\ny"}, {"a, \"b\""}, {1}},
      {",\n,1\n\"\",2\n", {"", ""}, {""}, {1, 2}},
      {"\nm,a\n\n\nx,1\n\n", {"x"}, {"a"}, {1}},
      {"m,a\n1,-2.5\n2,+3\n3, 1e3\t\n", {"1", "2", "3"}, {"a"}, {-2.5, 3, 1000}},
      {"m,a\n1,.5\n2,-0\n", {"1", "2"}, {"a"}, {0.5, 0}},
      {"月,売上\n一月,7\n", {"一月"}, {"売上"}, {7}},
  };
  for (const auto& test : cases) {
    SCOPED_TRACE(test.text);
    const Table table = Read(test.text);
    Texts names;
    std::vector<double> numbers;
    for (const auto& series : table.series) {
      names.push_back(series.name);
      for (const auto& cell : series.cells) numbers.push_back(cell.number);
    }
    EXPECT_EQ(table.categories, test.categories);
    EXPECT_EQ(names, test.series);
    EXPECT_EQ(numbers, test.numbers);
  }
}

TEST(Table, KeepsSpellingsAndReadsEmptyCellsAsZeroOnDemand) {
  const Table table = Read("Month,a,b\nx, 1.50 ,\" \"\n", [] {
    ReadOptions options;
    options.missing = Missing::Zero;
    return options;
  }());
  EXPECT_EQ(table.categoryHeader, "Month");
  EXPECT_EQ(table.series[0].cells[0].text, "1.50");
  EXPECT_EQ(table.series[1].cells[0].text, "0");
}

std::string Repeated(const std::string& text, int count) {
  std::string all;
  for (int i = 0; i < count; ++i) all += text;
  return all;
}

TEST(Table, SaysWhatIsWrongAndWhere) {
  using std::string_literals::operator""s;
  std::string manySeries = "m";
  for (int i = 0; i <= kMostCells; ++i) manySeries += "," + std::to_string(i);
  EXPECT_EQ(Read("m,a\n" + Repeated("x,1\n", kMostCells)).categories.size(), 32766U);
  const std::pair<std::string, std::string> cases[] = {
      {"", "t.csv:1:1: the file is empty"},
      {"\xEF\xBB\xBF\n", "t.csv:1:1: the file is empty"},
      {"m,a\n", "t.csv:2:1: the header has no rows of numbers below it"},
      {"m\nx\n", "t.csv:1:2: the header names no series after its first column"},
      {"m,a,b\nx,1\n", "t.csv:2:4: the row has 2 cell(s), the header has 3"},
      {"m,a\nx,1,2\n", "t.csv:2:5: the row has 3 cell(s), the header has 2"},
      {"m,a,b\nx,1,2\nJan,abc,3\n", "t.csv:3:5: \"abc\" is not a number"},
      {"m,a\nx,1 2\n", "t.csv:2:3: \"1 2\" is not a number"},
      {"m,a\nx,+-1\n", "t.csv:2:3: \"+-1\" is not a number"},
      {"m,a\nx,\n",
       "t.csv:2:3: empty cell (--missing zero, previous or linear says what it stands for)"},
      {"m,a\nx,-inf\n", "t.csv:2:3: \"-inf\" is not a finite number"},
      {"m,a\nx,1e999\n", "t.csv:2:3: \"1e999\" is too large or too small"},
      {"m,a\n\"x,1\ny,2\n", "t.csv:2:1: the quote is never closed"},
      {"m,a\nx\"y,1\n", "t.csv:2:2: a quote inside a cell that is not quoted"},
      {"m,a\n\"x\"y,1\n", "t.csv:2:4: expected \",\" or the end of the line after the quote"},
      {"m,a\nx,1\0\n"s,
       "t.csv:2:4: NUL where text is expected (--encoding UTF-16LE reads what has no mark)"},
      {"m,a\n\xC3\xA4\xFFx,1\n",
       "t.csv:2:2: malformed UTF-8 (--encoding names another, such as windows-1252)"},
      {"m,\xC0\xAF\nx,1\n",
       "t.csv:1:3: malformed UTF-8 (--encoding names another, such as windows-1252)"},
      {"m,a,b,a\nx,1,2,3\n", "t.csv:1:7: series name \"a\" is already that of column 2"},
      {"m,a\n" + Repeated("x,1\n", kMostCells + 1), "t.csv:32768:1: more than 32766 categories"},
      {manySeries + "\n", "t.csv:1:185489: more than 32766 series"},
      {"m,a\näöü,?\n", "t.csv:2:5: \"?\" is not a number"},
  };
  for (const auto& row : cases) {
    EXPECT_EQ(tests::ComplaintOf([&] { Read(row.first); }), row.second);
  }
}

}  // namespace
}  // namespace orvane::tables
