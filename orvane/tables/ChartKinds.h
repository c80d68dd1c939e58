/// The kinds of chart that tables become, and every choice about them, by name: what command lines,
/// scripts and option files go by.
#pragma once

#include "orvane/automation/Export.h"
#include "orvane/graphs/Chart.h"
#include "orvane/tables/ChartOptions.h"
#include "orvane/tables/read/TableInput.h"

#include <functional>
#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace orvane::tables {

/// A kind or a choice that there is not, or a value that a choice does not take.
class ORVANE_API OptionError : public std::invalid_argument {
 public:
  using std::invalid_argument::invalid_argument;
};

/// One choice about a chart. Its name is in lower case, with "-" between words.
struct Option {
  std::string name;
  std::string values;  ///< What it takes, for a person to read: "#rrggbb"; empty for a switch.
  std::string help;
  std::string excludes;     ///< The name of the option that does not go with it, if any.
  bool isRequired = false;  ///< The chart cannot be made without it.

  /// Takes `text` over, "" for a switch. Raises OptionError that says what is allowed, and
  /// FileError for a file that cannot be read; `options` is then as before.
  std::function<void(ChartOptions& options, const std::string& text)> set;
};

/// A chart of the object model made from a table, ready to be exported or changed.
struct TableChart {
  std::shared_ptr<Chart> chart;
  std::vector<std::string> remarks;  ///< What was chosen or should be known, a line each.
};

struct ChartKind {
  std::string name;   ///< "area", "column-surface": as charts are called, in lower case.
  std::string graph;  ///< The class of its chart: "AreaGraph".
  std::string help;
  std::string table;  ///< What the table holds.
  std::vector<Option> options;
  std::function<TableChart(const TableInput& table, const ChartOptions& options)> make;
};

/// All kinds, series charts first.
ORVANE_API const std::vector<ChartKind>& ChartKinds();

/// Raises OptionError that names all kinds.
ORVANE_API const ChartKind& ChartKindOf(std::string_view name);

/// Sets the option `name` of charts of this kind. Raises what Option::set raises, with the name in
/// front, and OptionError for a name that the kind has not.
ORVANE_API void SetOption(const ChartKind& kind, ChartOptions& options, std::string_view name,
                          const std::string& text);

}  // namespace orvane::tables
