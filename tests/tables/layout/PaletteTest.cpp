/// Colours: how they read, and whether series can be told apart.
#include "orvane/tables/layout/Palette.h"

#include <algorithm>
#include <array>
#include <cmath>

#include <gtest/gtest.h>

namespace orvane::tables {
namespace {

using Triple = std::array<double, 3>;
using Matrix = std::array<Triple, 3>;

Triple Times(const Matrix& matrix, const Triple& v) {
  Triple product{};
  for (std::size_t i = 0; i < 3; ++i) {
    for (std::size_t j = 0; j < 3; ++j) product[i] += matrix[i][j] * v[j];
  }
  return product;
}

/// CIELAB (D65) of a host colour as seen through `vision`, which works on linear RGB.
Triple Seen(HostColor color, const Matrix& vision) {
  Triple rgb{};
  for (std::size_t i = 0; i < 3; ++i) {
    const double v = (color >> (8 * i) & 0xFF) / 255.0;
    rgb[i] = v <= 0.04045 ? v / 12.92 : std::pow((v + 0.055) / 1.055, 2.4);
  }
  rgb = Times(vision, rgb);
  for (double& v : rgb) v = std::clamp(v, 0.0, 1.0);
  constexpr Matrix kToXyz = {{{0.43394, 0.37620, 0.18983},  // Divided by the white point.
                              {0.2126, 0.7152, 0.0722},
                              {0.01773, 0.10947, 0.87280}}};
  Triple f = Times(kToXyz, rgb);
  for (double& v : f) v = v > 0.008856 ? std::cbrt(v) : 7.787 * v + 16.0 / 116;
  return {116 * f[1] - 16, 500 * (f[0] - f[1]), 200 * (f[1] - f[2])};
}

double LeastDistance(std::size_t count, const Matrix& vision) {
  double least = 1e9;
  for (std::size_t i = 0; i < count; ++i) {
    for (std::size_t j = 0; j < i; ++j) {
      const Triple a = Seen(SeriesColor(i), vision);
      const Triple b = Seen(SeriesColor(j), vision);
      least = std::min(least, std::hypot(a[0] - b[0], a[1] - b[1], a[2] - b[2]));
    }
  }
  return least;
}

TEST(Palette, KeepsSeriesApartForAllKindsOfColourVision) {
  // Machado, Oliveira and Fernandes (2009), full severity: normal, protan, deutan, tritan.
  const Matrix visions[] = {
      {{{1, 0, 0}, {0, 1, 0}, {0, 0, 1}}},
      {{{0.152286, 1.052583, -0.204868},
        {0.114503, 0.786281, 0.099216},
        {-0.003882, -0.048116, 1.051998}}},
      {{{0.367322, 0.860646, -0.227968},
        {0.280085, 0.672501, 0.047413},
        {-0.011820, 0.042940, 0.968881}}},
      {{{1.255528, -0.076749, -0.178779},
        {-0.078411, 0.930809, 0.147602},
        {0.004733, 0.691367, 0.303900}}},
  };
  for (const Matrix& vision : visions) {
    EXPECT_GT(LeastDistance(8, vision), 15);
    EXPECT_GT(LeastDistance(16, vision), 8);
    EXPECT_GT(LeastDistance(24, vision), 5);
  }
  EXPECT_EQ(SeriesColor(24), SeriesColor(0));
}

TEST(Color, ReadsSixHexadecimalDigits) {
  EXPECT_EQ(ParseColor("#12aBff"), 0xFFAB12);
  for (const char* text :
       {"", "#", "123456", "#12345", "#1234567", "#12345g", "#-12345", "#+12345"}) {
    EXPECT_EQ(ParseColor(text), std::nullopt) << text;
  }
}

TEST(Color, MeasuresContrast) {
  EXPECT_NEAR(Contrast(0x000000, 0xFFFFFF), 21, 1e-9);
  EXPECT_NEAR(Contrast(0x777777, 0xFFFFFF), 4.48, 0.01);
  EXPECT_EQ(Mix(0x000000, 0xFF8000, 0.5), 0x804000);
}

}  // namespace
}  // namespace orvane::tables
