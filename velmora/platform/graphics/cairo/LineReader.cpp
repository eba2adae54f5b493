#include <velmora/platform/graphics/cairo/LineReader.h>

#include <algorithm>
#include <string_view>

namespace [[gnu::visibility("hidden")]] velmora {
namespace {

/// The glyph of a face that stands for a missing one.
constexpr unsigned long missingGlyph = 0;

std::string_view characterAt(std::string_view text, std::size_t byte) {
  const std::size_t length =
      static_cast<std::size_t>(g_utf8_next_char(text.data() + byte) - (text.data() + byte));
  return text.substr(byte, length);
}

/// Collects the glyphs of a line from left to right.
class Collector {
 public:
  explicit Collector(std::string_view text) : _text(text) {}

  void addRun(const PangoGlyphItem& run) {
    if (run.item->analysis.font == nullptr) return addUncovered(run);
    cairo_scaled_font_t* face =
        pango_cairo_font_get_scaled_font(reinterpret_cast<PangoCairoFont*>(run.item->analysis.font));
    line.faces.emplace_back(cairo_scaled_font_reference(face));
    const auto firstByte = static_cast<std::size_t>(run.item->offset);
    for (int i = 0; i < run.glyphs->num_glyphs; ++i) {
      addGlyph(run.glyphs->glyphs[i], face,
               firstByte + static_cast<std::size_t>(run.glyphs->log_clusters[i]));
    }
  }

  ShapedLine line;

 private:
  /// Where no face is installed at all.
  void addUncovered(const PangoGlyphItem& run) {
    for (int i = 0; i < run.glyphs->num_glyphs; ++i) {
      const auto byte = static_cast<std::size_t>(run.item->offset + run.glyphs->log_clusters[i]);
      line.uncovered.emplace(characterAt(_text, byte));
    }
  }

  void addGlyph(const PangoGlyphInfo& glyph, const cairo_scaled_font_t* face, std::size_t byte) {
    const double advance = pango_units_to_double(glyph.geometry.width);
    const Point origin = {_x + pango_units_to_double(glyph.geometry.x_offset),
                          pango_units_to_double(glyph.geometry.y_offset)};
    if ((glyph.glyph & PANGO_GLYPH_UNKNOWN_FLAG) != 0) {
      line.uncovered.emplace(characterAt(_text, byte));
      line.glyphs.push_back({missingGlyph, face, origin, _x, advance, byte});
    } else if (glyph.glyph != PANGO_GLYPH_EMPTY) {
      line.glyphs.push_back({glyph.glyph, face, origin, _x, advance, byte});
    }
    _x += advance;
    line.metrics.width = _x;
  }

  std::string_view _text;
  double _x = 0;
};

}  // namespace

ShapedLine readLine(PangoLayout* layout) {
  Collector collector(pango_layout_get_text(layout));
  const PangoLayoutLine* first = pango_layout_get_line_readonly(layout, 0);
  for (const GSList* run = first->runs; run != nullptr; run = run->next) {
    collector.addRun(*static_cast<const PangoGlyphItem*>(run->data));
  }
  ShapedLine line = std::move(collector.line);
  line.metrics.isRightToLeft =
      pango_layout_line_get_resolved_direction(const_cast<PangoLayoutLine*>(first)) == PANGO_DIRECTION_RTL;
  std::stable_sort(line.glyphs.begin(), line.glyphs.end(),
                   [](const auto& a, const auto& b) { return a.byte < b.byte; });
  return line;
}

}  // namespace velmora
