#include "orvane/graphs/surface/DensitySurfaceInfo.h"

#include "orvane/automation/Arithmetic.h"
#include "orvane/automation/AutomationError.h"
#include "orvane/graphs/surface/DescribeSurface.h"
#include "orvane/graphs/surface/ParzenMap.h"

#include <new>

namespace orvane {
namespace {

constexpr int kPointsPerCell = 3;

std::int16_t PointsAlong(std::int16_t cellCount) {
  return host::Int16(kPointsPerCell * std::int32_t{cellCount} + 1);
}

}  // namespace

const host::TypeInfo& DensitySurfaceInfo::Type() const {
  using Info = DensitySurfaceInfo;
  static const host::TypeInfo type =
      host::Describe<Info>("One surface of a density chart.")
          .With(DescribeMaterial<Info>)
          .Property<scene::MFVec2f>("PointList", &Info::PointList,
                                    {"The points, each x and z on the floor", "scene units"})
          .With(DescribeLegendText<Info>)
          .With(DescribeWireColor<Info>);
  return type;
}

void DensitySurfaceInfo::RequireSigma(float sigma) {
  host::Require(sigma > 0, "Invalid sigma value, must be greater than 0");
}

void DensitySurfaceInfo::Sigma(float sigma) {
  RequireSigma(sigma);
  m_sigma = sigma;
}

void DensitySurfaceInfo::GenerateParzenMap(float graphHeight) {
  try {
    auto heights = ParzenMap(m_points->Items(), {static_cast<std::size_t>(XCount()), XSpacing()},
                             {static_cast<std::size_t>(ZCount()), ZSpacing()}, m_sigma);
    ScaleHeights(heights, 0, graphHeight);
    Heights(ForAll(heights));
  } catch (const std::bad_alloc&) {
    RaiseTooLarge(XCount(), ZCount());
  }
}

void DensitySurfaceInfo::CoverCells(std::int16_t xCellCount, float cellWidth,
                                    std::int16_t zCellCount, float cellDepth) {
  Resize(PointsAlong(xCellCount), PointsAlong(zCellCount));
  XSpacing(host::Single(cellWidth / double{kPointsPerCell}));
  ZSpacing(host::Single(cellDepth / double{kPointsPerCell}));
}

}  // namespace orvane
