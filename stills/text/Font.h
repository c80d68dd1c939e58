/// One font: which letters it has, how far apart they stand, and their shapes.
#pragma once

#include "stills/shapes/Triangulate.h"

#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

struct FT_LibraryRec_;
struct FT_FaceRec_;
struct hb_font_t;

namespace orvane::stills {

/// A letter's shape in units of the font's size, triangles counter-clockwise.
struct Glyph {
  std::vector<Vec2> points;
  std::vector<std::uint32_t> indices;
  Vec2 low{}, high{};  ///< bounds of the ink, 0 for none
};

/// A letter in its place in a line, in units of the font's size.
struct PlacedGlyph {
  const Glyph* glyph;
  Vec2 at;
};

class Font {
 public:
  /// `data` must outlive the font. Raises Error for data that is no font.
  Font(FT_LibraryRec_* library, std::string_view data);
  Font(FT_LibraryRec_* library, const std::string& path, int index);
  ~Font();
  Font(const Font&) = delete;
  Font& operator=(const Font&) = delete;

  bool Has(char32_t letter) const;
  /// Adds the letters of a text, which starts at `pen`, and moves the pen past them.
  void Shape(std::u32string_view text, Vec2& pen, std::vector<PlacedGlyph>& line);

 private:
  void Open();
  const Glyph& GlyphAt(std::uint32_t index);

  FT_FaceRec_* m_face = nullptr;
  hb_font_t* m_shaper = nullptr;
  float m_unit = 0;
  std::map<std::uint32_t, Glyph> m_glyphs;
};

}  // namespace orvane::stills
