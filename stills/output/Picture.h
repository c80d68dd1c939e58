/// Draws a still as a picture, and writes it as PNG.
#pragma once

#include "stills/Still.h"

#include <cstdint>
#include <string>
#include <vector>

namespace orvane::stills {

struct PictureSize {
  int width = 1280, height = 800;  ///< in pixels before scaling, > 0
  float scale = 1;  ///< pixels of the picture for each of these; lines get as much wider, > 0
  bool isTransparent = false;  ///< the sky is left out
};

/// Rows from above, four bytes a pixel: red, green, blue, and how opaque it is.
struct Picture {
  int width = 0, height = 0;
  std::vector<std::uint8_t> pixels;
};

/// Sixteen samples a pixel. Raises Error for a size below 1 or above 16384 pixels either way.
Picture Draw(const Still& still, const PictureSize& size);

/// The bytes of a PNG file. Raises Error when memory is short.
std::string Png(const Picture& picture);

}  // namespace orvane::stills
