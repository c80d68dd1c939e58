#include "orvane/graphs/pie/PieSpinAxisInfo.h"

#include "orvane/automation/AutomationError.h"
#include "orvane/automation/Describe.h"
#include "orvane/scene/frmMain.h"

namespace orvane {

const host::TypeInfo& PieSpinAxisInfo::Type() const {
  using Axis = PieSpinAxisInfo;
  static const host::TypeInfo type =
      host::Describe<Axis>("The axis by which a viewer turns a pie.")
          .Property<bool>("UseSpinAxis", &Axis::UseSpinAxis, &Axis::UseSpinAxis,
                          {"Whether there is an axis"})
          .Property<float>("radius", &Axis::radius, &Axis::radius,
                           {"Radius of the axis", "scene units", host::kPositive})
          .Property<float>("Height", &Axis::Height, &Axis::Height,
                           {"Height of the axis", "scene units", host::kPositive})
          .Color("Color", &Axis::Color, &Axis::Color, {"Colour of the axis"})
          .Property<std::shared_ptr<scene::Node>>("CylinderSensorNode", &Axis::CylinderSensorNode,
                                                  {"The sensor that reports the turn"});
  return type;
}

PieSpinAxisInfo::PieSpinAxisInfo()
    : m_shape(scene::Create<scene::Shape>()),
      m_cylinder(scene::Create<scene::Cylinder>()),
      m_sensor(scene::Create<scene::CylinderSensor>()),
      m_appearance(scene::Create<scene::Appearance>()),
      m_material(scene::Create<scene::Material>()) {
  m_shape->geometry.Value(m_cylinder);
  m_shape->appearance.Value(m_appearance);
  m_appearance->material.Value(m_material);
  Color(0xFFFFFF);
  m_cylinder->radius.Value(0.1F);
}

void PieSpinAxisInfo::UseSpinAxis(bool use) {
  if (use == m_isUsed) return;
  using List = scene::MFNode::List;
  Root()->children.Items(use ? List{m_sensor, m_shape} : List());
  m_isUsed = use;
}

void PieSpinAxisInfo::radius(float value) {
  host::Require(value > 0, "Invalid axis radius, must be greater than 0");
  m_cylinder->radius.Value(value);
}

void PieSpinAxisInfo::Height(float height) {
  host::Require(height > 0, "Invalid axis height, must be greater than 0");
  m_cylinder->height.Value(height);
}

}  // namespace orvane
