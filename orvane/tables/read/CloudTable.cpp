#include "orvane/tables/read/CloudTable.h"

#include "orvane/tables/read/Csv.h"

#include <unordered_map>

namespace orvane::tables {

CloudTable ReadCloudTable(const Source& source) {
  CsvReader reader(source);
  std::vector<CsvCell> row = reader.ReadHeader();
  const std::size_t columnCount = row.size();
  if (columnCount < 2) source.Fail(reader.RowEnd(), "the header names no second column, z");
  if (columnCount > 3) source.Fail(row[3].offset, "a column after x, z and group");
  CloudTable table{row[0].text, row[1].text, {}};

  std::unordered_map<std::string, std::size_t> places;
  while (reader.Next(row)) {
    const double x = ReadNumber(row[0], source);
    const double z = ReadNumber(row[1], source);
    const std::string name(columnCount == 3 ? WithoutBlanks(row[2].text) : "");
    const auto [place, isNew] = places.try_emplace(name, table.clouds.size());
    if (isNew) {
      if (table.clouds.size() == kMostClouds) {
        source.Fail(row[2].offset, "more than " + std::to_string(kMostClouds) + " groups");
      }
      table.clouds.push_back({name, {}});
    }
    table.clouds[place->second].points.push_back({x, z});
  }
  if (table.clouds.empty()) source.Fail(reader.Offset(), "the header has no points below it");
  return table;
}

}  // namespace orvane::tables
