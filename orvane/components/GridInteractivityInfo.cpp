#include "orvane/components/GridInteractivityInfo.h"

#include "orvane/automation/Describe.h"
#include "orvane/scene/frmMain.h"

namespace orvane {

const host::TypeInfo& GridInteractivityInfo::Type() const {
  using Info = GridInteractivityInfo;
  static const host::TypeInfo type =
      host::Describe<Info>("The navigation of a grid chart.")
          .Property<std::shared_ptr<DrillUpInfo>>("DrillUpProps", &Info::DrillUpProps,
                                                  {"The drill-up cone"})
          .Property<bool>("UseDrillUp", &Info::UseDrillUp, &Info::UseDrillUp,
                          {"Whether the drill-up cone is in the scene"})
          .Property<std::shared_ptr<DrillDownInfo>>(
              "XAxisDrillDownProps", &Info::XAxisDrillDownProps, {"The cones along the X axis"})
          .Property<std::shared_ptr<DrillDownInfo>>(
              "ZAxisDrillDownProps", &Info::ZAxisDrillDownProps, {"The cones along the Z axis"})
          .Property<bool>("UseXAxisDrillDown", &Info::UseXAxisDrillDown, &Info::UseXAxisDrillDown,
                          {"Whether the X cones are in the scene"})
          .Property<bool>("UseZAxisDrillDown", &Info::UseZAxisDrillDown, &Info::UseZAxisDrillDown,
                          {"Whether the Z cones are in the scene"});
  return type;
}

GridInteractivityInfo::GridInteractivityInfo()
    : m_drillUp(std::make_shared<DrillUpInfo>()),
      m_xDrillDown(std::make_shared<DrillDownInfo>()),
      m_zDrillDown(std::make_shared<DrillDownInfo>()) {}

void GridInteractivityInfo::UseDrillUp(bool use) { Switch(m_usesDrillUp, use, *m_drillUp); }

void GridInteractivityInfo::UseXAxisDrillDown(bool use) {
  Switch(m_usesXDrillDown, use, *m_xDrillDown);
}

void GridInteractivityInfo::UseZAxisDrillDown(bool use) {
  Switch(m_usesZDrillDown, use, *m_zDrillDown);
}

void GridInteractivityInfo::Switch(bool& flag, bool use, const ISceneRoot& part) {
  if (use == flag) return;
  if (use) {
    Root()->children.Append(part.RootNode());
  } else {
    Root()->children.Remove(part.RootNode());
  }
  flag = use;
}

}  // namespace orvane
