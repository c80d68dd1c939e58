/// Where hosts get their charts from.
#pragma once

#include "orvane/automation/Object.h"
#include "orvane/graphs/grid/AreaGraph.h"
#include "orvane/graphs/grid/ColumnGraph.h"
#include "orvane/graphs/grid/RibbonGraph.h"
#include "orvane/graphs/pie/PieGraph.h"
#include "orvane/graphs/scatter/ScatterGraph.h"
#include "orvane/graphs/surface/DensityGraph.h"
#include "orvane/graphs/surface/RCComboGraph.h"
#include "orvane/graphs/surface/SCComboGraph.h"
#include "orvane/graphs/surface/SurfaceGraph.h"

#include <memory>

namespace orvane {

/// Each call makes a new, independent chart, which is the caller's alone. The description of this
/// class is the one list of the kinds of chart. A host gets the factory from its control.
class ORVANE_API GraphFactory final : public host::Object {
 public:
  static constexpr const char* kClassName = "GraphFactory";
  const host::TypeInfo& Type() const override;

  std::shared_ptr<AreaGraph> CreateAreaGraph() { return std::make_shared<AreaGraph>(); }
  std::shared_ptr<ColumnGraph> CreateColumnGraph() { return std::make_shared<ColumnGraph>(); }
  std::shared_ptr<PieGraph> CreatePieGraph() { return std::make_shared<PieGraph>(); }
  std::shared_ptr<RibbonGraph> CreateRibbonGraph() { return std::make_shared<RibbonGraph>(); }
  std::shared_ptr<ScatterGraph> CreateScatterGraph() { return std::make_shared<ScatterGraph>(); }
  std::shared_ptr<SurfaceGraph> CreateSurfaceGraph() { return std::make_shared<SurfaceGraph>(); }
  std::shared_ptr<DensityGraph> CreateDensityGraph() { return std::make_shared<DensityGraph>(); }
  std::shared_ptr<SCComboGraph> CreateSCComboGraph() { return std::make_shared<SCComboGraph>(); }
  std::shared_ptr<RCComboGraph> CreateRCComboGraph() { return std::make_shared<RCComboGraph>(); }
};

}  // namespace orvane
