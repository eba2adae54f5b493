#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include <cairo.h>

#include <velmora/platform/graphics/AttributedText.h>
#include <velmora/platform/graphics/cairo/ShapedLine.h>

namespace [[gnu::visibility("hidden")]] velmora {

/// Glyphs that follow each other in one face and colour, placed where they are drawn.
struct GlyphRun {
  std::size_t first;  ///< in the line
  const cairo_scaled_font_t* face;
  Color color;
  std::vector<cairo_glyph_t> glyphs;
};

/// The glyphs from first up to end of the text's line, whose top left is the point.
std::vector<GlyphRun> glyphRuns(const ShapedLine& line, const AttributedText& text, std::size_t first,
                                std::size_t end, Point topLeft);

/// A rectangle that holds the outlines closely.
Rect inkBox(cairo_t* context, const GlyphRun& run);

/// Fills the outlines, which lie exactly where the line has them: for pixels.
void fillOutlines(cairo_t* context, const GlyphRun& run);

/// Draws characters of the face, which can be searched and selected: for SVG and PDF. The run is one of the
/// line, the line the text's.
void showCharacters(cairo_t* context, const GlyphRun& run, const ShapedLine& line, const std::string& text);

}  // namespace velmora
