/// A line of text in the world, such as a chart's title.
#pragma once

#include "orvane/automation/Object.h"
#include "orvane/components/ISceneRoot.h"
#include "orvane/components/TextShape.h"

#include <cstdint>
#include <memory>
#include <string>

namespace orvane {

/// One line, centred on its root's origin, fixed in the world or turning to face the viewer.
class ORVANE_API TextInfo final : public host::Object, public RootedAt<scene::Transform> {
 public:
  static constexpr const char* kClassName = "TextInfo";
  const host::TypeInfo& Type() const override;

  TextInfo();

  /// Whether the text turns about its vertical axis to face the viewer. Default false.
  bool IsBillboarded() const { return m_isBillboarded; }
  void IsBillboarded(bool isBillboarded);

  /// The line; spaces around it are dropped. Default "".
  std::string Text() const { return m_line.FirstLine(); }
  void Text(const std::string& text);

  /// Host RGB colour, 0..0xFFFFFF. Default white.
  std::int32_t TextColor() const { return m_line.Color(); }
  void TextColor(std::int32_t rgb) { m_line.Color(rgb); }

  /// Default VRML_SERIF; values outside the enumeration are ignored.
  VRMLFontFamily TextFont() const { return m_line.Font(); }
  void TextFont(VRMLFontFamily family) { m_line.Font(family); }

  /// Default VRML_PLAIN; values outside the enumeration are ignored.
  VRMLFontStyle TextStyle() const { return m_line.Style(); }
  void TextStyle(VRMLFontStyle style) { m_line.Style(style); }

  /// Height of the line in scene units, > 0. Default 1.
  float TextHeight() const { return m_line.Height(); }
  void TextHeight(float height);

  /// What turns the text while IsBillboarded is true.
  const std::shared_ptr<scene::Billboard>& BillboardNode() const { return m_billboard; }

 private:
  std::shared_ptr<scene::Billboard> m_billboard;
  TextShape m_line{"MIDDLE"};
  bool m_isBillboarded = false;
};

}  // namespace orvane
