/// The legend of a scatter chart, whose entries the host makes.
#pragma once

#include "orvane/components/ChartLegend.h"

#include <cstdint>
#include <string>

namespace orvane {

class ORVANE_API ScatterLegendInfo final : public ChartLegend {
 public:
  static constexpr const char* kClassName = "ScatterLegendInfo";
  const host::TypeInfo& Type() const override;

  /// Adds an entry below those there are. `newColor` is a host RGB colour, 0..0xFFFFFF.
  void AddLegendEntry(std::int32_t newColor, const std::string& newText);
  void ClearLegend() { ClearEntries(); }
};

}  // namespace orvane
