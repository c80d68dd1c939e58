/// What every scene component shows its chart.
#pragma once

#include "orvane/scene/GroupingNodes.h"

#include <memory>

namespace orvane {

class ORVANE_API ISceneRoot {
 public:
  virtual ~ISceneRoot() = default;

  /// The component's top node. It is the same node for the component's whole life.
  virtual std::shared_ptr<scene::Node> RootNode() const = 0;
};

}  // namespace orvane
