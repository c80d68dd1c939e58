#include "orvane/components/DrillUpInfo.h"

#include "orvane/automation/AutomationError.h"
#include "orvane/automation/Describe.h"
#include "orvane/scene/frmMain.h"

namespace orvane {

const host::TypeInfo& DrillUpInfo::Type() const {
  static const host::TypeInfo type =
      host::Describe<DrillUpInfo>("A clickable cone that loads another world.")
          .Color("ConeColor", &DrillUpInfo::ConeColor, &DrillUpInfo::ConeColor,
                 {"Colour of the cone"})
          .Property<float>("ConeRadius", &DrillUpInfo::ConeRadius, &DrillUpInfo::ConeRadius,
                           {"Bottom radius of the cone", "scene units", host::kPositive})
          .Property<float>("ConeHeight", &DrillUpInfo::ConeHeight, &DrillUpInfo::ConeHeight,
                           {"Height of the cone", "scene units", host::kPositive})
          .Property<float>("ConeTransparency", &DrillUpInfo::ConeTransparency,
                           &DrillUpInfo::ConeTransparency,
                           {"Transparency of the cone", "", host::kUnit})
          .Property<std::string>("URL", &DrillUpInfo::URL, &DrillUpInfo::URL,
                                 {"World to load when the cone is clicked"})
          .Property<std::string>("Description", &DrillUpInfo::Description,
                                 &DrillUpInfo::Description,
                                 {"Shown while the pointer is over the cone"});
  return type;
}

DrillUpInfo::DrillUpInfo()
    : m_shape(scene::Create<scene::Shape>()),
      m_anchor(scene::Create<scene::Anchor>()),
      m_cone(scene::Create<scene::Cone>()),
      m_appearance(scene::Create<scene::Appearance>()),
      m_material(scene::Create<scene::Material>()) {
  m_cone->bottomRadius.Value(0.5F);
  m_cone->height.Value(1.0F);
  Root()->children.Append(m_anchor);
  m_anchor->children.Append(m_shape);
  m_shape->appearance.Value(m_appearance);
  m_shape->geometry.Value(m_cone);
  m_appearance->material.Value(m_material);
  ConeColor(0xAB782C);
  m_material->shininess.Value(0.5F);
}

void DrillUpInfo::ConeRadius(float radius) {
  host::Require(radius > 0, "Invalid radius, must be greater than 0");
  m_cone->bottomRadius.Value(radius);
}

void DrillUpInfo::ConeHeight(float height) {
  host::Require(height > 0, "Invalid height, must be greater than 0");
  m_cone->height.Value(height);
}

void DrillUpInfo::ConeTransparency(float transparency) {
  host::Require(transparency >= 0 && transparency <= 1,
                "Invalid transparency, must be in the range [0..1]");
  m_material->transparency.Value(transparency);
}

std::string DrillUpInfo::URL() const {
  return m_anchor->url.Count() > 0 ? m_anchor->url.Item(1) : "";
}

void DrillUpInfo::URL(const std::string& url) {
  if (m_anchor->url.Count() > 0) {
    m_anchor->url.Item(1, url);
  } else {
    m_anchor->url.Append(url);
  }
}

}  // namespace orvane
