/// One series of a ribbon chart.
#pragma once

#include "orvane/graphs/grid/StyledSeries.h"
#include "orvane/scene/GraphProtos.h"

#include <cstdint>
#include <memory>

namespace orvane {

enum class RibbonStyle : std::int32_t { OUTLINED_RIBBON = 0, ROUNDED_RIBBON = 1 };

/// A band that runs through the values.
class ORVANE_API RibbonSeriesInfo final
    : public StyledSeries<RibbonStyle, scene::OutlinedRibbonSeries, scene::RoundedRibbonSeries> {
 public:
  static constexpr const char* kClassName = "RibbonSeriesInfo";
  const host::TypeInfo& Type() const override;

  RibbonSeriesInfo();

  /// Thickness of the band in scene units, > 0. Default 0.2.
  float Thickness() const { return OutlinedShape().thickness.Value(); }
  void Thickness(float thickness);
};

}  // namespace orvane

namespace orvane::host {

template <>
ORVANE_API const EnumInfo& Enumeration<RibbonStyle>();

}  // namespace orvane::host
