/// A small picture that a control carries within it.
#pragma once

#include <cstdint>
#include <vector>

namespace orvane::host {

/// Pixels in rows from the top, each row from the left: red in bits 0-7, green in bits 8-15, blue
/// in bits 16-23, as in the object model.
struct Picture {
  std::int32_t width = 0;
  std::int32_t height = 0;
  std::vector<std::int32_t> pixels;
};

}  // namespace orvane::host
