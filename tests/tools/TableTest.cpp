/// Tables: what reads, and every complaint with its line and column.
#include "Table.h"

#include <string>

#include <gtest/gtest.h>

namespace orvane::tool {
namespace {

Table Read(const std::string& text, MissingCell missing = MissingCell::Error) {
  return ReadTable(Source("t.csv", text), missing);
}

struct GoodTable {
  const char* name;
  std::string text;
  std::vector<std::string> categories;
  std::vector<std::string> series;
  std::vector<double> numbers;  ///< Series after series.
};

class ReadableTable : public testing::TestWithParam<GoodTable> {};

TEST_P(ReadableTable, GivesItsLabelsAndNumbers) {
  const Table table = Read(GetParam().text);
  EXPECT_EQ(table.categories, GetParam().categories);
  std::vector<std::string> names;
  std::vector<double> numbers;
  for (const auto& series : table.series) {
    names.push_back(series.name);
    for (const auto& cell : series.cells) numbers.push_back(cell.number);
  }
  EXPECT_EQ(names, GetParam().series);
  EXPECT_EQ(numbers, GetParam().numbers);
}

INSTANTIATE_TEST_SUITE_P(
    Tables, ReadableTable,
    testing::Values(
        GoodTable{"Plain", "m,a,b\nx,1,2\ny,3,4\n", {"x", "y"}, {"a", "b"}, {1, 3, 2, 4}},
        GoodTable{"ByteOrderMark", "\xEF\xBB\xBFm,a\nx,1\n", {"x"}, {"a"}, {1}},
        GoodTable{"CrLfAndNoLastBreak", "m,a\r\nx,1\r\ny,2", {"x", "y"}, {"a"}, {1, 2}},
        GoodTable{"LoneCr", "m,a\rx,1\r", {"x"}, {"a"}, {1}},
        GoodTable{
            "Quoted", "\"m\",\"a, \"\"b\"\"\"\n\"x\ny\",\"1\"\n", {"x\ny"}, {"a, \"b\""}, {1}},
        GoodTable{"EmptyLabels", ",\n,1\n\"\",2\n", {"", ""}, {""}, {1, 2}},
        GoodTable{"EmptyLines", "\nm,a\n\n\nx,1\n\n", {"x"}, {"a"}, {1}},
        GoodTable{"Numbers",
                  "m,a\n1,-2.5\n2,+3\n3, 1e3\t\n4,.5\n5,-0\n",
                  {"1", "2", "3", "4", "5"},
                  {"a"},
                  {-2.5, 3, 1000, 0.5, 0}},
        GoodTable{"NotLatin", "月,売上\n一月,7\n", {"一月"}, {"売上"}, {7}}),
    [](const auto& test) { return std::string(test.param.name); });

TEST(Table, KeepsHeaderAndSpellingOfNumbers) {
  const Table table = Read("Month,a\nx, 1.50 \n");
  EXPECT_EQ(table.categoryHeader, "Month");
  EXPECT_EQ(table.series[0].cells[0].text, "1.50");
}

TEST(Table, ReadsEmptyCellsAsZeroOnDemand) {
  const Table table = Read("m,a,b\nx,,\" \"\n", MissingCell::Zero);
  EXPECT_EQ(table.series[0].cells[0].number, 0);
  EXPECT_EQ(table.series[1].cells[0].text, "0");
}

TEST(Table, TakesAsManyCellsAsAGridHas) {
  std::string text = "m,a\n";
  for (int i = 0; i < kMostCells; ++i) text += "x,1\n";
  EXPECT_EQ(Read(text).categories.size(), 32766U);
}

std::string Repeated(const std::string& text, int count) {
  std::string all;
  for (int i = 0; i < count; ++i) all += text;
  return all;
}

std::string TooManySeries() {
  std::string text = "m";
  for (int i = 0; i <= kMostCells; ++i) text += "," + std::to_string(i);
  return text + "\n";
}

struct BadTable {
  const char* name;
  std::string text;
  const char* message;
};

class UnreadableTable : public testing::TestWithParam<BadTable> {};

TEST_P(UnreadableTable, SaysWhatIsWrongAndWhere) {
  try {
    Read(GetParam().text);
    ADD_FAILURE() << "was read";
  } catch (const FileError& error) {
    EXPECT_STREQ(error.what(), GetParam().message);
  }
}

using std::string_literals::operator""s;

INSTANTIATE_TEST_SUITE_P(
    Tables, UnreadableTable,
    testing::Values(
        BadTable{"Empty", "", "t.csv:1:1: the file is empty"},
        BadTable{"OnlyMark", "\xEF\xBB\xBF\n", "t.csv:1:1: the file is empty"},
        BadTable{"OnlyHeader", "m,a\n", "t.csv:2:1: the header has no rows of numbers below it"},
        BadTable{"NoSeries", "m\nx\n",
                 "t.csv:1:2: the header names no series after its first column"},
        BadTable{"ShortRow", "m,a,b\nx,1\n", "t.csv:2:4: the row has 2 cell(s), the header has 3"},
        BadTable{"LongRow", "m,a\nx,1,2\n", "t.csv:2:5: the row has 3 cell(s), the header has 2"},
        BadTable{"NoNumber", "m,a,b\nx,1,2\nJan,abc,3\n", "t.csv:3:5: \"abc\" is not a number"},
        BadTable{"TwoNumbers", "m,a\nx,1 2\n", "t.csv:2:3: \"1 2\" is not a number"},
        BadTable{"Grouped", "m,a\nx,\"1,000\"\n", "t.csv:2:3: \"1,000\" is not a number"},
        BadTable{"TwoSigns", "m,a\nx,+-1\n", "t.csv:2:3: \"+-1\" is not a number"},
        BadTable{"EmptyCell", "m,a\nx,\n", "t.csv:2:3: empty cell (--missing zero reads it as 0)"},
        BadTable{"NaN", "m,a\nx,NaN\n", "t.csv:2:3: \"NaN\" is not a finite number"},
        BadTable{"Infinity", "m,a\nx,-inf\n", "t.csv:2:3: \"-inf\" is not a finite number"},
        BadTable{"Overflow", "m,a\nx,1e999\n", "t.csv:2:3: \"1e999\" is too large or too small"},
        BadTable{"OpenQuote", "m,a\n\"x,1\ny,2\n", "t.csv:2:1: the quote is never closed"},
        BadTable{"QuoteInside", "m,a\nx\"y,1\n",
                 "t.csv:2:2: a quote inside a cell that is not quoted"},
        BadTable{"AfterQuote", "m,a\n\"x\"y,1\n",
                 "t.csv:2:4: expected a comma or the end of the line after the quote"},
        BadTable{"Nul", "m,a\nx,1\0\n"s, "t.csv:2:4: NUL where text is expected"},
        BadTable{"Utf8", "m,a\n\xC3\xA4\xFFx,1\n", "t.csv:2:2: malformed UTF-8"},
        BadTable{"Overlong", "m,\xC0\xAF\nx,1\n", "t.csv:1:3: malformed UTF-8"},
        BadTable{"SameNames", "m,a,b,a\nx,1,2,3\n",
                 "t.csv:1:7: series name \"a\" is already that of column 2"},
        BadTable{"Categories", "m,a\n" + Repeated("x,1\n", kMostCells + 1),
                 "t.csv:32768:1: more than 32766 categories"},
        BadTable{"Series", TooManySeries(), "t.csv:1:185489: more than 32766 series"},
        BadTable{"ColumnsAreCharacters", "m,a\näöü,?\n", "t.csv:2:5: \"?\" is not a number"}),
    [](const auto& test) { return std::string(test.param.name); });

}  // namespace
}  // namespace orvane::tool
