#include <velmora/platform/graphics/LayoutManager.h>

#include <utility>

namespace velmora {

Rect LayoutManager::lineFragmentRect() const {
  return {0, 0, _line.width() + 2 * _container->lineFragmentPadding, _line.height()};
}

Rect LayoutManager::boundingRectForGlyph(std::size_t glyph) const {
  Rect box = _line.glyphRect(glyph);
  box.x += shift();
  return box;
}

void LayoutManager::drawGlyph(Canvas& canvas, std::size_t glyph, Point containerOrigin) const {
  _line.drawGlyph(canvas, glyph, containerOrigin + Point{shift(), 0});
}

void TextStorage::setAttributedString(AttributedText text) {
  _attributedString = std::move(text);
  _layoutManager->setText(_attributedString);
}

}  // namespace velmora
