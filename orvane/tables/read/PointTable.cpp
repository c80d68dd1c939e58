#include "orvane/tables/read/PointTable.h"

#include "orvane/automation/Enumeration.h"
#include "orvane/tables/read/Csv.h"

#include <array>
#include <string_view>
#include <unordered_map>

namespace orvane::tables {
namespace {

enum Role { kX, kY, kZ, kSize, kColor, kGroup, kFrame, kRoleCount };

constexpr std::array<std::string_view, kRoleCount> kRoleNames = {"x",     "y",     "z",    "size",
                                                                 "color", "group", "frame"};

/// Which column plays each role, and the text behind the role's name in its header.
struct Columns {
  std::array<std::optional<std::size_t>, kRoleCount> places;
  std::array<std::string, kRoleCount> headers;

  /// The cell of `row` that plays `role`, or nullptr.
  const CsvCell* In(const std::vector<CsvCell>& row, Role role) const {
    return places[role] ? &row[*places[role]] : nullptr;
  }
};

std::optional<Role> RoleNamed(std::string_view name) {
  if (host::EqualNoCase(name, "colour")) return kColor;
  for (std::size_t role = 0; role < kRoleCount; ++role) {
    if (host::EqualNoCase(name, kRoleNames[role])) return static_cast<Role>(role);
  }
  return {};
}

Columns ReadColumns(CsvReader& reader, const Source& source) {
  const auto header = reader.ReadHeader();
  Columns columns;
  for (std::size_t i = 0; i < header.size(); ++i) {
    const std::string_view text = WithoutBlanks(header[i].text);
    const std::size_t colon = text.find(':');
    const auto role = RoleNamed(WithoutBlanks(text.substr(0, colon)));
    if (!role) continue;
    if (columns.places[*role]) {
      source.Fail(header[i].offset, "column " + std::to_string(*columns.places[*role] + 1) +
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
    source.Fail(reader.RowEnd(),
                "the header names no " + std::string(kRoleNames[role]) + " column");
  }
  if (columns.places[kColor] && columns.places[kGroup]) {
    source.Fail(header[*columns.places[kGroup]].offset,
                "points get their colours from a color or a group column, not from both");
  }
  return columns;
}

/// Texts and their indexes, from 0, in order of appearance.
class Names {
 public:
  std::size_t IndexOf(const std::string& text) {
    return m_indexes.try_emplace(text, m_indexes.size()).first->second;
  }

 private:
  std::unordered_map<std::string, std::size_t> m_indexes;
};

PointRow ReadPoint(const std::vector<CsvCell>& row, const Columns& columns, const Source& source) {
  PointRow point;
  point.x = ReadNumber(*columns.In(row, kX), source);
  point.y = ReadNumber(*columns.In(row, kY), source);
  point.z = ReadNumber(*columns.In(row, kZ), source);
  if (const auto* cell = columns.In(row, kSize)) {
    point.size = ReadNumber(*cell, source);
    if (point.size < 0) source.Fail(cell->offset, "a size is 0 or more");
  }
  if (const auto* cell = columns.In(row, kColor)) {
    point.color = ParseColor(WithoutBlanks(cell->text));
    if (!point.color) source.Fail(cell->offset, '"' + cell->text + "\" is not a colour (#rrggbb)");
  }
  return point;
}

}  // namespace

PointTable ReadPointTable(const Source& source) {
  CsvReader reader(source);
  const Columns columns = ReadColumns(reader, source);
  PointTable table;
  table.xHeader = columns.headers[kX];
  table.yHeader = columns.headers[kY];
  table.zHeader = columns.headers[kZ];
  table.hasSizes = columns.places[kSize].has_value();

  Names frames;
  Names groups;
  std::vector<CsvCell> row;
  while (reader.Next(row)) {
    PointRow point = ReadPoint(row, columns, source);
    if (const auto* cell = columns.In(row, kGroup)) {
      point.group = groups.IndexOf(cell->text);
      if (point.group == table.groups.size()) table.groups.push_back(cell->text);
    }
    const auto* cell = columns.In(row, kFrame);
    const std::string name = cell == nullptr ? "" : cell->text;
    const std::size_t index = frames.IndexOf(name);
    if (index == kMostPoints) {
      source.Fail(cell->offset, "more than " + std::to_string(kMostPoints) + " frames");
    }
    if (index == table.frames.size()) table.frames.push_back({name, {}});
    auto& points = table.frames[index].points;
    if (points.size() == kMostPoints) {
      source.Fail(row[0].offset, "more than " + std::to_string(kMostPoints) + " points in a frame");
    }
    points.push_back(point);
  }
  if (table.frames.empty()) source.Fail(reader.Offset(), "the header has no points below it");
  return table;
}

}  // namespace orvane::tables
