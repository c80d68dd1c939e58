#include "orvane/tables/read/PointTable.h"

#include "orvane/automation/Enumeration.h"
#include "orvane/tables/read/Pivot.h"
#include "orvane/tables/read/TableReader.h"

#include <array>
#include <string_view>
#include <vector>

namespace orvane::tables {
namespace {

enum Role { kX, kY, kZ, kSize, kColor, kGroup, kFrame, kRoleCount };

constexpr std::array<std::string_view, kRoleCount> kRoleNames = {"x",     "y",     "z",    "size",
                                                                 "color", "group", "frame"};

/// Which column plays each role, and the text behind the role's name in its header.
struct Columns {
  std::array<std::optional<std::size_t>, kRoleCount> places;
  std::array<std::string, kRoleCount> headers;
};

std::optional<Role> RoleNamed(std::string_view name) {
  if (host::EqualNoCase(name, "colour")) return kColor;
  for (std::size_t role = 0; role < kRoleCount; ++role) {
    if (host::EqualNoCase(name, kRoleNames[role])) return static_cast<Role>(role);
  }
  return {};
}

Columns ReadColumns(const TableReader& reader) {
  const auto& header = reader.Columns();
  const Origin& origin = reader.From();
  Columns columns;
  for (std::size_t i = 0; i < header.size(); ++i) {
    const std::string_view text = WithoutBlanks(header[i].name);
    const std::size_t colon = text.find(':');
    const auto role = RoleNamed(WithoutBlanks(text.substr(0, colon)));
    if (!role) continue;
    if (columns.places[*role]) {
      origin.Fail(header[i].place, "column " + std::to_string(*columns.places[*role] + 1) +
                                       " is already the " + std::string(kRoleNames[*role]) +
                                       " column");
    }
    columns.places[*role] = i;
    const auto said =
        colon == std::string_view::npos ? text : WithoutBlanks(text.substr(colon + 1));
    columns.headers[*role] = said;
  }
  for (const Role role : {kX, kY, kZ}) {
    if (columns.places[role]) continue;
    origin.Fail(reader.HeaderEnd(),
                "the header names no " + std::string(kRoleNames[role]) + " column");
  }
  if (columns.places[kColor] && columns.places[kGroup]) {
    origin.Fail(header[*columns.places[kGroup]].place,
                "points get their colours from a color or a group column, not from both");
  }
  return columns;
}

PointRow ReadPoint(const TableReader& reader, const Columns& columns) {
  const auto& places = columns.places;
  PointRow point;
  point.x = reader.Number(*places[kX]);
  point.y = reader.Number(*places[kY]);
  point.z = reader.Number(*places[kZ]);
  if (places[kSize]) {
    point.size = reader.Number(*places[kSize]);
    if (point.size < 0) reader.Fail(*places[kSize], "a size is 0 or more");
  }
  if (places[kColor]) {
    const std::string_view text = reader.Text(*places[kColor]);
    point.color = ParseColor(text);
    if (!point.color) {
      reader.Fail(*places[kColor], '"' + std::string(text) + "\" is not a colour (#rrggbb)");
    }
  }
  return point;
}

}  // namespace

PointTable ReadPointTable(Rows& rows, const ReadOptions& options) {
  TableReader reader(rows, options);
  const Columns columns = ReadColumns(reader);
  const auto& places = columns.places;
  std::vector<std::size_t> numbers;
  for (const Role role : {kX, kY, kZ, kSize}) {
    if (places[role]) numbers.push_back(*places[role]);
  }
  reader.ReadNumbersIn(numbers, false);
  PointTable table;
  table.xHeader = columns.headers[kX];
  table.yHeader = columns.headers[kY];
  table.zHeader = columns.headers[kZ];
  table.hasSizes = places[kSize].has_value();
  table.warnings = reader.warnings;

  NameList frames;
  NameList groups;
  while (reader.Next()) {
    PointRow point = ReadPoint(reader, columns);
    if (places[kGroup]) point.group = groups.IndexOf(reader.RawText(*places[kGroup]));
    const std::string_view name = places[kFrame] ? reader.RawText(*places[kFrame]) : "";
    const std::size_t index = frames.IndexOf(name);
    if (index == kMostPoints) {
      reader.Fail(*places[kFrame], "more than " + std::to_string(kMostPoints) + " frames");
    }
    if (index == table.frames.size()) table.frames.push_back({std::string(name), {}});
    auto& points = table.frames[index].points;
    if (points.size() == kMostPoints) {
      reader.Fail(0, "more than " + std::to_string(kMostPoints) + " points in a frame");
    }
    points.push_back(point);
  }
  table.groups = groups.Names();
  if (table.frames.empty()) reader.FailAtEnd("the header has no points below it");
  return table;
}

}  // namespace orvane::tables
