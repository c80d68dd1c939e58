/// What the popups of series and of surfaces share.
#pragma once

#include "orvane/automation/AutomationError.h"
#include "orvane/automation/Describe.h"
#include "orvane/automation/Object.h"
#include "orvane/components/ISceneRoot.h"
#include "orvane/scene/GroupingNodes.h"
#include "orvane/scene/frmMain.h"

#include <cstdint>
#include <memory>

namespace orvane {

/// Colours and size of texts that pop up over a shape of the PROTO `P`. The shape is in the scene
/// only while UsePopups is true.
template <class P>
class PopupLook : public host::Object, public RootedAt<scene::Transform> {
 public:
  /// Host RGB colours, 0..0xFFFFFF. Default black on pale yellow, with a dark grey frame.
  std::int32_t TextColor() const { return m_shape->textColor.Value(); }
  void TextColor(std::int32_t rgb) { m_shape->textColor.Value(rgb); }
  std::int32_t BackgroundColor() const { return m_shape->backgroundColor.Value(); }
  void BackgroundColor(std::int32_t rgb) { m_shape->backgroundColor.Value(rgb); }
  std::int32_t BorderColor() const { return m_shape->borderColor.Value(); }
  void BorderColor(std::int32_t rgb) { m_shape->borderColor.Value(rgb); }
  /// Height of the texts in scene units, > 0. Default 0.5.
  float TextHeight() const { return m_shape->textHeight.Value(); }
  void TextHeight(float height) {
    host::Require(height > 0, "Invalid popup height, must be greater than 0");
    m_shape->textHeight.Value(height);
  }
  /// Default false.
  bool UsePopups() const { return m_usesPopups; }
  void UsePopups(bool use) {
    if (use == m_usesPopups) return;
    this->Root()->children.Clear();
    if (use) this->Root()->children.Append(m_shape);
    m_usesPopups = use;
  }

 protected:
  PopupLook() : m_shape(scene::Create<P>()) {}

  const std::shared_ptr<P>& Shape() const { return m_shape; }

 private:
  std::shared_ptr<P> m_shape;
  bool m_usesPopups = false;
};

/// TextColor, BackgroundColor, BorderColor, TextHeight and UsePopups.
template <class Info>
void DescribePopupLook(host::Describe<Info>& info) {
  info.Color("TextColor", &Info::TextColor, &Info::TextColor, {"Colour of the texts"})
      .Color("BackgroundColor", &Info::BackgroundColor, &Info::BackgroundColor,
             {"Colour behind the texts"})
      .Color("BorderColor", &Info::BorderColor, &Info::BorderColor, {"Colour of the frame"})
      .template Property<float>("TextHeight", &Info::TextHeight, &Info::TextHeight,
                                {"Height of the texts", "scene units", host::kPositive})
      .template Property<bool>("UsePopups", &Info::UsePopups, &Info::UsePopups,
                               {"Whether texts pop up"});
}

}  // namespace orvane
