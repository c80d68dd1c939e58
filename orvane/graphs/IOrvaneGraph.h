/// What every chart shows the program around it.
#pragma once

#include "orvane/scene/GroupingNodes.h"

#include <memory>

namespace orvane {

class ORVANE_API IOrvaneGraph {
 public:
  virtual ~IOrvaneGraph() = default;

  /// The chart's root Transform.
  virtual std::shared_ptr<scene::Transform> RootNode() const = 0;
};

}  // namespace orvane
