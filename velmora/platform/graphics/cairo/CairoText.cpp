#include <velmora/platform/graphics/cairo/CairoText.h>

#include <algorithm>
#include <vector>

namespace [[gnu::visibility("hidden")]] velmora {
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

/// By which a face's extents may fall short, in points.
constexpr double rounding = 0.1;

int count(const GlyphRun& run) { return static_cast<int>(run.glyphs.size()); }

}  // namespace

std::vector<GlyphRun> glyphRuns(const ShapedLine& line, const AttributedText& text, std::size_t first,
                                std::size_t end, Point topLeft) {
  const Point baseline = topLeft + Point{0, line.metrics.ascent};
  std::vector<GlyphRun> runs;
  for (std::size_t i = first; i < end; ++i) {
    const ShapedLine::Glyph& glyph = line.glyphs[i];
    const Color& color = colorAt(text, glyph.byte);
    if (runs.empty() || runs.back().face != glyph.face || runs.back().color != color) {
      runs.push_back({i, glyph.face, color, {}});
    }
    const Point origin = baseline + glyph.position;
    runs.back().glyphs.push_back({glyph.index, origin.x, origin.y});
  }
  return runs;
}

Rect inkBox(cairo_t* context, const GlyphRun& run) {
  setFace(context, run.face);
  cairo_text_extents_t ink;
  cairo_glyph_extents(context, run.glyphs.data(), count(run), &ink);
  const cairo_glyph_t& origin = run.glyphs.front();
  const Rect box = {origin.x + ink.x_bearing, origin.y + ink.y_bearing, ink.width, ink.height};
  return box.inset(-rounding, -rounding);
}

void fillOutlines(cairo_t* context, const GlyphRun& run) {
  setFace(context, run.face);
  cairo_new_path(context);
  cairo_glyph_path(context, run.glyphs.data(), count(run));
  cairo_fill(context);
}

void showCharacters(cairo_t* context, const GlyphRun& run) {
  setFace(context, run.face);
  cairo_show_glyphs(context, run.glyphs.data(), count(run));
}

}  // namespace velmora
