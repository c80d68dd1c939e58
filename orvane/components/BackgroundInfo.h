/// The sky behind a chart.
#pragma once

#include "orvane/automation/Object.h"
#include "orvane/components/ISceneRoot.h"
#include "orvane/scene/ViewNodes.h"

#include <cstdint>
#include <memory>

namespace orvane {

/// One sky colour, or a fade from black overhead through the colour to white below.
class ORVANE_API BackgroundInfo final : public host::Object, public ISceneRoot {
 public:
  static constexpr const char* kClassName = "BackgroundInfo";
  const host::TypeInfo& Type() const override;

  BackgroundInfo();

  /// Host RGB colour, 0..0xFFFFFF. Default black.
  std::int32_t BackgroundColor() const { return m_color->Value(); }
  void BackgroundColor(std::int32_t rgb);

  /// Whether the sky fades. Default true.
  bool UseBackgroundColorFade() const { return m_usesFade; }
  void UseBackgroundColorFade(bool use);

  std::shared_ptr<scene::Node> RootNode() const override { return m_background; }

 private:
  void PutFadeSky();
  void PutPlainSky();
  void AppendColor();

  std::shared_ptr<scene::Background> m_background;
  std::shared_ptr<scene::SFColor> m_color;
  bool m_usesFade = true;
};

}  // namespace orvane
