#include "orvane/components/BackgroundInfo.h"

#include "orvane/automation/Describe.h"
#include "orvane/scene/frmMain.h"

namespace orvane {

const host::TypeInfo& BackgroundInfo::Type() const {
  static const host::TypeInfo type =
      host::Describe<BackgroundInfo>("The sky behind a chart.")
          .Color("BackgroundColor", &BackgroundInfo::BackgroundColor,
                 &BackgroundInfo::BackgroundColor, {"Colour of the sky"})
          .Property<bool>("UseBackgroundColorFade", &BackgroundInfo::UseBackgroundColorFade,
                          &BackgroundInfo::UseBackgroundColorFade,
                          {"Whether the sky fades from black overhead through the colour to white "
                           "below"});
  return type;
}

BackgroundInfo::BackgroundInfo()
    : m_background(scene::Create<scene::Background>()),
      m_color(std::static_pointer_cast<scene::SFColor>(
          scene::CoreFactory()->CreateField(scene::SFColor::kClassName))) {
  m_color->Value(0);
  PutFadeSky();
}

void BackgroundInfo::BackgroundColor(std::int32_t rgb) {
  m_color->Value(rgb);
  m_background->skyColor.SetItem(m_usesFade ? 2 : 1, m_color->Red(), m_color->Green(),
                                 m_color->Blue());
}

void BackgroundInfo::UseBackgroundColorFade(bool use) {
  if (use == m_usesFade) return;
  m_usesFade = use;
  if (use) {
    PutFadeSky();
  } else {
    PutPlainSky();
  }
}

void BackgroundInfo::PutFadeSky() {
  auto& colors = m_background->skyColor;
  colors.Clear();
  colors.Append(0, 0, 0);
  AppendColor();
  colors.Append(1, 1, 1);
  // Radians from the zenith: the colour is reached just below the horizon.
  auto& angles = m_background->skyAngle;
  angles.Clear();
  angles.Append(2.0F);
  angles.Append(3.0F);
}

void BackgroundInfo::PutPlainSky() {
  m_background->skyColor.Clear();
  AppendColor();
  m_background->skyAngle.Clear();
}

void BackgroundInfo::AppendColor() {
  m_background->skyColor.Append(m_color->Red(), m_color->Green(), m_color->Blue());
}

}  // namespace orvane
