#include "orvane/components/TextShape.h"

#include "orvane/automation/Arithmetic.h"
#include "orvane/automation/AutomationError.h"
#include "orvane/scene/Utf8.h"
#include "orvane/scene/frmMain.h"

namespace orvane {
namespace {

constexpr std::int32_t kWhite = 0xFFFFFF;

void Replace(scene::MFString& list, std::initializer_list<const char*> entries) {
  list.Clear();
  for (const char* entry : entries) list.Append(entry);
}

}  // namespace

TextShape::TextShape(const char* justification)
    : m_shape(scene::Create<scene::Shape>()),
      m_text(scene::Create<scene::Text>()),
      m_fontStyle(scene::Create<scene::FontStyle>()),
      m_appearance(scene::Create<scene::Appearance>()),
      m_material(scene::Create<scene::Material>()) {
  m_shape->geometry.Value(m_text);
  m_text->fontStyle.Value(m_fontStyle);
  m_shape->appearance.Value(m_appearance);
  m_appearance->material.Value(m_material);
  Color(kWhite);
  Replace(m_fontStyle->family, {"SERIF"});
  Justify({justification});
}

std::string TextShape::FirstLine() const {
  return m_text->string.Count() > 0 ? m_text->string.Item(1) : "";
}

void TextShape::FirstLine(const std::string& text) {
  if (m_text->string.Count() > 0) {
    m_text->string.Item(1, text);
  } else {
    m_text->string.Append(text);
  }
}

VRMLFontFamily TextShape::Font() const {
  return FromVrmlName<VRMLFontFamily>(m_fontStyle->family.Item(1));
}

void TextShape::Font(VRMLFontFamily family) {
  if (IsEnumerator(family)) m_fontStyle->family.Item(1, VrmlName(family));
}

VRMLFontStyle TextShape::Style() const {
  return FromVrmlName<VRMLFontStyle>(m_fontStyle->style.Value());
}

void TextShape::Style(VRMLFontStyle style) {
  if (IsEnumerator(style)) m_fontStyle->style.Value(VrmlName(style));
}

LabelAlignment TextShape::Alignment() const {
  return FromVrmlName<LabelAlignment>(m_fontStyle->justify.Item(1));
}

void TextShape::Alignment(LabelAlignment alignment) {
  if (IsEnumerator(alignment)) m_fontStyle->justify.Item(1, VrmlName(alignment));
}

void TextShape::Height(float height, const char* message) {
  host::Require(height > 0, message);
  m_fontStyle->size.Value(height);
}

void TextShape::Justify(std::initializer_list<const char*> justifications) {
  Replace(m_fontStyle->justify, justifications);
}

float EstimateTextWidth(const std::string& text, float height) {
  constexpr double kCharacter = 0.4444;
  constexpr double kPoint = 0.2112;
  const auto count = static_cast<double>(scene::CharacterCount(text));
  if (text.find('.') == std::string::npos) return host::Single(count * kCharacter * height);
  return host::Single((count - 1) * kCharacter * height + kPoint);
}

}  // namespace orvane
