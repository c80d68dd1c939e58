#include "orvane/graphs/surface/SurfacePopupInfo.h"

#include "orvane/host/AutomationError.h"
#include "orvane/host/Describe.h"
#include "orvane/scene/frmMain.h"

namespace orvane {

const host::TypeInfo& SurfacePopupInfo::Type() const {
  using Info = SurfacePopupInfo;
  static const host::TypeInfo type =
      host::Describe<Info>("The texts that pop up when a viewer points at a surface.")
          .Property<std::int32_t>("TextColor", &Info::TextColor, &Info::TextColor,
                                  {"Colour of the texts", "host RGB", "0..16777215", "0"})
          .Property<std::int32_t>(
              "BackgroundColor", &Info::BackgroundColor, &Info::BackgroundColor,
              {"Colour behind the texts", "host RGB", "0..16777215", "14745599"})
          .Property<std::int32_t>("BorderColor", &Info::BorderColor, &Info::BorderColor,
                                  {"Colour of the frame", "host RGB", "0..16777215", "3355443"})
          .Property<float>("TextHeight", &Info::TextHeight, &Info::TextHeight,
                           {"Height of the texts", "scene units", "> 0", "0.5"})
          .Property<bool>("UsePopups", &Info::UsePopups, &Info::UsePopups,
                          {"Whether texts pop up", "", "", "false"});
  return type;
}

SurfacePopupInfo::SurfacePopupInfo()
    : m_root(scene::Create<scene::Transform>()), m_surface(scene::Create<scene::PopupSurface>()) {
  m_surface->textPosition.Value("TOP");
  m_surface->frameColor.Value(0xFFFFFF);
  m_surface->frameScale.Value(1.0F);
}

void SurfacePopupInfo::TextHeight(float height) {
  host::Require(height > 0, "Invalid popup height, must be greater than 0");
  m_surface->textHeight.Value(height);
}

void SurfacePopupInfo::UsePopups(bool use) {
  if (use == m_usesPopups) return;
  m_root->children.Clear();
  if (use) m_root->children.Append(m_surface);
  m_usesPopups = use;
}

}  // namespace orvane
