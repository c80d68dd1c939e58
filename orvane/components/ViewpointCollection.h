/// The places from which a viewer can look at a chart.
#pragma once

#include "orvane/automation/Object.h"
#include "orvane/components/ISceneRoot.h"
#include "orvane/scene/ViewNodes.h"

#include <cstdint>
#include <memory>

namespace orvane {

/// Viewpoints in order of addition; a world opens at the first one.
class ORVANE_API ViewpointCollection final : public host::Object, public RootedAt<scene::Group> {
 public:
  static constexpr const char* kClassName = "ViewpointCollection";
  const host::TypeInfo& Type() const override;

  /// Viewpoint `index`, 1..Count; a bad index raises ListIndex.
  std::shared_ptr<scene::Viewpoint> GetViewpoint(std::int16_t index) const;
  /// A new viewpoint with VRML97's defaults, for the host to set.
  std::shared_ptr<scene::Viewpoint> AddViewpoint();
  void ClearViewpoints() { Root()->children.Clear(); }
  std::int16_t Count() const;

 private:
};

}  // namespace orvane
