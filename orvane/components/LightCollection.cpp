#include "orvane/components/LightCollection.h"

#include "orvane/automation/Arithmetic.h"
#include "orvane/automation/Describe.h"
#include "orvane/scene/frmMain.h"

namespace orvane {

const host::TypeInfo& LightCollection::Type() const {
  using Collection = LightCollection;
  static const host::TypeInfo type =
      host::Describe<Collection>("The lights of a chart's world.")
          .Method("GetLightSource", &Collection::GetLightSource, {{"Index", host::UpTo("Count")}},
                  {"One light"})
          .Method("AddLightSource", &Collection::AddLightSource, {}, {"Adds a point light"})
          .Method("ClearLightSources", &Collection::ClearLightSources, {}, {"Removes all lights"})
          .Property<std::int16_t>("Count", &Collection::Count, {"Number of lights"})
          .Property<bool>("UseHeadlight", &Collection::UseHeadlight, &Collection::UseHeadlight,
                          {"Whether the viewer carries a light"});
  return type;
}

LightCollection::LightCollection()
    : m_lights(scene::Create<scene::Group>()),
      m_navigation(scene::Create<scene::NavigationInfo>()) {
  Root()->children.Append(m_navigation);
  Root()->children.Append(m_lights);
}

std::shared_ptr<scene::PointLight> LightCollection::GetLightSource(std::int16_t index) const {
  return std::dynamic_pointer_cast<scene::PointLight>(m_lights->children.Item(index));
}

std::shared_ptr<scene::PointLight> LightCollection::AddLightSource() {
  auto light = scene::Create<scene::PointLight>();
  m_lights->children.Append(light);
  return light;
}

std::int16_t LightCollection::Count() const { return host::Int16(m_lights->children.Count()); }

}  // namespace orvane
