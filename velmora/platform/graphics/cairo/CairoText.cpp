#include <velmora/platform/graphics/cairo/CairoText.h>

#include <glib.h>

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

/// Where what comes behind the run begins in the text.
std::size_t endOf(const GlyphRun& run, const ShapedLine& line, std::size_t textSize) {
  const std::size_t next = run.first + run.glyphs.size();
  return next < line.glyphs.size() ? line.glyphs[next].byte : textSize;
}

/// Which glyphs show which bytes, up to the end of the run.
std::vector<cairo_text_cluster_t> clustersOf(const GlyphRun& run, const ShapedLine& line, std::size_t end) {
  std::vector<cairo_text_cluster_t> clusters;
  std::size_t start = line.glyphs[run.first].byte;
  int glyphs = 0;
  const auto addUpTo = [&](std::size_t byte) {
    clusters.push_back({static_cast<int>(byte - start), glyphs});
    start = byte;
    glyphs = 0;
  };
  for (std::size_t i = run.first; i < run.first + run.glyphs.size(); ++i, ++glyphs)
    if (line.glyphs[i].byte != start) addUpTo(line.glyphs[i].byte);
  addUpTo(end);
  return clusters;
}

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

// A face cannot tell of each glyph which character it shows: of the colon between digits, which stands
// higher, it does not.
void showCharacters(cairo_t* context, const GlyphRun& run, const ShapedLine& line, const std::string& text) {
  setFace(context, run.face);
  if (!g_utf8_validate(text.data(), static_cast<gssize>(text.size()), nullptr))
    return cairo_show_glyphs(context, run.glyphs.data(), count(run));
  const std::size_t first = line.glyphs[run.first].byte, end = endOf(run, line, text.size());
  const std::vector<cairo_text_cluster_t> clusters = clustersOf(run, line, end);
  cairo_show_text_glyphs(context, text.data() + first, static_cast<int>(end - first), run.glyphs.data(),
                         count(run), clusters.data(), static_cast<int>(clusters.size()),
                         static_cast<cairo_text_cluster_flags_t>(0));
}

}  // namespace velmora
