#pragma once

#include <cstddef>
#include <cstdint>
#include <set>
#include <string>
#include <vector>

#include <velmora/platform/graphics/TextEngine.h>
#include <velmora/platform/graphics/cairo/CairoHandles.h>

namespace [[gnu::visibility("hidden")]] velmora {

/// One line of text as glyphs of installed faces, to be measured and drawn at any scale. Colours are no part
/// of it.
struct ShapedLine {
  struct Glyph {
    unsigned long index;              ///< in its face
    const cairo_scaled_font_t* face;  ///< one of the line's faces
    Point position;                   ///< of its origin, from the left end of the baseline
    double left, advance;             ///< where its box begins on the line and how wide it is
    std::size_t byte;                 ///< where its character begins in the text
  };

  std::uint64_t serial;  ///< another for every line of the process
  TextMetrics metrics;
  std::vector<Glyph> glyphs;        ///< in reading order
  std::set<std::string> uncovered;  ///< the characters without a glyph
  std::vector<CairoScaledFont> faces;
};

}  // namespace velmora
