/// A table that is not yet read: a file, standard input, a text, or rows from elsewhere.
#pragma once

#include "orvane/automation/Export.h"
#include "orvane/tables/read/ReadOptions.h"
#include "orvane/tables/read/Rows.h"

#include <functional>
#include <memory>
#include <string>

namespace orvane::tables {

struct TableInput {
  std::string name;  ///< What messages call it.
  /// Raises FileError where there is nothing to read.
  std::function<std::unique_ptr<Rows>(const ReadOptions& options)> open;
};

/// A file of text with separators between cells, or standard input for "-".
ORVANE_API TableInput TableFile(const std::string& path);
/// The same of a text; it is UTF-8 unless the options say otherwise.
ORVANE_API TableInput TableText(const std::string& name, const std::string& text);

}  // namespace orvane::tables
