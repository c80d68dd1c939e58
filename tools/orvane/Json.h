/// JSON with the place of every key and value, so that what is wrong with a model can be shown by
/// line and column.
#pragma once

#include "orvane/automation/Value.h"
#include "orvane/tables/read/Source.h"

#include <cstddef>
#include <string>
#include <variant>
#include <vector>

namespace orvane::tool {

struct JsonMember;

struct JsonValue {
  using Null = std::monostate;
  using Array = std::vector<JsonValue>;
  using Object = std::vector<JsonMember>;  ///< In the order of the file; keys are unique.

  std::variant<Null, host::Value, Array, Object> content;
  std::size_t offset = 0;  ///< Of its first byte.

  /// The content when it is of exactly this kind, else nullptr.
  template <class T>
  const T* If() const {
    return std::get_if<T>(&content);
  }
};

struct JsonMember {
  std::string key;
  std::size_t offset = 0;  ///< Of the key's opening quote.
  JsonValue value;
};

/// The value that `source` holds. Whole numbers that fit 32 bits stay whole. Raises FileError for
/// anything that is not JSON, for a key that an object repeats, and for more than 100 levels.
JsonValue ReadJson(const tables::Source& source);

}  // namespace orvane::tool
