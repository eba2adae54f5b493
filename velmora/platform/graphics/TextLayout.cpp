#include <velmora/platform/graphics/TextLayout.h>

#include <utility>

namespace velmora {

TextLayout::TextLayout(AttributedText text)
    : _text(std::move(text)), _metrics(TextEngine::current().measure(_text)) {}

void TextLayout::drawAtPoint(Canvas& canvas, Point point) const { canvas.drawText(_text, point); }

void TextLayout::drawInRect(Canvas& canvas, Rect rect) const {
  const Rect box = rect.standardised();
  const Point topLeft = {leftEdgeIn(box), box.y};
  if (_text.paragraph().lineBreak == LineBreak::none || (width() <= box.width && height() <= box.height)) {
    return drawAtPoint(canvas, topLeft);
  }
  canvas.save();
  canvas.clip(Path::rect(box));
  drawAtPoint(canvas, topLeft);
  canvas.restore();
}

Rect TextLayout::glyphRect(std::size_t glyph) const {
  Rect box = glyphBoxes().at(glyph);
  box.x += lineFragmentPadding;
  return box;
}

void TextLayout::drawGlyph(Canvas& canvas, std::size_t glyph, Point fragmentOrigin) const {
  canvas.drawGlyph(_text, glyph, fragmentOrigin + Point{lineFragmentPadding, 0});
}

const std::vector<Rect>& TextLayout::glyphBoxes() const {
  if (!_glyphBoxes) _glyphBoxes = TextEngine::current().glyphBoxes(_text);
  return *_glyphBoxes;
}

double TextLayout::leftEdgeIn(Rect rect) const {
  const TextAttributes paragraph = _text.paragraph();
  const TextAlignment natural = _metrics.isRightToLeft ? TextAlignment::right : TextAlignment::left;
  const bool isCutOff = paragraph.lineBreak == LineBreak::clipping && width() > rect.width;
  const bool followsText = isCutOff || paragraph.alignment == TextAlignment::natural;
  switch (followsText ? natural : paragraph.alignment) {
    case TextAlignment::center:
      return rect.midX() - width() * 0.5;
    case TextAlignment::right:
      return rect.maxX() - width();
    default:
      return rect.x;
  }
}

}  // namespace velmora
