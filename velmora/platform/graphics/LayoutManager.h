#pragma once

#include <cstddef>
#include <memory>

#include <velmora/platform/graphics/TextLayout.h>

namespace velmora {

/// The area that a text is laid out in: one line, as wide as it needs.
struct TextContainer {
  double lineFragmentPadding = TextLayout::lineFragmentPadding;  ///< at either end of the line, in points
};

/// Lays a text out in its container glyph by glyph, so that each can be drawn elsewhere than on the line.
class LayoutManager {
 public:
  /// Of a container that others may hold, too.
  explicit LayoutManager(std::shared_ptr<TextContainer> container) : _container(std::move(container)) {}

  /// The container laid out in.
  const std::shared_ptr<TextContainer>& textContainer() const { return _container; }

  /// Lays out another text; what holds the text calls it.
  void setText(const AttributedText& text) { _line = TextLayout(text); }

  /// The line with its padding, in container coordinates.
  Rect lineFragmentRect() const;

  /// Glyphs are counted in reading order; a box reaches over the glyph's advance and the line's height, in
  /// container coordinates.
  std::size_t numberOfGlyphs() const { return _line.glyphCount(); }
  Rect boundingRectForGlyph(std::size_t glyph) const;

  /// Draws the glyph where it stands in a container whose origin is the point.
  void drawGlyph(Canvas& canvas, std::size_t glyph, Point containerOrigin) const;

 private:
  /// How far the container's padding moves the glyphs from where the line has them.
  double shift() const { return _container->lineFragmentPadding - TextLayout::lineFragmentPadding; }

  std::shared_ptr<TextContainer> _container;
  TextLayout _line{AttributedText()};
};

/// Holds a text and has its layout manager lay it out anew whenever the text changes.
class TextStorage {
 public:
  /// Of a manager that others may hold, too.
  explicit TextStorage(std::shared_ptr<LayoutManager> layoutManager)
      : _layoutManager(std::move(layoutManager)) {}

  /// What lays the text out.
  const std::shared_ptr<LayoutManager>& layoutManager() const { return _layoutManager; }

  /// The text.
  const AttributedText& attributedString() const { return _attributedString; }
  void setAttributedString(AttributedText text);

 private:
  std::shared_ptr<LayoutManager> _layoutManager;
  AttributedText _attributedString;
};

}  // namespace velmora
