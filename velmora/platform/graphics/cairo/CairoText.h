#pragma once

#include <cstddef>
#include <functional>

#include <cairo.h>

#include <velmora/platform/graphics/AttributedText.h>
#include <velmora/platform/graphics/cairo/ShapedLine.h>

namespace [[gnu::visibility("hidden")]] velmora {

/// How glyphs reach a surface.
enum class GlyphStyle {
  outlines,    ///< as filled outlines, which lie exactly where the line has them: for pixels
  characters,  ///< as characters of a face, which can be searched and selected: for SVG and PDF
};

/// Draws the glyphs from first up to end of the text's line, whose top left is the point, after asking for
/// the paint of each colour.
void drawGlyphs(cairo_t* context, GlyphStyle style, const ShapedLine& line, const AttributedText& text,
                std::size_t first, std::size_t end, Point topLeft,
                const std::function<void(const Color&)>& setPaint);

}  // namespace velmora
