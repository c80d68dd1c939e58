/// A row of clickable cones along an axis, each of which loads a world of its own.
#pragma once

#include "orvane/automation/Object.h"
#include "orvane/components/ISceneRoot.h"
#include "orvane/scene/GraphProtos.h"
#include "orvane/scene/NavProtos.h"

#include <cstdint>
#include <memory>

namespace orvane {

/// Cones stand along the root's x axis from its origin and point down; a router holds one URL each.
class ORVANE_API DrillDownInfo final : public host::Object, public RootedAt<scene::Transform> {
 public:
  static constexpr const char* kClassName = "DrillDownInfo";
  const host::TypeInfo& Type() const override;

  DrillDownInfo();

  /// Host RGB colour of all cones, 0..0xFFFFFF. Default 0xA57421.
  std::int32_t ConeColor() const { return m_cones->coneColor.Value(); }
  void ConeColor(std::int32_t rgb) { m_cones->coneColor.Value(rgb); }
  /// Bottom radius in scene units, > 0. Default 0.3.
  float ConeRadius() const { return m_cones->coneRadius.Value(); }
  void ConeRadius(float radius);
  /// Height in scene units, > 0. Default 0.6.
  float ConeHeight() const { return m_cones->coneHeight.Value(); }
  void ConeHeight(float height);
  /// The URLs themselves, one a cone; a live list, not held against Count.
  scene::MFString& DrillDownURL() { return m_router->urls; }

  std::shared_ptr<scene::Node> ConeCollectionNode() const { return m_cones; }
  std::shared_ptr<scene::Router> RouterNode() const { return m_router; }
  /// Number of cones, >= 1. Default 2.
  std::int16_t Count() const { return m_count; }
  void Count(std::int16_t count);
  /// Distance between neighbouring cones in scene units, > 0. Default 1.
  float Spacing() const { return m_spacing; }
  void Spacing(float spacing);
  /// Sets `count` >= 1 and `spacing` > 0 at once: all cones move or none.
  void LayOutCones(std::int16_t count, float spacing);

 private:
  std::shared_ptr<scene::ConeCollection> m_cones;
  std::shared_ptr<scene::Router> m_router;
  std::int16_t m_count = 0;
  float m_spacing = 0;
};

}  // namespace orvane
