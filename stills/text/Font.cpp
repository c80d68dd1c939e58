#include "stills/text/Font.h"

#include "stills/Error.h"

#include <algorithm>
#include <array>

#include <ft2build.h>
#include FT_FREETYPE_H
#include FT_OUTLINE_H
#include <hb-ft.h>
#include <hb.h>

namespace orvane::stills {

namespace {

/// Follows a letter's outlines and replaces curves by a few straight steps.
struct Tracer {
  static constexpr int kSteps = 5;

  std::vector<Vec2> points;
  std::vector<std::vector<std::uint32_t>> outlines;
  float unit;

  void Add(double x, double y) {
    const Vec2 point = {static_cast<float>(x) * unit, static_cast<float>(y) * unit};
    auto& outline = outlines.back();
    if (!outline.empty() && points[outline.back()] == point) return;
    outline.push_back(static_cast<std::uint32_t>(points.size()));
    points.push_back(point);
  }

  FT_Vector pen{};

  static int Move(const FT_Vector* to, void* self) {
    auto& tracer = *static_cast<Tracer*>(self);
    tracer.outlines.emplace_back();
    return Line(to, self);
  }
  static int Line(const FT_Vector* to, void* self) {
    auto& tracer = *static_cast<Tracer*>(self);
    tracer.Add(static_cast<double>(to->x), static_cast<double>(to->y));
    tracer.pen = *to;
    return 0;
  }
  static int Conic(const FT_Vector* by, const FT_Vector* to, void* self) {
    auto& tracer = *static_cast<Tracer*>(self);
    const FT_Vector from = tracer.pen;
    for (int i = 1; i <= kSteps; ++i) {
      const double t = double{1} * i / kSteps, a = (1 - t) * (1 - t), b = 2 * t * (1 - t),
                   c = t * t;
      tracer.Add(a * double(from.x) + b * double(by->x) + c * double(to->x),
                 a * double(from.y) + b * double(by->y) + c * double(to->y));
    }
    tracer.pen = *to;
    return 0;
  }
  static int Cubic(const FT_Vector* by, const FT_Vector* then, const FT_Vector* to, void* self) {
    auto& tracer = *static_cast<Tracer*>(self);
    const FT_Vector from = tracer.pen;
    for (int i = 1; i <= kSteps; ++i) {
      const double t = double{1} * i / kSteps, s = 1 - t;
      const double a = s * s * s, b = 3 * s * s * t, c = 3 * s * t * t, d = t * t * t;
      tracer.Add(a * double(from.x) + b * double(by->x) + c * double(then->x) + d * double(to->x),
                 a * double(from.y) + b * double(by->y) + c * double(then->y) + d * double(to->y));
    }
    tracer.pen = *to;
    return 0;
  }
};

}  // namespace

Font::Font(FT_LibraryRec_* library, std::string_view data) {
  if (FT_New_Memory_Face(library, reinterpret_cast<const FT_Byte*>(data.data()),
                         static_cast<FT_Long>(data.size()), 0, &m_face) != 0) {
    throw Error("a font of the library cannot be read: FreeType lacks WOFF2");
  }
  Open();
}

Font::Font(FT_LibraryRec_* library, const std::string& path, int index) {
  if (FT_New_Face(library, path.c_str(), index, &m_face) != 0 || m_face->units_per_EM == 0) {
    if (m_face) FT_Done_Face(m_face);
    throw Error("the font " + path + " cannot be read");
  }
  Open();
}

Font::~Font() {
  hb_font_destroy(m_shaper);
  FT_Done_Face(m_face);
}

void Font::Open() {
  m_unit = 1.0F / static_cast<float>(m_face->units_per_EM);
  hb_face_t* face = hb_ft_face_create_referenced(m_face);
  m_shaper = hb_font_create(face);
  hb_face_destroy(face);
}

bool Font::Has(char32_t letter) const { return FT_Get_Char_Index(m_face, letter) != 0; }

void Font::Shape(std::u32string_view text, Vec2& pen, std::vector<PlacedGlyph>& line) {
  hb_buffer_t* buffer = hb_buffer_create();
  hb_buffer_add_utf32(buffer, reinterpret_cast<const std::uint32_t*>(text.data()),
                      static_cast<int>(text.size()), 0, static_cast<int>(text.size()));
  hb_buffer_guess_segment_properties(buffer);
  // The viewer kerns, but joins no letters that can stand alone.
  const std::array<hb_feature_t, 2> features = {
      {{HB_TAG('l', 'i', 'g', 'a'), 0, 0, HB_FEATURE_GLOBAL_END},
       {HB_TAG('c', 'l', 'i', 'g'), 0, 0, HB_FEATURE_GLOBAL_END}}};
  hb_shape(m_shaper, buffer, features.data(), static_cast<unsigned>(features.size()));
  unsigned count = 0;
  const hb_glyph_info_t* infos = hb_buffer_get_glyph_infos(buffer, &count);
  const hb_glyph_position_t* places = hb_buffer_get_glyph_positions(buffer, &count);
  for (unsigned i = 0; i < count; ++i) {
    line.push_back({&GlyphAt(infos[i].codepoint),
                    {pen[0] + static_cast<float>(places[i].x_offset) * m_unit,
                     pen[1] + static_cast<float>(places[i].y_offset) * m_unit}});
    pen[0] += static_cast<float>(places[i].x_advance) * m_unit;
    pen[1] += static_cast<float>(places[i].y_advance) * m_unit;
  }
  hb_buffer_destroy(buffer);
}

const Glyph& Font::GlyphAt(std::uint32_t index) {
  const auto [at, isNew] = m_glyphs.try_emplace(index);
  Glyph& glyph = at->second;
  if (!isNew || FT_Load_Glyph(m_face, index, FT_LOAD_NO_SCALE) != 0) return glyph;
  Tracer tracer;
  tracer.unit = m_unit;
  const FT_Outline_Funcs steps = {Tracer::Move, Tracer::Line, Tracer::Conic, Tracer::Cubic, 0, 0};
  FT_Outline_Decompose(&m_face->glyph->outline, &steps, &tracer);
  for (auto& outline : tracer.outlines) {
    const bool isClosed =
        outline.size() > 1 && tracer.points[outline.front()] == tracer.points[outline.back()];
    if (isClosed) outline.pop_back();
  }
  glyph.points = std::move(tracer.points);
  glyph.indices = Triangulate(glyph.points, std::move(tracer.outlines));
  if (glyph.points.empty()) return glyph;
  glyph.low = glyph.high = glyph.points[0];
  for (const Vec2& point : glyph.points) {
    for (std::size_t axis = 0; axis < 2; ++axis) {
      glyph.low[axis] = std::min(glyph.low[axis], point[axis]);
      glyph.high[axis] = std::max(glyph.high[axis], point[axis]);
    }
  }
  return glyph;
}

}  // namespace orvane::stills
