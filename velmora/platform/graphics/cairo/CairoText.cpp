#include <velmora/platform/graphics/cairo/CairoText.h>

#include <algorithm>
#include <vector>

namespace velmora {
namespace {

const Color& colorAt(const AttributedText& text, std::size_t byte) {
  const auto& runs = text.runs();
  const auto found =
      std::find_if(runs.begin(), runs.end(), [byte](const auto& run) { return byte < run.end; });
  return (found == runs.end() ? runs.back() : *found).attributes.color;
}

void setFace(cairo_t* context, const cairo_scaled_font_t* scaledFace) {
  auto* const face = const_cast<cairo_scaled_font_t*>(scaledFace);
  cairo_matrix_t size;
  cairo_scaled_font_get_font_matrix(face, &size);
  const CairoFontOptions options(cairo_font_options_create());
  cairo_scaled_font_get_font_options(face, options.get());
  cairo_set_font_face(context, cairo_scaled_font_get_font_face(face));
  cairo_set_font_matrix(context, &size);
  cairo_set_font_options(context, options.get());
}

void show(cairo_t* context, GlyphStyle style, const std::vector<cairo_glyph_t>& glyphs) {
  const auto count = static_cast<int>(glyphs.size());
  if (style == GlyphStyle::characters) return cairo_show_glyphs(context, glyphs.data(), count);
  cairo_new_path(context);
  cairo_glyph_path(context, glyphs.data(), count);
  cairo_fill(context);
}

}  // namespace

void drawGlyphs(cairo_t* context, GlyphStyle style, const ShapedLine& line, const AttributedText& text,
                std::size_t first, std::size_t end, Point topLeft,
                const std::function<void(const Color&)>& setPaint) {
  const Point baseline = topLeft + Point{0, line.metrics.ascent};
  std::vector<cairo_glyph_t> glyphs;
  for (std::size_t i = first; i < end; ++i) {
    const ShapedLine::Glyph& glyph = line.glyphs[i];
    const Point origin = baseline + glyph.position;
    glyphs.push_back({glyph.index, origin.x, origin.y});

    const Color& color = colorAt(text, glyph.byte);
    const bool isLastOfItsKind = i + 1 == end || line.glyphs[i + 1].face != glyph.face ||
                                 colorAt(text, line.glyphs[i + 1].byte) != color;
    if (!isLastOfItsKind) continue;
    setPaint(color);
    setFace(context, glyph.face);
    show(context, style, glyphs);
    glyphs.clear();
  }
}

}  // namespace velmora
