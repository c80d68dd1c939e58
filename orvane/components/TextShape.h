/// A text with its font and colour: the shape that titles, axis labels and headers are made of.
#pragma once

#include "orvane/components/VrmlNames.h"
#include "orvane/scene/ShapeNodes.h"

#include <cstdint>
#include <initializer_list>
#include <memory>
#include <string>

namespace orvane {

/// A Shape with Text, FontStyle, Appearance and Material: white, SERIF, no string.
class ORVANE_API TextShape {
 public:
  /// `justification` is the only entry of the FontStyle's justify.
  explicit TextShape(const char* justification);

  std::shared_ptr<scene::Shape> Node() const { return m_shape; }
  scene::MFString& Lines() const { return m_text->string; }

  /// The first line, "" when there is none.
  std::string FirstLine() const;
  /// Replaces the first line, or adds it.
  void FirstLine(const std::string& text);

  std::int32_t Color() const { return m_material->diffuseColor.Value(); }
  void Color(std::int32_t rgb) { m_material->diffuseColor.Value(rgb); }

  /// Values outside an enumeration are ignored; texts that stand for none read as its first.
  VRMLFontFamily Font() const;
  void Font(VRMLFontFamily family);
  VRMLFontStyle Style() const;
  void Style(VRMLFontStyle style);
  LabelAlignment Alignment() const;
  void Alignment(LabelAlignment alignment);

  /// Height of a line, in scene units.
  float Height() const { return m_fontStyle->size.Value(); }
  /// Raises `message` unless `height` > 0.
  void Height(float height, const char* message);

  /// Distance between lines as a multiple of their height.
  float Spacing() const { return m_fontStyle->spacing.Value(); }
  void Spacing(float spacing) { m_fontStyle->spacing.Value(spacing); }

  void Justify(std::initializer_list<const char*> justifications);

 private:
  std::shared_ptr<scene::Shape> m_shape;
  std::shared_ptr<scene::Text> m_text;
  std::shared_ptr<scene::FontStyle> m_fontStyle;
  std::shared_ptr<scene::Appearance> m_appearance;
  std::shared_ptr<scene::Material> m_material;
};

/// Width of one line, estimated for a text of height `height` in scene units: 0.4444 heights a
/// character; with a "." in it, one character fewer and 0.2112 units more.
ORVANE_API float EstimateTextWidth(const std::string& text, float height);

}  // namespace orvane
