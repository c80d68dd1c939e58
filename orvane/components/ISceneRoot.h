/// What every scene component shows its chart.
#pragma once

#include "orvane/scene/GroupingNodes.h"
#include "orvane/scene/frmMain.h"

#include <memory>

namespace orvane {

class ORVANE_API ISceneRoot {
 public:
  virtual ~ISceneRoot() = default;

  /// The component's top node. It is the same node for the component's whole life.
  virtual std::shared_ptr<scene::Node> RootNode() const = 0;
};

/// A component under a node of its own of type `N`, a Transform that its chart places or a Group.
template <class N>
class ORVANE_API RootedAt : public ISceneRoot {
 public:
  std::shared_ptr<scene::Node> RootNode() const final { return m_root; }
  /// The same node.
  const std::shared_ptr<N>& Root() const { return m_root; }

 private:
  std::shared_ptr<N> m_root = scene::Create<N>();
};

}  // namespace orvane
