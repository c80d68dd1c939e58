/// The density chart.
#pragma once

#include "orvane/components/DrillUpInfo.h"
#include "orvane/graphs/grid/GridGraph.h"
#include "orvane/graphs/surface/DensitySurfaceInfo.h"
#include "orvane/graphs/surface/SurfaceList.h"

#include <cstdint>
#include <memory>

namespace orvane {

/// How far above the floor surfaces are held, in scene units, so that none shines through it or
/// through another: the first one, and each further one above the one before.
struct SurfaceLift {
  double first = 0.02;
  double step = 0;
};

/// Where points lie thickly on the floor of a grid: a surface for each cloud of points, as high as
/// the grid where they lie most thickly. All three axes have values.
class ORVANE_API DensityGraph final : public GridGraph {
 public:
  static constexpr const char* kClassName = "DensityGraph";
  const host::TypeInfo& Type() const override;

  DensityGraph();

  std::shared_ptr<ContinuousAxis> XAxisProps() const { return m_xAxis; }
  std::shared_ptr<ContinuousAxis> ZAxisProps() const { return m_zAxis; }

  /// Surface `index`, 1..SurfaceCount; a component error otherwise.
  std::shared_ptr<DensitySurfaceInfo> GetSurface(std::int16_t index) const {
    return m_surfaces.Get(index);
  }
  /// Number of surfaces, >= 0. Default 0. A lower number drops the trailing surfaces.
  std::int16_t SurfaceCount() const { return m_surfaces.Count(); }
  void SurfaceCount(std::int16_t count);

  /// Width of the kernel around each point in scene units, > 0: how far the hills spread. Default
  /// 0.8. All surfaces take it over at export.
  float Sigma() const { return m_sigma; }
  void Sigma(float sigma);

  /// Whether the drill-up cone is in the scene. Default false.
  bool UseDrillUp() const { return m_usesDrillUp; }
  void UseDrillUp(bool use) { m_usesDrillUp = use; }
  std::shared_ptr<DrillUpInfo> DrillUpProps() const { return m_drillUp; }

  /// How high surfaces are held at export, for C++.
  SurfaceLift& Lift() { return m_lift; }

 protected:
  void AlignXAxis() override;
  void AlignZAxis() override;
  void BuildSeries(LegendWiring& legend) override;
  void BuildNavigation() override;

 private:
  std::shared_ptr<ContinuousAxis> m_xAxis = std::make_shared<ContinuousAxis>();
  std::shared_ptr<ContinuousAxis> m_zAxis = std::make_shared<ContinuousAxis>();
  std::shared_ptr<DrillUpInfo> m_drillUp = std::make_shared<DrillUpInfo>();
  bool m_usesDrillUp = false;
  float m_sigma = 0.8F;
  SurfaceLift m_lift;
  SurfaceList<DensitySurfaceInfo> m_surfaces{"density surface"};
};

}  // namespace orvane
