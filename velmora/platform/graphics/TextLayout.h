#pragma once

#include <cstddef>
#include <optional>
#include <vector>

#include <velmora/platform/graphics/Canvas.h>
#include <velmora/platform/graphics/TextEngine.h>

namespace velmora {

/// One line of text, measured by the process's text engine, to be drawn at a point or in a rectangle.
class TextLayout {
 public:
  /// Space at either end of the line when its glyphs are laid out one by one, in points.
  static constexpr double lineFragmentPadding = 5;

  /// Measures the text once.
  explicit TextLayout(AttributedText text);

  /// The text and its measures.
  const AttributedText& text() const { return _text; }
  const TextMetrics& metrics() const { return _metrics; }

  /// The advance of the line.
  double width() const { return _metrics.width; }
  /// Ascent plus descent of the tallest font asked for, whatever faces the characters come from.
  double height() const { return _metrics.ascent + _metrics.descent; }
  Size size() const { return {width(), height()}; }

  /// Draws the line with its top left at the point.
  void drawAtPoint(Canvas& canvas, Point point) const;

  /// Draws the line at the top of the rectangle, aligned as its first run says. A line that clips is cut at
  /// the rectangle and, when too wide for it, shows its beginning.
  void drawInRect(Canvas& canvas, Rect rect) const;

  /// The glyphs in reading order. Their boxes lie in a line fragment that starts at (0, 0), where the text
  /// stands behind the padding.
  std::size_t glyphCount() const { return glyphBoxes().size(); }
  Rect glyphRect(std::size_t glyph) const;

  /// Draws one glyph where it stands in a line fragment whose origin is the point.
  void drawGlyph(Canvas& canvas, std::size_t glyph, Point fragmentOrigin) const;

 private:
  const std::vector<Rect>& glyphBoxes() const;
  double leftEdgeIn(Rect rect) const;

  AttributedText _text;
  TextMetrics _metrics;
  mutable std::optional<std::vector<Rect>> _glyphBoxes;
};

}  // namespace velmora
