/// The navigation of a grid chart: drill-up cone and two rows of drill-down cones.
#pragma once

#include "orvane/automation/Object.h"
#include "orvane/components/DrillDownInfo.h"
#include "orvane/components/DrillUpInfo.h"
#include "orvane/components/ISceneRoot.h"

#include <memory>

namespace orvane {

/// Its Group holds the parts that are switched on, in the order in which they were.
class ORVANE_API GridInteractivityInfo final : public host::Object, public RootedAt<scene::Group> {
 public:
  static constexpr const char* kClassName = "GridInteractivityInfo";
  const host::TypeInfo& Type() const override;

  GridInteractivityInfo();

  std::shared_ptr<DrillUpInfo> DrillUpProps() const { return m_drillUp; }
  /// Whether each part is in the scene. Default false.
  bool UseDrillUp() const { return m_usesDrillUp; }
  void UseDrillUp(bool use);
  std::shared_ptr<DrillDownInfo> XAxisDrillDownProps() const { return m_xDrillDown; }
  std::shared_ptr<DrillDownInfo> ZAxisDrillDownProps() const { return m_zDrillDown; }
  bool UseXAxisDrillDown() const { return m_usesXDrillDown; }
  void UseXAxisDrillDown(bool use);
  bool UseZAxisDrillDown() const { return m_usesZDrillDown; }
  void UseZAxisDrillDown(bool use);

 private:
  void Switch(bool& flag, bool use, const ISceneRoot& part);

  std::shared_ptr<DrillUpInfo> m_drillUp;
  std::shared_ptr<DrillDownInfo> m_xDrillDown;
  std::shared_ptr<DrillDownInfo> m_zDrillDown;
  bool m_usesDrillUp = false;
  bool m_usesXDrillDown = false;
  bool m_usesZDrillDown = false;
};

}  // namespace orvane
