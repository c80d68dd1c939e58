#include "orvane/graphs/scatter/PointCollection.h"

#include "orvane/automation/Arithmetic.h"
#include "orvane/automation/AutomationError.h"
#include "orvane/automation/Describe.h"
#include "orvane/scene/frmMain.h"

namespace orvane {

const host::TypeInfo& PointCollection::Type() const {
  using Points = PointCollection;
  static const host::TypeInfo type =
      host::Describe<Points>("A set of coloured spheres: one point frame of a scatter chart.")
          .Method("AddPoint", &Points::AddPoint,
                  {"x",
                   "y",
                   "z",
                   {"radius", host::kNotNegative},
                   host::Parameter::Color("Color"),
                   {"Transparency", host::kUnit}},
                  {"Adds a sphere; lengths are in scene units"})
          .Method("RemovePoint", &Points::RemovePoint, {{"Index", host::UpTo("Count")}},
                  {"Removes one point"})
          .Method("Get1Point", &Points::Get1Point,
                  {{"Index", host::UpTo("Count")},
                   "x",
                   "y",
                   "z",
                   "radius",
                   host::Parameter::Color("Color"),
                   "Transparency"},
                  {"What one point was added with"})
          .Method("ClearPoints", &Points::ClearPoints, {}, {"Removes all points"})
          .Property<std::int16_t>("Count", &Points::Count, {"Number of points, up to 32767"})
          .Property<std::string>("Description", &Points::Description, &Points::Description,
                                 {"The frame's name, a label of the slider"})
          .Property<std::shared_ptr<scene::Node>>("SphereCollectionNode",
                                                  &Points::SphereCollectionNode,
                                                  {"The node that holds the points"});
  return type;
}

PointCollection::PointCollection() : m_spheres(scene::Create<scene::SphereCollection>()) {
  Root()->children.Append(m_spheres);
}

void PointCollection::AddPoint(float x, float y, float z, float radius, std::int32_t color,
                               float transparency) {
  host::Require(radius >= 0, "Invalid radius, must be greater than or equal to 0");
  host::Require(transparency >= 0 && transparency <= 1,
                "Invalid transparency, must be in the range [0..1]");
  (void)host::Int16(Count() + 1);
  const float finiteRadius = host::Single(radius);
  scene::SFColor components;
  components.Value(color);
  const auto count = m_spheres->locations.Count();
  try {
    m_spheres->locations.Append(x, y, z);
    m_spheres->radii.Append(finiteRadius);
    m_spheres->colors.Append(components.Red(), components.Green(), components.Blue());
    m_spheres->transparencies.Append(transparency);
  } catch (...) {
    if (m_spheres->locations.Count() > count) m_spheres->locations.RemoveAt(count + 1);
    if (m_spheres->radii.Count() > count) m_spheres->radii.RemoveAt(count + 1);
    if (m_spheres->colors.Count() > count) m_spheres->colors.RemoveAt(count + 1);
    throw;
  }
}

void PointCollection::RemovePoint(std::int16_t index) {
  m_spheres->locations.RemoveAt(index);
  m_spheres->radii.RemoveAt(index);
  m_spheres->colors.RemoveAt(index);
  m_spheres->transparencies.RemoveAt(index);
}

void PointCollection::Get1Point(std::int16_t index, float& x, float& y, float& z, float& radius,
                                std::int32_t& color, float& transparency) const {
  const auto location = m_spheres->locations.Item(index);
  x = location.x;
  y = location.y;
  z = location.z;
  radius = m_spheres->radii.Item(index);
  color = scene::SFColor(m_spheres->colors.Item(index)).Value();
  transparency = m_spheres->transparencies.Item(index);
}

void PointCollection::ClearPoints() {
  m_spheres->locations.Clear();
  m_spheres->radii.Clear();
  m_spheres->colors.Clear();
  m_spheres->transparencies.Clear();
}

std::int16_t PointCollection::Count() const { return host::Int16(m_spheres->locations.Count()); }

}  // namespace orvane
