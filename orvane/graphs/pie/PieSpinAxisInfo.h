/// The axis by which a viewer turns a pie.
#pragma once

#include "orvane/automation/Object.h"
#include "orvane/components/ISceneRoot.h"
#include "orvane/scene/Geometry.h"
#include "orvane/scene/SensorNodes.h"
#include "orvane/scene/ShapeNodes.h"

#include <cstdint>
#include <memory>

namespace orvane {

/// A thin upright cylinder, centred on its root's origin, with the sensor that it is turned by.
/// Both are in the scene only while UseSpinAxis is true.
class ORVANE_API PieSpinAxisInfo final : public host::Object, public RootedAt<scene::Transform> {
 public:
  static constexpr const char* kClassName = "PieSpinAxisInfo";
  const host::TypeInfo& Type() const override;

  PieSpinAxisInfo();

  /// Whether there is an axis. Default false.
  bool UseSpinAxis() const { return m_isUsed; }
  void UseSpinAxis(bool use);
  /// Of the cylinder in scene units, > 0. Default 0.1.
  float radius() const { return m_cylinder->radius.Value(); }
  void radius(float value);
  /// Of the cylinder in scene units, > 0. Default 2.
  float Height() const { return m_cylinder->height.Value(); }
  void Height(float height);
  /// Host RGB colour, 0..0xFFFFFF. Default white.
  std::int32_t Color() const { return m_material->diffuseColor.Value(); }
  void Color(std::int32_t rgb) { m_material->diffuseColor.Value(rgb); }
  /// The CylinderSensor, in the scene or not.
  std::shared_ptr<scene::Node> CylinderSensorNode() const { return m_sensor; }

 private:
  std::shared_ptr<scene::Shape> m_shape;
  std::shared_ptr<scene::Cylinder> m_cylinder;
  std::shared_ptr<scene::CylinderSensor> m_sensor;
  std::shared_ptr<scene::Appearance> m_appearance;
  std::shared_ptr<scene::Material> m_material;
  bool m_isUsed = false;
};

}  // namespace orvane
