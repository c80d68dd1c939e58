#include "stills/text/Typesetter.h"

#include "stills/Error.h"
#include "stills/text/Font.h"
#include "stills/text/FontFiles.h"

#include <algorithm>
#include <map>

#include <fontconfig/fontconfig.h>
#include <ft2build.h>
#include FT_FREETYPE_H

namespace orvane::stills {

namespace {

std::u32string Letters(const std::string& utf8) {
  std::u32string letters;
  for (std::size_t i = 0; i < utf8.size();) {
    const auto lead = static_cast<unsigned char>(utf8[i++]);
    const int more = lead >= 0xF0 ? 3 : lead >= 0xE0 ? 2 : lead >= 0xC0 ? 1 : 0;
    char32_t letter = more == 0 ? lead : lead & (0x3FU >> more);
    for (int k = 0; k < more && i < utf8.size(); ++k) {
      letter = (letter << 6) | (static_cast<unsigned char>(utf8[i++]) & 0x3FU);
    }
    letters += letter;
  }
  return letters;
}

/// How lines stand to the origin, along them or across them.
enum class Align { Begin, First, Middle, End };

Align AlignNamed(const std::vector<std::string>& justify, std::size_t i) {
  if (i >= justify.size()) return i == 0 ? Align::Begin : Align::First;
  if (justify[i] == "MIDDLE") return Align::Middle;
  if (justify[i] == "END") return Align::End;
  return justify[i] == "FIRST" ? Align::First : Align::Begin;
}

struct Style {
  std::vector<std::string> family{"SERIF"};
  bool isBold = false, isItalic = false, isDownwards = true;
  float size = 1, spacing = 1;
  Align along = Align::Begin, across = Align::First;
};

Style StyleOf(const Node& text) {
  Style style;
  const Node* node = text.Child("fontStyle");
  if (!node || !node->Is("FontStyle")) return style;
  style.family = node->Strings("family");
  const std::string& look = node->Strings("style")[0];
  style.isBold = look.starts_with("BOLD");
  style.isItalic = look.ends_with("ITALIC");
  style.isDownwards = node->Bool("topToBottom");
  style.size = node->Float("size");
  style.spacing = node->Float("spacing");
  style.along = AlignNamed(node->Strings("justify"), 0);
  style.across = AlignNamed(node->Strings("justify"), 1);
  return style;
}

struct Line {
  std::vector<PlacedGlyph> glyphs;
  float left = 0, right = 0, low = 0, high = 0;  ///< of the ink
  float x = 0, y = 0;                            ///< of its start
};

}  // namespace

class Typesetter::Fonts {
 public:
  Fonts() {
    if (FT_Init_FreeType(&m_library) != 0) throw Error("FreeType does not start");
  }
  ~Fonts() {
    m_fonts.clear();
    FT_Done_FreeType(m_library);
  }
  Fonts(const Fonts&) = delete;
  Fonts& operator=(const Fonts&) = delete;

  std::vector<PlacedGlyph> Shape(const std::u32string& text, const Style& style) {
    std::vector<PlacedGlyph> glyphs;
    Vec2 pen{};
    Font& main = Main(style);
    for (std::size_t i = 0; i < text.size();) {
      Font& font = For(text[i], main, style);
      std::size_t end = i + 1;
      while (end < text.size() && (&For(text[end], main, style) == &font)) ++end;
      font.Shape(std::u32string_view(text).substr(i, end - i), pen, glyphs);
      i = end;
    }
    return glyphs;
  }

 private:
  Font& Main(const Style& style) {
    const std::string family = style.family.empty() ? "SERIF" : style.family[0];
    const std::string_view data = FontFile(family, style.isBold, style.isItalic);
    auto& font =
        m_fonts[family + (style.isBold ? "/bold" : "") + (style.isItalic ? "/italic" : "")];
    if (!font) font = std::make_unique<Font>(m_library, data);
    return *font;
  }

  /// The font that has a letter, the main one for a letter that none has.
  Font& For(char32_t letter, Font& main, const Style& style) {
    if (letter < 0x20 || main.Has(letter)) return main;
    const auto [at, isNew] = m_others.try_emplace({letter, style.isBold}, nullptr);
    if (isNew) at->second = System(letter, style.isBold);
    return at->second ? *at->second : main;
  }

  Font* System(char32_t letter, bool isBold) {
    FcPattern* pattern = FcPatternCreate();
    FcCharSet* letters = FcCharSetCreate();
    FcCharSetAddChar(letters, letter);
    FcPatternAddCharSet(pattern, FC_CHARSET, letters);
    FcPatternAddString(pattern, FC_FAMILY, reinterpret_cast<const FcChar8*>("sans-serif"));
    FcPatternAddInteger(pattern, FC_WEIGHT, isBold ? FC_WEIGHT_BOLD : FC_WEIGHT_REGULAR);
    FcPatternAddBool(pattern, FC_SCALABLE, FcTrue);
    FcConfigSubstitute(nullptr, pattern, FcMatchPattern);
    FcDefaultSubstitute(pattern);
    FcResult result{};
    FcPattern* match = FcFontMatch(nullptr, pattern, &result);
    Font* font = nullptr;
    FcChar8* path = nullptr;
    int index = 0;
    if (match && FcPatternGetString(match, FC_FILE, 0, &path) == FcResultMatch) {
      FcPatternGetInteger(match, FC_INDEX, 0, &index);
      font = Opened(reinterpret_cast<const char*>(path), index);
    }
    if (match) FcPatternDestroy(match);
    FcCharSetDestroy(letters);
    FcPatternDestroy(pattern);
    return font && font->Has(letter) ? font : nullptr;
  }

  Font* Opened(const std::string& path, int index) {
    auto& font = m_fonts[path + "#" + std::to_string(index)];
    try {
      if (!font) font = std::make_unique<Font>(m_library, path, index);
    } catch (const Error&) {
      return nullptr;  // a letter that cannot be had is drawn as missing
    }
    return font.get();
  }

  FT_Library m_library = nullptr;
  std::map<std::string, std::unique_ptr<Font>> m_fonts;
  std::map<std::pair<char32_t, bool>, Font*> m_others;
};

Typesetter::Typesetter() = default;

Typesetter::~Typesetter() = default;

std::shared_ptr<const Mesh> Typesetter::Set(const Node& text) {
  if (!m_fonts) m_fonts = std::make_unique<Fonts>();
  const Style style = StyleOf(text);
  std::vector<Line> lines;
  const auto& strings = text.Strings("string");
  for (std::size_t i = 0; i < strings.size(); ++i) {
    const std::string& string = strings[style.isDownwards ? i : strings.size() - 1 - i];
    Line& line = lines.emplace_back();
    line.glyphs = m_fonts->Shape(Letters(string), style);
    line.y = -static_cast<float>(i) * style.spacing;
    if (line.glyphs.empty()) continue;
    const PlacedGlyph &first = line.glyphs.front(), &last = line.glyphs.back();
    line.left =
        style.along == Align::Begin || style.along == Align::First ? 0 : first.glyph->low[0];
    line.right = last.at[0] + last.glyph->high[0];
    line.low = 1e30F;
    line.high = -1e30F;
    for (const PlacedGlyph& placed : line.glyphs) {
      line.low = std::min(line.low, placed.glyph->low[1]);
      line.high = std::max(line.high, placed.glyph->high[1]);
    }
    if (style.along == Align::Middle) line.x = -0.5F * (line.left + line.right);
    if (style.along == Align::End) line.x = -line.right;
  }
  float low = 1e30F, high = -1e30F;
  for (const Line& line : lines) {
    low = std::min(low, line.low + line.y);
    high = std::max(high, line.high + line.y);
  }
  float rise = 0;
  if (style.across == Align::Begin) rise = -high;
  if (style.across == Align::Middle) rise = -0.5F * (low + high);
  if (style.across == Align::End) rise = static_cast<float>(strings.size() - 1) * style.spacing;

  Mesh mesh;
  mesh.isSolid = false;
  for (const Line& line : lines) {
    for (const PlacedGlyph& placed : line.glyphs) {
      const auto first = static_cast<std::uint32_t>(mesh.points.size());
      for (const Vec2& point : placed.glyph->points) {
        mesh.points.push_back({(line.x + placed.at[0] + point[0]) * style.size,
                               (line.y + rise + placed.at[1] + point[1]) * style.size, 0});
        mesh.normals.push_back({0, 0, 1});
      }
      for (const std::uint32_t index : placed.glyph->indices) mesh.indices.push_back(first + index);
    }
  }
  if (mesh.indices.empty()) return nullptr;
  return std::make_shared<const Mesh>(std::move(mesh));
}

}  // namespace orvane::stills
