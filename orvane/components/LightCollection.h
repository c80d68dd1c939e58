/// The lights of a chart's world.
#pragma once

#include "orvane/automation/Object.h"
#include "orvane/components/ISceneRoot.h"
#include "orvane/scene/ViewNodes.h"

#include <cstdint>
#include <memory>

namespace orvane {

/// Point lights in order of addition, and the viewer's headlight.
class ORVANE_API LightCollection final : public host::Object, public RootedAt<scene::Group> {
 public:
  static constexpr const char* kClassName = "LightCollection";
  const host::TypeInfo& Type() const override;

  LightCollection();

  /// Light `index`, 1..Count; a bad index raises ListIndex.
  std::shared_ptr<scene::PointLight> GetLightSource(std::int16_t index) const;
  /// A new light with VRML97's defaults, for the host to set.
  std::shared_ptr<scene::PointLight> AddLightSource();
  void ClearLightSources() { m_lights->children.Clear(); }
  std::int16_t Count() const;
  /// Whether the viewer carries a light. Default true.
  bool UseHeadlight() const { return m_navigation->headlight.Value(); }
  void UseHeadlight(bool use) { m_navigation->headlight.Value(use); }

  /// How viewers move, for C++.
  const std::shared_ptr<scene::NavigationInfo>& Navigation() const { return m_navigation; }

 private:
  std::shared_ptr<scene::Group> m_lights;
  std::shared_ptr<scene::NavigationInfo> m_navigation;
};

}  // namespace orvane
