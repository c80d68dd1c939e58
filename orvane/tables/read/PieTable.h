/// The shares of a pie, from a table of two or three columns.
#pragma once

#include "orvane/automation/Export.h"
#include "orvane/tables/read/Table.h"

#include <string>
#include <vector>

namespace orvane::tables {

struct PieShare {
  std::string label;
  std::string value;  ///< As the table spells it.
  double part = 0;    ///< Of the whole, 0..1; together they are 1.
  double rise = 1;    ///< Height in parts of the highest slice's, 0..1.
};

/// The shares of labels, values, and, where there is a second series, heights. A gap has no share.
/// Raises FileError for more series, for a negative number, and where all values or all heights are
/// 0, naming line and column.
ORVANE_API std::vector<PieShare> PieSharesOf(const Table& table);

}  // namespace orvane::tables
