/// A clickable cone that loads another world.
#pragma once

#include "orvane/automation/Object.h"
#include "orvane/components/ISceneRoot.h"
#include "orvane/scene/ShapeNodes.h"

#include <cstdint>
#include <memory>
#include <string>

namespace orvane {

/// One cone inside an Anchor, centred on its root's origin, pointing up.
class ORVANE_API DrillUpInfo final : public host::Object, public RootedAt<scene::Transform> {
 public:
  static constexpr const char* kClassName = "DrillUpInfo";
  const host::TypeInfo& Type() const override;

  DrillUpInfo();

  /// Host RGB colour, 0..0xFFFFFF. Default 0xAB782C.
  std::int32_t ConeColor() const { return m_material->diffuseColor.Value(); }
  void ConeColor(std::int32_t rgb) { m_material->diffuseColor.Value(rgb); }
  /// Bottom radius in scene units, > 0. Default 0.5.
  float ConeRadius() const { return m_cone->bottomRadius.Value(); }
  void ConeRadius(float radius);
  /// Height in scene units, > 0. Default 1.
  float ConeHeight() const { return m_cone->height.Value(); }
  void ConeHeight(float height);
  /// 0 (opaque)..1. Default 0.
  float ConeTransparency() const { return m_material->transparency.Value(); }
  void ConeTransparency(float transparency);
  /// The world to load. Default "".
  std::string URL() const;
  void URL(const std::string& url);
  /// What a browser shows when the pointer is over the cone. Default "".
  std::string Description() const { return m_anchor->description.Value(); }
  void Description(const std::string& text) { m_anchor->description.Value(text); }

 private:
  std::shared_ptr<scene::Shape> m_shape;
  std::shared_ptr<scene::Anchor> m_anchor;
  std::shared_ptr<scene::Cone> m_cone;
  std::shared_ptr<scene::Appearance> m_appearance;
  std::shared_ptr<scene::Material> m_material;
};

}  // namespace orvane
