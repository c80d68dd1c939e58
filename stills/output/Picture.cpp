// Draws triangles into tiles of the picture, each of which fits into the processor's cache.

#include "stills/output/Picture.h"

#include "stills/Error.h"
#include "stills/output/Shading.h"
#include "stills/output/Triangles.h"
#include "stills/shapes/Vectors.h"

#include <algorithm>
#include <atomic>
#include <cstring>
#include <thread>

#include <png.h>

namespace orvane::stills {

namespace {

constexpr int kTile = 32;
constexpr std::size_t kSamples = 16;
constexpr int kMostPixels = 16384;

/// Of each row and column of a grid of 16 x 16 in a pixel one sample: edges of any slope get 16
/// steps.
constexpr std::array<float, kSamples> kSampleY = {1, 9, 5, 13, 3, 11, 7, 15,
                                                  0, 8, 4, 12, 2, 10, 6, 14};

float SampleX(std::size_t i) { return (static_cast<float>(i) + 0.5F) / kSamples; }
float SampleY(std::size_t i) { return (kSampleY[i] + 0.5F) / kSamples; }

using Samples = std::array<float, kSamples>;

struct Color {
  float red = 0, green = 0, blue = 0, alpha = 0;  ///< multiplied by alpha
};

/// a * x + b * y + c, and its part of that for each sample of a pixel.
struct Plane {
  double a = 0, b = 0, c = 0;
  Samples steps{};
  float most = 0;  ///< of the steps

  float At(int x, int y) const { return static_cast<float>(a * x + b * y + c); }
  void Prepare() {
    for (std::size_t i = 0; i < kSamples; ++i) {
      steps[i] = static_cast<float>(a * double{SampleX(i)} + b * double{SampleY(i)});
    }
    most = *std::ranges::max_element(steps);
  }
};

class Tile {
 public:
  Tile(const Triangles& triangles, const std::vector<Light>& lights, const Still& still,
       const PictureSize& size, Picture& picture)
      : m_triangles(triangles),
        m_lights(lights),
        m_still(still),
        m_lens(still.view, size),
        m_isTransparent(size.isTransparent),
        m_picture(picture),
        m_near(kTile * kTile),
        m_color(kTile * kTile * kSamples) {}

  void Draw(int x, int y, const std::vector<std::uint32_t>& triangles) {
    m_x = x;
    m_y = y;
    m_width = std::min(kTile, m_picture.width - x);
    m_height = std::min(kTile, m_picture.height - y);
    Clear();
    for (const std::uint32_t index : triangles) {
      Draw(m_triangles.list[index], index >= m_triangles.opaque);
    }
    Resolve();
  }

 private:
  void Clear() {
    for (int y = 0; y < m_height; ++y) {
      for (int x = 0; x < m_width; ++x) {
        const auto pixel = static_cast<std::size_t>(y * kTile + x);
        m_near[pixel].fill(0);
        Color color;
        if (!m_isTransparent && !m_still.background.skyColors.empty()) {
          const Vec3 ray{static_cast<float>(m_x + x) + 0.5F - m_lens.x,
                         m_lens.y - static_cast<float>(m_y + y) - 0.5F, -m_lens.focus};
          const Vec3 sky = SkyColor(m_still.background, Unit(m_still.view.place.Vector(ray)));
          color = {sky[0], sky[1], sky[2], 1};
        } else if (!m_isTransparent) {
          color.alpha = 1;
        }
        std::fill_n(m_color.begin() + static_cast<std::ptrdiff_t>(pixel * kSamples), kSamples,
                    color);
      }
    }
  }

  /// The plane through a value at each corner; false for a triangle without an area.
  void Draw(const Triangle& triangle, bool isClear) {
    const auto& [a, b, c] = triangle.corners;
    const double area =
        (double{b.x} - a.x) * (double{c.y} - a.y) - (double{b.y} - a.y) * (double{c.x} - a.x);
    if (area == 0) return;
    std::array<Plane, 3> parts;
    for (std::size_t i = 0; i < 3; ++i) {
      const Corner &from = triangle.corners[(i + 1) % 3], &to = triangle.corners[(i + 2) % 3];
      parts[i].a = (double{from.y} - to.y) / area;
      parts[i].b = (double{to.x} - from.x) / area;
      parts[i].c = (double{from.x} * to.y - double{from.y} * to.x) / area + parts[i].a * m_x +
                   parts[i].b * m_y;
      parts[i].Prepare();
    }
    Plane near;
    for (std::size_t i = 0; i < 3; ++i) {
      const auto by = static_cast<double>(triangle.corners[i].near);
      near.a += by * parts[i].a;
      near.b += by * parts[i].b;
      near.c += by * parts[i].c;
    }
    near.Prepare();
    const auto [lowX, highX] = std::minmax({a.x, b.x, c.x});
    const auto [lowY, highY] = std::minmax({a.y, b.y, c.y});
    const int x0 = Within(lowX - static_cast<float>(m_x), m_width),
              x1 = Within(highX - static_cast<float>(m_x), m_width);
    const int y0 = Within(lowY - static_cast<float>(m_y), m_height),
              y1 = Within(highY - static_cast<float>(m_y), m_height);
    for (int y = y0; y <= y1; ++y) {
      const Vec3 row{parts[0].At(0, y), parts[1].At(0, y), parts[2].At(0, y)};
      for (int x = x0; x <= x1; ++x) {
        Vec3 start;
        bool isNear = true;  // to the triangle
        for (std::size_t i = 0; i < 3; ++i) {
          start[i] = row[i] + static_cast<float>(parts[i].a) * static_cast<float>(x);
          isNear = isNear && start[i] + parts[i].most >= 0;
        }
        if (isNear) DrawPixel(triangle, parts, start, near, x, y, isClear);
      }
    }
  }

  static int Within(float at, int count) {
    return static_cast<int>(std::clamp(std::floor(at), 0.0F, static_cast<float>(count - 1)));
  }

  void DrawPixel(const Triangle& triangle, const std::array<Plane, 3>& parts, const Vec3& start,
                 const Plane& near, int x, int y, bool isClear) {
    const auto [p, q, r] = start;
    const float depth = near.At(x, y);
    const auto pixel = static_cast<std::size_t>(y * kTile + x);
    Samples& nearest = m_near[pixel];
    std::array<int, kSamples> isHit;  // all samples at once, without branches
    int count = 0;
    for (std::size_t i = 0; i < kSamples; ++i) {
      isHit[i] = int{p + parts[0].steps[i] >= 0} & int{q + parts[1].steps[i] >= 0} &
                 int{r + parts[2].steps[i] >= 0} & int{depth + near.steps[i] > nearest[i]};
      count += isHit[i];
    }
    if (count == 0) return;
    const Color color = ColorAt(triangle, start, parts, isHit, count);
    Color* colors = m_color.data() + pixel * kSamples;
    for (std::size_t i = 0; i < kSamples; ++i) {
      if (!isHit[i]) continue;
      if (!isClear) {
        nearest[i] = depth + near.steps[i];
        colors[i] = color;
      } else {
        const float rest = 1 - color.alpha;
        colors[i] = {color.red + rest * colors[i].red, color.green + rest * colors[i].green,
                     color.blue + rest * colors[i].blue, color.alpha + rest * colors[i].alpha};
      }
    }
  }

  /// In the middle of the samples that are hit, which is always within the triangle.
  Color ColorAt(const Triangle& triangle, const Vec3& start, const std::array<Plane, 3>& parts,
                const std::array<int, kSamples>& isHit, int count) const {
    const Surface& surface = m_triangles.surfaces[triangle.part];
    const Look& look = surface.look;
    Vec3 color = look.emissive;
    if (look.isLit || surface.hasColors) {
      Vec3 weights{};
      for (std::size_t k = 0; k < 3; ++k) {
        for (std::size_t i = 0; i < kSamples; ++i) weights[k] += isHit[i] ? parts[k].steps[i] : 0;
        weights[k] = (weights[k] / static_cast<float>(count) + start[k]) * triangle.corners[k].near;
      }
      weights = weights * (1 / (weights[0] + weights[1] + weights[2]));
      const auto blend = [&](Vec3 Corner::*what) {
        return triangle.corners[0].*what * weights[0] + triangle.corners[1].*what * weights[1] +
               triangle.corners[2].*what * weights[2];
      };
      const Vec3 own = surface.hasColors ? blend(&Corner::color) : look.diffuse;
      color = own;
      if (look.isLit) {
        const Vec3 normal = Unit(blend(&Corner::normal)) * (triangle.isTurned ? -1.0F : 1.0F);
        color = Shade(look, own, blend(&Corner::point), normal, m_lights);
      }
    }
    const float alpha = 1 - look.transparency;
    return {color[0] * alpha, color[1] * alpha, color[2] * alpha, alpha};
  }

  void Resolve() {
    for (int y = 0; y < m_height; ++y) {
      for (int x = 0; x < m_width; ++x) {
        const Color* colors = m_color.data() + static_cast<std::size_t>(y * kTile + x) * kSamples;
        Color sum;
        for (std::size_t i = 0; i < kSamples; ++i) {
          sum.red += colors[i].red;
          sum.green += colors[i].green;
          sum.blue += colors[i].blue;
          sum.alpha += colors[i].alpha;
        }
        const auto at =
            static_cast<std::size_t>(m_y + y) * static_cast<std::size_t>(m_picture.width) +
            static_cast<std::size_t>(m_x + x);
        std::uint8_t* out = m_picture.pixels.data() + 4 * at;
        const float by = sum.alpha > 0 ? 255 / sum.alpha : 0;
        out[0] = Byte(sum.red * by);
        out[1] = Byte(sum.green * by);
        out[2] = Byte(sum.blue * by);
        out[3] = Byte(sum.alpha * 255 / kSamples);
      }
    }
  }

  static std::uint8_t Byte(float value) {
    return static_cast<std::uint8_t>(std::clamp(value + 0.5F, 0.0F, 255.0F));
  }

  const Triangles& m_triangles;
  const std::vector<Light>& m_lights;
  const Still& m_still;
  Lens m_lens;
  bool m_isTransparent;
  Picture& m_picture;
  std::vector<Samples> m_near;  ///< of the nearest surface so far, 0 for none
  std::vector<Color> m_color;
  int m_x = 0, m_y = 0, m_width = 0, m_height = 0;
};

/// For each tile the triangles that may touch it, in order.
std::vector<std::vector<std::uint32_t>> Sorted(const Triangles& triangles, int columns, int rows) {
  std::vector<std::vector<std::uint32_t>> tiles(static_cast<std::size_t>(columns * rows));
  const auto within = [](float at, int count) {
    return static_cast<int>(std::clamp(std::floor(at / kTile), -1.0F, static_cast<float>(count)));
  };
  for (std::size_t n = 0; n < triangles.list.size(); ++n) {
    const auto& [a, b, c] = triangles.list[n].corners;
    const auto [lowX, highX] = std::minmax({a.x, b.x, c.x});
    const auto [lowY, highY] = std::minmax({a.y, b.y, c.y});
    const int x1 = std::min(within(highX, columns), columns - 1);
    const int y1 = std::min(within(highY, rows), rows - 1);
    for (int y = std::max(within(lowY, rows), 0); y <= y1; ++y) {
      for (int x = std::max(within(lowX, columns), 0); x <= x1; ++x) {
        tiles[static_cast<std::size_t>(y * columns + x)].push_back(static_cast<std::uint32_t>(n));
      }
    }
  }
  return tiles;
}

}  // namespace

Picture Draw(const Still& still, const PictureSize& size) {
  Picture picture;
  picture.width = static_cast<int>(std::lround(static_cast<float>(size.width) * size.scale));
  picture.height = static_cast<int>(std::lround(static_cast<float>(size.height) * size.scale));
  if (picture.width < 1 || picture.height < 1 || picture.width > kMostPixels ||
      picture.height > kMostPixels) {
    throw Error("a picture is 1 to " + std::to_string(kMostPixels) + " pixels wide and high, not " +
                std::to_string(picture.width) + "x" + std::to_string(picture.height));
  }
  picture.pixels.resize(std::size_t{4} * static_cast<std::size_t>(picture.width) *
                        static_cast<std::size_t>(picture.height));
  const Triangles triangles = Project(still, size);
  const std::vector<Light> lights = LightsSeen(still);
  const int columns = (picture.width + kTile - 1) / kTile,
            rows = (picture.height + kTile - 1) / kTile;
  const auto tiles = Sorted(triangles, columns, rows);
  std::atomic<int> next{0};
  const auto work = [&] {
    Tile tile(triangles, lights, still, size, picture);
    for (int i = next++; i < columns * rows; i = next++) {
      tile.Draw(i % columns * kTile, i / columns * kTile, tiles[static_cast<std::size_t>(i)]);
    }
  };
  std::vector<std::jthread> helpers;
  for (unsigned i = 1; i < std::min(8U, std::thread::hardware_concurrency()); ++i)
    helpers.emplace_back(work);
  work();
  helpers.clear();
  return picture;
}

std::string Png(const Picture& picture) {
  png_image image{};
  image.version = PNG_IMAGE_VERSION;
  image.width = static_cast<png_uint_32>(picture.width);
  image.height = static_cast<png_uint_32>(picture.height);
  image.format = PNG_FORMAT_RGBA;
  image.flags = PNG_IMAGE_FLAG_FAST;
  png_alloc_size_t size = PNG_IMAGE_PNG_SIZE_MAX(image);
  std::string bytes(size, '\0');
  if (!png_image_write_to_memory(&image, bytes.data(), &size, 0, picture.pixels.data(), 0,
                                 nullptr)) {
    throw Error(std::string("the picture cannot be written: ") + image.message);
  }
  bytes.resize(size);
  return bytes;
}

}  // namespace orvane::stills
