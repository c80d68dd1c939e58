/// Tables of points: which column is what, frames and groups in order, complaints by line and
/// column.
#include "support/Tables.h"

#include "orvane/tables/read/PointTable.h"

#include <gtest/gtest.h>

namespace orvane::tables {
namespace {

PointTable Read(const std::string& text) {
  return ReadPointTable(*TableText("t.csv", text).open({}));
}

TEST(PointTable, FindsItsColumnsByName) {
  const PointTable table = Read(
      "name,Z: Depth (m),frame,X : Width,SIZE,y,Group\n"
      "a,3,1990, 1 ,4,2,east\n"
      "b,-3e1,2000,+10,0,20,west\n"
      "c,6,1990,4,1,5,west\n");
  EXPECT_EQ(table.xHeader, "Width");
  EXPECT_EQ(table.yHeader, "y");
  EXPECT_EQ(table.zHeader, "Depth (m)");
  EXPECT_TRUE(table.hasSizes);
  EXPECT_EQ(table.groups, (std::vector<std::string>{"east", "west"}));
  ASSERT_EQ(table.frames.size(), 2U);
  EXPECT_EQ(table.frames[0].name, "1990");
  ASSERT_EQ(table.frames[0].points.size(), 2U);
  EXPECT_EQ(table.frames[0].points[1].x, 4);
  EXPECT_EQ(table.frames[0].points[1].group, 1U);
  ASSERT_EQ(table.frames[1].points.size(), 1U);
  const PointRow& point = table.frames[1].points[0];
  EXPECT_EQ(point.x, 10);
  EXPECT_EQ(point.y, 20);
  EXPECT_EQ(point.z, -30);
  EXPECT_EQ(point.size, 0);
  EXPECT_EQ(point.group, 1U);
}

TEST(PointTable, NeedsNoMoreThanThreeColumns) {
  const PointTable table = Read("x,y,z\n1,2,3\n4,5,6\n");
  ASSERT_EQ(table.frames.size(), 1U);
  EXPECT_EQ(table.frames[0].points.size(), 2U);
  EXPECT_TRUE(table.groups.empty());
  EXPECT_FALSE(table.hasSizes);
  EXPECT_EQ(table.frames[0].points[0].color, std::nullopt);
  EXPECT_EQ(Read("x,y,z,colour\n1,2,3,#ff8000\n").frames[0].points[0].color, 0x0080FF);
}

TEST(PointTable, SaysWhatIsWrongAndWhere) {
  std::string full = "x,y,z\n";
  for (int i = 0; i < 32768; ++i) full += "1,2,3\n";
  const std::pair<std::string, std::string> cases[] = {
      {"x,y\n1,2\n", "t.csv:1:4: the header names no z column"},
      {"x,y,z,X: again\n", "t.csv:1:7: column 1 is already the x column"},
      {"x,y,z,group,color\n",
       "t.csv:1:7: points get their colours from a color or a group column, not from both"},
      {"x,y,z\n", "t.csv:2:1: the header has no points below it"},
      {"x,y,z\n1,,3\n", "t.csv:2:3: empty cell"},
      {"x,y,z\n1,2,3\n1,2,three\n", "t.csv:3:5: \"three\" is not a number"},
      {"x,y,z,size\n1,2,3,-1\n", "t.csv:2:7: a size is 0 or more"},
      {"x,y,z,color\n1,2,3,red\n", "t.csv:2:7: \"red\" is not a colour (#rrggbb)"},
      {full, "t.csv:32769:1: more than 32767 points in a frame"},
  };
  for (const auto& row : cases) {
    EXPECT_EQ(tests::ComplaintOf([&] { Read(row.first); }), row.second);
  }
}

}  // namespace
}  // namespace orvane::tables
