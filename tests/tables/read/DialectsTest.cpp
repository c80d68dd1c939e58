/// Tables as people have them: bytes, and the numbers in them or the message that helps.
#include "support/Tables.h"

#include <functional>
#include <string>

#include <gtest/gtest.h>

namespace orvane::tables {
namespace {

using std::string_literals::operator""s;

/// The numbers, series after series, "gap" where there is none, and the unit behind them.
std::string NumbersIn(const std::string& text, const ReadOptions& options) {
  const Table table = ReadTable(*TableText("t", text).open(options), options);
  std::string numbers;
  for (const auto& series : table.series) {
    for (const auto& cell : series.cells) {
      numbers +=
          (numbers.empty() ? "" : " ") + (cell.IsGap() ? "gap" : std::to_string(cell.number));
      if (cell.IsGap()) continue;
      numbers.erase(numbers.find_last_not_of('0') + 1);
      if (numbers.back() == '.') numbers.pop_back();
    }
  }
  return table.unit.empty() ? numbers : numbers + " [" + table.unit + "]";
}

void Nothing(ReadOptions&) {}
void Gap(ReadOptions& o) { o.missing = Missing::Gap; }
void Comma(ReadOptions& o) { o.decimal = DecimalMark::Comma; }
void Point(ReadOptions& o) { o.decimal = DecimalMark::Point; }
void NoHeader(ReadOptions& o) { o.hasHeader = false; }
void Latin(ReadOptions& o) { o.encoding = "windows-1252"; }

TEST(Dialects, ReadRightOrAreRefusedWithTheMessageThatHelps) {
  const struct {
    std::string name, bytes, expected;
    std::function<void(ReadOptions&)> choose = Nothing;
  } cases[] = {
      {"RFC 4180", "m,a\r\nx,1.5\r\ny,-2e3\r\n", "1.5 -2000"},
      {"German export", "Monat;Umsatz\r\nMärz;1.234,50\r\nMai;7,25\r\n", "1234.5 7.25"},
      {"German, no header", "Jan;1,5\nFeb;2,5\n", "1.5 2.5", NoHeader},
      {"Swiss", "m;a\nx;1'234.50\ny;2’000.00\n",
       "t:3:3: digits are grouped in two ways in one column"},
      {"Swiss, one apostrophe", "m;a\nx;1'234.50\ny;2'000.00\n", "1234.5 2000"},
      {"French",
       "m;a\nx;1\xE2\x80\xAF"
       "234,5 €\ny;12,0 €\n",
       "1234.5 12 [€]"},
      {"Russian",
       "m;a\nx;1\xC2\xA0"
       "234\ny;1\xC2\xA0"
       "234\xC2\xA0"
       "567,8\n",
       "1234 1234567.8"},
      {"US thousands", "m,a\nx,\"1,234.50\"\ny,\"12,345,678\"\n", "1234.5 12345678"},
      {"thousands or decimals", "m;a\nx;1,234\n",
       "t:2:3: \"1,234\" can be read in two ways: --decimal . or --decimal , says which is the "
       "decimal mark"},
      {"... in quotes", "m,a\nx,\"1,234\"\n",
       "t:2:3: \"1,234\" can be read in two ways: --decimal . or --decimal , says which is the "
       "decimal mark"},
      {"... with points", "m\ta\nx\t1.234\n",
       "t:2:3: \"1.234\" can be read in two ways: --decimal . or --decimal , says which is the "
       "decimal mark"},
      {"... said: comma", "m;a\nx;1,234\n", "1.234", Comma},
      {"... said: point", "m;a\nx;1,234\n", "1234", Point},
      {"... decided by another column", "m;a;b\nx;1,234;0.5\n", "1234 0.5"},
      {"... decided by a leading 0", "m;a\nx;1,234\ny;0,125\n", "1.234 0.125"},
      {"three decimals between commas", "m,a\nx,1.234\n", "1.234"},
      {"both marks as decimals", "m;a\nx;1,5\ny;2.5\n",
       "t:3:3: \"2.5\" has a decimal point, where \"1,5\" at t:2:3 has a comma"},
      {"TSV", "m\ta\tb\nx, y\t1\t2\n", "1 2"},
      {"pipes", "m|a\nx, y; z|1\n", "1"},
      {"sep=", "sep=;\r\nm;a\r\nx;1\r\n", "1"},
      {"either separator", "a;b,c\n1;2,3\n",
       "t:1:1: more than one separator fits: --separator says which it is"},
      {"blanks around quotes", "m, \"a\"\n\"x\" , 1\n", "1"},
      {"UTF-16 LE", "\xFF\xFEm\0;\0a\0\n\0\xE4\0;\0001\0,\0005\0"s, "1.5"},
      {"UTF-16 BE", "\xFE\xFF\0m\0\t\0a\0\n\0x\0\t\0007"s, "7"},
      {"UTF-16 in halves", "\xFF\xFEm\0,\0a"s, "t: byte 7 is not UTF-16LE"},
      {"Latin 1", "m;a\nM\xE4rz;1,5 \x80\n",
       "t:2:2: malformed UTF-8 (--encoding names another, such as windows-1252)"},
      {"Latin 1, said", "m;a\nM\xE4rz;1,5 \x80\n", "1.5 [€]", Latin},
      {"per cent", "m,a,b\nx,12%,3 %\ny,-5.5%,4 %\n", "12 -5.5 3 4 [%]"},
      {"per cent here and there", "m,a\nx,12%\ny,5\n",
       "t:3:3: \"5\" has not the unit of \"12%\", the column's first"},
      {"units of two kinds", "m,a,b\nx,12%,$3\n", "12 3"},
      {"accounts", "m,a\nx,\"$(1,234.00)\"\ny,\"$ 1,000.50\"\nz,-$2\n", "-1234 1000.5 -2 [$]"},
      {"minus behind, minus sign", "m;a\nx;12,50-\ny;−3,5\n", "-12.5 -3.5"},
      {"Indian groups", "m;a\nx;12,34,567\n", "t:2:3: \"12,34,567\" is not a number"},
      {"columns and rows behind the end", "m,a,,\nx,1,,\ny,2\n,,,\n,,,\n", "1 2"},
      {"gaps", "m,a\nx,\ny,NA\nz,3\n", "gap gap 3", Gap},
      {"NA", "m,a\nx,NA\n",
       "t:2:3: \"NA\" is not a number (--missing zero, previous or linear says what it stands "
       "for)"},
      {"tidy", "month,region,amount\nJan,east,5\nJan,west,6\n",
       "t:2:5: \"east\" is not a number; a table with a row for each value takes --category "
       "\"month\" "
       "--series \"region\" --value \"amount\""},
  };
  for (const auto& test : cases) {
    SCOPED_TRACE(test.name);
    ReadOptions options;
    test.choose(options);
    std::string found;
    const std::string complaint =
        tests::ComplaintOf([&] { found = NumbersIn(test.bytes, options); });
    EXPECT_EQ(found.empty() ? complaint : found, test.expected);
  }
}

constexpr const char* kSales =
    "day,region,amount\n2024-01-30,east,1\n2024-01-31,west,2\n2024-02-01,east,4\n2024-04-02,west,"
    "8\n"
    "2024-02-03,east,16\n";

TEST(Choosing, TakesArrangesAndAggregates) {
  const auto tidy = [](ReadOptions& o) {
    o.category = "day";
    o.series = "region";
    o.value = "C";
    o.missing = Missing::Gap;
  };
  const std::string wide = "m,a,b\nx,1,2\ny,3,\nz,9,8\n";
  const struct {
    std::string name, text, expected;
    std::function<void(ReadOptions&)> choose;
  } cases[] = {
      {"columns", wide, "2 gap 8", [](auto& o) { o.columns = "m,C", o.missing = Missing::Gap; }},
      {"rows", wide, "1 9 2 8", [](auto& o) { o.rows = "1,3-"; }},
      {"zero", wide, "1 3 9 2 0 8", [](auto& o) { o.missing = Missing::Zero; }},
      {"previous", wide, "1 3 9 2 2 8", [](auto& o) { o.missing = Missing::Previous; }},
      {"linear", wide, "1 3 9 2 5 8", [](auto& o) { o.missing = Missing::Linear; }},
      {"sort", wide, "9 1 8 2", [](auto& o) { o.rows = "1,3", o.sort = Sort::Value; }},
      {"top", wide, "9 4 8 2", [](auto& o) { o.top = 1, o.missing = Missing::Gap; }},
      {"percent", "m,a,b\nx,1,3\n", "25 75 [%]", [](auto& o) { o.isPercent = true; }},
      {"transpose", wide, "1 2 9 8", [](auto& o) { o.rows = "1,3", o.isTransposed = true; }},
      {"tidy", kSales, "1 gap 4 gap 16 gap 2 gap 8 gap", tidy},
      {"by month", kSales, "1 20 gap 2 gap 8", [&](auto& o) { tidy(o), o.by = Period::Month; }},
      {"by month, filled", kSales, "1 10 gap gap 2 gap gap 8",
       [&](auto& o) {
         tidy(o), o.by = Period::Month, o.aggregate = Aggregate::Mean, o.fillDates = true;
       }},
      {"median", "m,v\nx,1\nx,9\nx,3\n", "3",
       [](auto& o) { o.category = "m", o.value = "v", o.aggregate = Aggregate::Median; }},
      {"count", "m,v\nx,1\nx,9\ny,3\n", "2 1",
       [](auto& o) { o.category = "m", o.aggregate = Aggregate::Count; }},
      {"values that meet", "m,v\nx,1\nx,9\n",
       "t:3:3: a second value for \"x\": --aggregate sum, mean, median, min, max or count says "
       "what "
       "becomes of them",
       [](auto& o) { o.category = "m", o.value = "v"; }},
      {"no column", wide, "t: --columns: no column is called \"q\"; there are m, a, b",
       [](auto& o) { o.columns = "m,q"; }},
      {"no date", wide,
       "t:2:1: \"x\" is no date such as 2024-03-05 (--date-format says how dates are written)",
       [](auto& o) { o.by = Period::Month, o.missing = Missing::Gap; }},
      {"date format", "d;v\n05.03.2024;1\n31.03.2024;2\n", "3",
       [](auto& o) { o.by = Period::Month, o.dateFormat = "%d.%m.%Y"; }},
      {"no such day", "d;v\n31.02.2024;1\n",
       "t:2:1: \"31.02.2024\" is no date as --date-format has them",
       [](auto& o) { o.by = Period::Month, o.dateFormat = "%d.%m.%Y"; }},
  };
  for (const auto& test : cases) {
    SCOPED_TRACE(test.name);
    ReadOptions options;
    test.choose(options);
    std::string found;
    const std::string complaint =
        tests::ComplaintOf([&] { found = NumbersIn(test.text, options); });
    EXPECT_EQ(found.empty() ? complaint : found, test.expected);
  }
}

/// Rows, quotes and line ends that fall on the seams between the pieces a file is read in.
TEST(Dialects, ReadAcrossPieces) {
  std::string text = "m,a\r\n";
  double sum = 0;
  for (int i = 0; i < 60000; ++i) {
    text += "\"c \"\"" + std::to_string(i % 100) + "\"\"\r\n\"," + std::to_string(i) + "\r\n";
    sum += i;
  }
  ReadOptions options;
  options.category = "m";
  options.value = "a";
  options.aggregate = Aggregate::Sum;
  const Table table = ReadTable(*TableText("t", text).open(options), options);
  ASSERT_EQ(table.categories.size(), 100U);
  EXPECT_EQ(table.categories[1], "c \"1\"\r\n");
  double found = 0;
  for (const auto& cell : table.series[0].cells) found += cell.number;
  EXPECT_EQ(found, sum);
  EXPECT_EQ(tests::ComplaintOf(
                [&] { ReadTable(*TableText("t", text + "x,?\r\n").open(options), options); }),
            "t:120002:3: \"?\" is not a number");
}

TEST(Dialects, WarnOfAHeaderThatLooksLikeData) {
  const auto warnings = [](const std::string& text) {
    return tests::TableOf(text, "t").warnings.size();
  };
  EXPECT_EQ(warnings("Jan,5.5\nFeb,6\n"), 1U);
  EXPECT_EQ(warnings("m,2014,2015\nx,1,2\n"), 0U);
  EXPECT_EQ(warnings("\"t, h\",0,6,12,18\nx,1,2,3,4\n"), 0U);
  EXPECT_EQ(warnings("d,a\n2024-01-01,1\n2024-02-01,1\n2024-03-01,1\n"), 0U);
  EXPECT_EQ(warnings("d,a\n2024-01-01,1\n2024-01-02,1\n2024-01-05,1\n"), 1U);
}

}  // namespace
}  // namespace orvane::tables
