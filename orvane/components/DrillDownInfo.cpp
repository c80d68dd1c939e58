#include "orvane/components/DrillDownInfo.h"

#include "orvane/automation/Arithmetic.h"
#include "orvane/automation/AutomationError.h"
#include "orvane/automation/Describe.h"
#include "orvane/scene/frmMain.h"

namespace orvane {

const host::TypeInfo& DrillDownInfo::Type() const {
  static const host::TypeInfo type =
      host::Describe<DrillDownInfo>("A row of clickable cones, each of which loads a world.")
          .Color("ConeColor", &DrillDownInfo::ConeColor, &DrillDownInfo::ConeColor,
                 {"Colour of the cones"})
          .Property<float>("ConeRadius", &DrillDownInfo::ConeRadius, &DrillDownInfo::ConeRadius,
                           {"Bottom radius of the cones", "scene units", host::kPositive})
          .Property<float>("ConeHeight", &DrillDownInfo::ConeHeight, &DrillDownInfo::ConeHeight,
                           {"Height of the cones", "scene units", host::kPositive})
          .Property<scene::MFString>("DrillDownURL", &DrillDownInfo::DrillDownURL,
                                     {"The world of each cone; a live list"});
  return type;
}

DrillDownInfo::DrillDownInfo()
    : m_cones(scene::Create<scene::ConeCollection>()), m_router(scene::Create<scene::Router>()) {
  Root()->children.Append(m_cones);
  Root()->children.Append(m_router);
  ConeColor(0xA57421);
  constexpr float kHalfTurn = 3.14159F;
  m_cones->coneRotation.SetValue(1, 0, 0, kHalfTurn);
  LayOutCones(2, 1.0F);
}

void DrillDownInfo::ConeRadius(float radius) {
  host::Require(radius > 0, "Invalid radius, must be greater than 0");
  m_cones->coneRadius.Value(radius);
}

void DrillDownInfo::ConeHeight(float height) {
  host::Require(height > 0, "Invalid height, must be greater than 0");
  m_cones->coneHeight.Value(height);
}

void DrillDownInfo::Count(std::int16_t count) {
  host::Require(count >= 1, "Invalid count, must be greater than 0");
  LayOutCones(count, m_spacing);
}

void DrillDownInfo::Spacing(float spacing) {
  host::Require(spacing > 0, "Invalid spacing, must be greater than 0");
  LayOutCones(m_count, spacing);
}

void DrillDownInfo::LayOutCones(std::int16_t count, float spacing) {
  // Overflow before anything moves.
  (void)host::Single(static_cast<double>(spacing) * (count - 1));
  m_count = count;
  m_spacing = spacing;
  m_cones->coneLocations.Clear();
  for (int i = 0; i < count; ++i)
    m_cones->coneLocations.Append(spacing * static_cast<float>(i), 0, 0);
}

}  // namespace orvane
