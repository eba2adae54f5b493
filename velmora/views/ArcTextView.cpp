#include <velmora/views/ArcTextView.h>

#include <cmath>
#include <numbers>
#include <utility>

#include <velmora/views/CircleGeometry.h>

namespace velmora {
namespace {

// How far outside the circle the lower edge of the glyphs lies, as shares of the line's height.
constexpr double uprightRise = 1 / 1.4;
constexpr double flippedRise = -0.25;

bool continuesCharacter(char byte) { return (static_cast<unsigned char>(byte) & 0xC0) == 0x80; }

// The text with its characters, each with its own attributes, from the last to the first.
AttributedText reversed(const AttributedText& text) {
  AttributedText result;
  std::size_t end = text.text().size();
  while (end > 0) {
    std::size_t begin = end - 1;
    while (begin > 0 && continuesCharacter(text.text()[begin])) --begin;
    result.append(text.substring(begin, end));
    end = begin;
  }
  return result;
}

}  // namespace

ArcTextView::ArcTextView()
    : _textContainer(std::make_shared<TextContainer>()),
      _layoutManager(std::make_shared<LayoutManager>(_textContainer)),
      _textStorage(std::make_shared<TextStorage>(_layoutManager)) {}

void ArcTextView::setArcRadius(double radius) {
  _arcRadius = radius;
  update();
}

void ArcTextView::setArcTheta(double theta, bool shouldFlipText) {
  _arcTheta = theta;
  _isFlipped = shouldFlipText;
  update();
}

void ArcTextView::update() {
  if (_isFlipped) setAttributedString(reversed(attributedString()));
  setNeedsDisplay();
}

Point ArcTextView::pointOnArcWithAngle(double angle, double withRadius) {
  return {withRadius * std::cos(angle), withRadius * std::sin(angle)};
}

void ArcTextView::drawRect(Canvas& canvas, Rect) {
  if (attributedString().isEmpty()) return;
  double angle = radiansFromDegrees(_arcTheta);
  double formerEdge = 0;
  for (std::size_t glyph = 0; glyph < _layoutManager->numberOfGlyphs(); ++glyph) {
    const Rect box = _layoutManager->boundingRectForGlyph(glyph);
    const double edge = _isFlipped ? box.x + box.width : box.x;
    angle += (edge - formerEdge) / _arcRadius;
    formerEdge = edge;
    drawGlyph(canvas, glyph, angle);
  }
}

void ArcTextView::drawGlyph(Canvas& canvas, std::size_t glyph, double angle) const {
  const Rect fragment = _layoutManager->lineFragmentRect();
  const Rect box = _layoutManager->boundingRectForGlyph(glyph);
  const double rise = box.height * (_isFlipped ? flippedRise : uprightRise);
  const double direction = _isFlipped ? -1 : 1;
  const Point middle = {bounds().width * 0.5, bounds().height * 0.5};
  const Point place = middle + pointOnArcWithAngle(angle, _arcRadius + rise);
  canvas.save();
  canvas.translate(place.x, place.y);
  canvas.rotate(angle + std::numbers::pi / 2);
  canvas.scale(direction, direction);
  _layoutManager->drawGlyph(canvas, glyph, {-(fragment.x + box.x), -(fragment.y + box.height)});
  canvas.restore();
}

}  // namespace velmora
