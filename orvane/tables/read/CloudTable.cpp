#include "orvane/tables/read/CloudTable.h"

#include "orvane/tables/read/TableReader.h"

#include <unordered_map>

namespace orvane::tables {

CloudTable ReadCloudTable(Rows& rows, const ReadOptions& options) {
  TableReader reader(rows, options);
  reader.ReadNumbersIn(
      reader.Columns().size() < 2 ? std::vector<std::size_t>{} : std::vector<std::size_t>{0, 1},
      false);
  reader.DropEmptyColumns();
  const auto& columns = reader.Columns();
  if (columns.size() < 2)
    reader.From().Fail(reader.HeaderEnd(), "the header names no second column, z");
  if (columns.size() > 3) reader.From().Fail(columns[3].place, "a column after x, z and group");
  CloudTable table{columns[0].name, columns[1].name, {}, reader.warnings};

  std::unordered_map<std::string, std::size_t> places;
  while (reader.Next()) {
    const double x = reader.Number(0);
    const double z = reader.Number(1);
    const std::string name(columns.size() == 3 ? reader.Text(2) : "");
    const auto [place, isNew] = places.try_emplace(name, table.clouds.size());
    if (isNew) {
      if (table.clouds.size() == kMostClouds) {
        reader.Fail(2, "more than " + std::to_string(kMostClouds) + " groups");
      }
      table.clouds.push_back({name, {}});
    }
    table.clouds[place->second].points.push_back({x, z});
  }
  if (table.clouds.empty()) reader.FailAtEnd("the header has no points below it");
  return table;
}

}  // namespace orvane::tables
