#include "orvane/graphs/surface/ParzenMap.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cmath>
#include <cstdint>
#include <limits>
#include <numbers>
#include <utility>

namespace orvane {
namespace {

constexpr double kBase = 2.7183;

/// The lattice is worked through in blocks of this many neighbours along X.
constexpr std::size_t kBlock = 16;

/// The kernel's exponent at the squared distance q. Square root, product and quotient of 32-bit
/// floats are the same whether rounded at once or by way of double precision.
[[gnu::always_inline]] inline float Exponent(float q, float s) {
  const float d = std::sqrt(q);
  return -(d * d) / s;
}

/// The sum after one more point, as it is defined.
float Added(float sum, double dxx, double dzz, float s) {
  const double exponent = Exponent(static_cast<float>(dxx + dzz), s);
  return static_cast<float>(sum + std::pow(kBase, exponent));
}

/// A power of kBase with this exponent cannot change any 32-bit sum: 2.7183^-105 < 2^-151, and the
/// spacing of floats is 2^-149 at the least, so that the sum with it rounds back to what it was.
constexpr float kLostExponent = -105;

/// The smallest squared distance whose exponent is kLostExponent or less. Every step of Exponent
/// rounds monotonically, so it and all that is further away can be left out.
float LostDistance(float s) {
  // Positive floats are ordered as their bits are.
  std::uint32_t near = 0;
  std::uint32_t lost = std::bit_cast<std::uint32_t>(std::numeric_limits<float>::infinity());
  while (lost - near > 1) {
    const std::uint32_t middle = near + (lost - near) / 2;
    (Exponent(std::bit_cast<float>(middle), s) <= kLostExponent ? lost : near) = middle;
  }
  return std::bit_cast<float>(lost);
}

constexpr std::size_t kDegree = 9;

/// Coefficients of the Taylor polynomial of 2^r.
constexpr auto kTaylor = [] {
  std::array<double, kDegree + 1> coefficients{1};
  for (std::size_t i = 1; i <= kDegree; ++i) {
    coefficients[i] = coefficients[i - 1] * std::numbers::ln2 / static_cast<double>(i);
  }
  return coefficients;
}();

/// The polynomial from its k-th coefficient on, divided by r^k.
template <std::size_t k = 0>
[[gnu::always_inline]] inline double Taylor(double r) {
  if constexpr (k == kDegree) {
    return kTaylor[k];
  } else {
    return Taylor<k + 1>(r) * r + kTaylor[k];
  }
}

constexpr double kBinaryLogarithmOfBase = 1.4427046851812221;

/// Adding and subtracting this rounds to a whole number, which stands in its low bits in between.
constexpr double kRounder = 0x1.8p52;

/// kBase to the power `exponent`, from -256 to 0, to within kError of itself. For |r| <= 1/2 the
/// Taylor remainder is less than sqrt(2) (ln 2 / 2)^10 / 10! < 2^-36.5; all roundings, and the
/// error of std::pow against which this is held, come to less than 2^-43.
constexpr double kError = 0x1p-36;
[[gnu::always_inline]] inline double Power(float exponent) {
  const double t = exponent * kBinaryLogarithmOfBase;
  const double rounded = t + kRounder;
  const double r = t - (rounded - kRounder);
  return std::bit_cast<double>(std::bit_cast<std::uint64_t>(Taylor(r)) +
                               (std::bit_cast<std::uint64_t>(rounded) << 52));
}

/// Adds one point's kernel to a block of sums: `dxx` holds the squared x distances of its lattice
/// points, `dzz` is their squared z distance.
///
/// Addition and rounding are monotone, so a sum is right when both ends of what the power can be
/// lead to it. Where they differ, once in hundreds of blocks, the block is worked as defined.
[[gnu::always_inline]] inline void AddToBlock(const double* dxx, double dzz, float s, float* sums) {
  std::array<float, kBlock> low;
  std::uint32_t doubt = 0;
  for (std::size_t i = 0; i < kBlock; ++i) {
    const double power = Power(Exponent(static_cast<float>(dxx[i] + dzz), s));
    low[i] = static_cast<float>(sums[i] + power * (1 - kError));
    const auto high = static_cast<float>(sums[i] + power * (1 + kError));
    doubt |= std::bit_cast<std::uint32_t>(low[i]) ^ std::bit_cast<std::uint32_t>(high);
  }
  if (doubt == 0) {
    std::ranges::copy(low, sums);
  } else {
    for (std::size_t i = 0; i < kBlock; ++i) sums[i] = Added(sums[i], dxx[i], dzz, s);
  }
}

/// The part of the lattice that one point reaches.
struct Window {
  const double* dxx;        ///< Squared x distances of the columns.
  std::size_t columnCount;  ///< Whole blocks.
  const double* dzz;        ///< Squared z distances of the rows.
  std::size_t rowCount;
  float* sums;          ///< The first column's in the first row.
  std::size_t rowStep;  ///< From a sum to the one in the next row.
};

[[gnu::always_inline]] inline void AddToWindow(const Window& window, float s) {
  for (std::size_t row = 0; row < window.rowCount; ++row) {
    float* const sums = window.sums + row * window.rowStep;
    for (std::size_t column = 0; column < window.columnCount; column += kBlock) {
      AddToBlock(window.dxx + column, window.dzz[row], s, sums + column);
    }
  }
}

/// The same for any exponents whatever.
void AddAsDefined(const Window& window, float s) {
  for (std::size_t row = 0; row < window.rowCount; ++row) {
    float* const sums = window.sums + row * window.rowStep;
    for (std::size_t column = 0; column < window.columnCount; ++column) {
      sums[column] = Added(sums[column], window.dxx[column], window.dzz[row], s);
    }
  }
}

using Adder = void (*)(const Window&, float);

void AddPlain(const Window& window, float s) { AddToWindow(window, s); }

#if defined(__x86_64__)
[[gnu::target("avx2")]] void AddWithAvx2(const Window& window, float s) { AddToWindow(window, s); }
[[gnu::target("avx512f")]] void AddWithAvx512(const Window& window, float s) {
  AddToWindow(window, s);
}
#endif

/// Those that this processor can run, the fastest first.
std::vector<Adder> Adders() {
  std::vector<Adder> adders;
#if defined(__x86_64__)
  if (__builtin_cpu_supports("avx512f")) adders.push_back(AddWithAvx512);
  if (__builtin_cpu_supports("avx2")) adders.push_back(AddWithAvx2);
#endif
  adders.push_back(AddPlain);
  return adders;
}

/// The lattice along one axis.
class Ruler {
 public:
  /// `padding` further places follow so that the count is a multiple of it.
  Ruler(const LatticeAxis& axis, std::size_t padding) {
    const std::size_t count = (axis.count + padding - 1) / padding * padding;
    m_places.reserve(count);
    for (std::size_t i = 0; i < count; ++i) {
      m_places.push_back(static_cast<float>(i) * axis.spacing);
    }
    m_squares.resize(count);
  }

  std::size_t Count() const { return m_places.size(); }

  /// The first place whose squared distance to `at` is under `lost`, and the first behind it whose
  /// is not.
  std::pair<std::size_t, std::size_t> Reach(float at, float lost) const {
    const auto middle = std::ranges::lower_bound(m_places, at);
    const auto isLost = [&](float place) { return Square(place, at) >= lost; };
    const auto isNear = [&](float place) { return Square(place, at) < lost; };
    const auto first = std::partition_point(m_places.begin(), middle, isLost);
    const auto last = std::partition_point(middle, m_places.end(), isNear);
    return {first - m_places.begin(), last - m_places.begin()};
  }

  /// Squared distances to `at` of the places from `first` up to `last`, `lost` at the most.
  const double* Squares(float at, std::size_t first, std::size_t last, double lost) {
    for (std::size_t i = first; i < last; ++i) {
      m_squares[i] = std::min(lost, Square(m_places[i], at));
    }
    return m_squares.data() + first;
  }

 private:
  static double Square(float place, float at) {
    const double difference = place - at;
    return difference * difference;
  }

  std::vector<float> m_places;
  std::vector<double> m_squares;
};

/// ParzenMap with one of the Adders.
std::vector<float> MapWith(Adder adder, std::span<const scene::Vec2f> points,
                           const LatticeAxis& xAxis, const LatticeAxis& zAxis, float sigma) {
  using Limits = std::numeric_limits<float>;
  const auto s = static_cast<float>(
      std::clamp<double>(2.0 * sigma * sigma, Limits::denorm_min(), Limits::max()));
  const float lost = LostDistance(s);
  // A window's squared distances come to less than twice `lost`, and so its exponents to more than
  // -256, unless that is no longer a float.
  const Adder add = lost < Limits::max() / 4 ? adder : AddAsDefined;
  Ruler columns(xAxis, kBlock);
  Ruler rows(zAxis, 1);
  std::vector<float> sums(columns.Count() * rows.Count());
  for (const auto& point : points) {
    const auto [left, right] = columns.Reach(point.x, lost);
    const auto [back, front] = rows.Reach(point.y, lost);
    if (left == right) continue;
    const std::size_t first = left / kBlock * kBlock;
    const std::size_t last = (right + kBlock - 1) / kBlock * kBlock;
    add({.dxx = columns.Squares(point.x, first, last, lost),
         .columnCount = last - first,
         .dzz = rows.Squares(point.y, back, front, lost),
         .rowCount = front - back,
         .sums = sums.data() + back * columns.Count() + first,
         .rowStep = columns.Count()},
        s);
  }
  // Takes the padding out of the rows.
  std::vector<float> densities;
  densities.reserve(xAxis.count * zAxis.count);
  for (std::size_t row = 0; row < rows.Count(); ++row) {
    const auto start = sums.begin() + static_cast<std::ptrdiff_t>(row * columns.Count());
    densities.insert(densities.end(), start, start + static_cast<std::ptrdiff_t>(xAxis.count));
  }
  return densities;
}

}  // namespace

std::vector<float> ParzenMap(std::span<const scene::Vec2f> points, const LatticeAxis& xAxis,
                             const LatticeAxis& zAxis, float sigma) {
  return MapWith(Adders().front(), points, xAxis, zAxis, sigma);
}

void ScaleHeights(std::span<float> heights, float low, float high) {
  if (heights.empty()) return;
  const auto [smallest, largest] = std::ranges::minmax(heights);
  const float scale = (high - low) / (largest - smallest);
  for (float& height : heights) {
    height = std::isfinite(scale) ? (height - smallest) * scale + low : low;
  }
}

}  // namespace orvane
