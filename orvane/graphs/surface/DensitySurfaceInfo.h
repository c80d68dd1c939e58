/// One surface of a density chart.
#pragma once

#include "orvane/graphs/surface/LatticeSurface.h"

#include <cstdint>
#include <memory>

namespace orvane {

/// Points on the floor of the chart's grid, and the surface that is high where they lie thickly.
/// The surface is brought up to date at every export.
class ORVANE_API DensitySurfaceInfo final : public LatticeSurface {
 public:
  static constexpr const char* kClassName = "DensitySurfaceInfo";
  const host::TypeInfo& Type() const override;

  /// The points, each (x, z) in scene units on the floor; a live list.
  scene::MFVec2f& PointList() { return *m_points; }

  /// Width of the kernel around each point in scene units, > 0. Default 0.5.
  float Sigma() const { return m_sigma; }
  void Sigma(float sigma);
  /// Makes the heights anew from the points: where they lie most thickly the surface is
  /// `graphHeight` high, > 0, and where least 0. Points that lie alike everywhere, or none, leave
  /// it flat at 0. Raises Overflow, before anything changes, when the lattice does not fit in
  /// memory.
  void GenerateParzenMap(float graphHeight);

  /// Covers the floor of a grid: three lattice points to a cell, and one more at the far end.
  void CoverCells(std::int16_t xCellCount, float cellWidth, std::int16_t zCellCount,
                  float cellDepth);

  /// Raises the component error unless `sigma` is > 0.
  static void RequireSigma(float sigma);

 private:
  std::shared_ptr<scene::MFVec2f> m_points = std::make_shared<scene::MFVec2f>();
  float m_sigma = 0.5F;
};

}  // namespace orvane
