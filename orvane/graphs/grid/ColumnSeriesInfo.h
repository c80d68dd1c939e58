/// One series of a column chart.
#pragma once

#include "orvane/graphs/grid/StyledSeries.h"
#include "orvane/scene/GraphProtos.h"

#include <cstdint>
#include <memory>

namespace orvane {

enum class ColumnStyle : std::int32_t { OUTLINED_COLUMN = 0, ROUNDED_COLUMN = 1 };

/// A row of columns, centred on their values.
class ORVANE_API ColumnSeriesInfo final
    : public StyledSeries<ColumnStyle, scene::OutlinedColumnSeries, scene::RoundedColumnSeries> {
 public:
  static constexpr const char* kClassName = "ColumnSeriesInfo";
  const host::TypeInfo& Type() const override;

  ColumnSeriesInfo();

  /// Extent of a column along X in scene units, > 0. Default 1.
  float Width() const { return OutlinedShape().width.Value(); }
  void Width(float width);
};

}  // namespace orvane

namespace orvane::host {

template <>
ORVANE_API const EnumInfo& Enumeration<ColumnStyle>();

}  // namespace orvane::host
