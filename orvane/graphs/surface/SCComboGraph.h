/// The chart of surfaces and columns.
#pragma once

#include "orvane/graphs/grid/ColumnGraph.h"
#include "orvane/graphs/surface/ComboGraph.h"

namespace orvane {

/// A ColumnGraph with surfaces over its cells.
class ORVANE_API SCComboGraph final : public ComboGraph<ColumnGraph> {
 public:
  static constexpr const char* kClassName = "SCComboGraph";
  const host::TypeInfo& Type() const override;
};

}  // namespace orvane
