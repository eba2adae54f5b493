#include <velmora/platform/ui/Layer.h>

#include <algorithm>
#include <utility>

namespace velmora {
namespace {

// The smallest rectangle that holds the transformed one.
Rect boundingBox(const AffineTransform& transform, Rect rect) {
  const Point corners[] = {
      transform.apply({rect.minX(), rect.minY()}), transform.apply({rect.maxX(), rect.minY()}),
      transform.apply({rect.minX(), rect.maxY()}), transform.apply({rect.maxX(), rect.maxY()})};
  Point least = corners[0];
  Point greatest = corners[0];
  for (const Point corner : corners) {
    least = {std::min(least.x, corner.x), std::min(least.y, corner.y)};
    greatest = {std::max(greatest.x, corner.x), std::max(greatest.y, corner.y)};
  }
  return {least.x, least.y, greatest.x - least.x, greatest.y - least.y};
}

}  // namespace

Layer::~Layer() {
  for (const auto& sublayer : _sublayers) sublayer->_superlayer = nullptr;
}

Rect Layer::frame() const {
  return _affineTransform.isIdentity() ? untransformedFrame() : convertToSuperlayer(_bounds);
}

void Layer::setFrame(Rect frame) {
  const auto inverse = _affineTransform.inverted();
  const Rect unturned = inverse ? boundingBox(*inverse, {0, 0, frame.width, frame.height}) : frame;
  _bounds.width = unturned.width;
  _bounds.height = unturned.height;
  _position = {};
  _position = frame.standardised().origin() - this->frame().origin();
}

Rect Layer::untransformedFrame() const {
  return {_position.x - _anchorPoint.x * _bounds.width, _position.y - _anchorPoint.y * _bounds.height,
          _bounds.width, _bounds.height};
}

void Layer::setUntransformedFrame(Rect frame) {
  _bounds.width = frame.width;
  _bounds.height = frame.height;
  _position = {frame.x + _anchorPoint.x * frame.width, frame.y + _anchorPoint.y * frame.height};
}

AffineTransform Layer::transformToSuperlayer() const {
  const Point anchor{_bounds.x + _anchorPoint.x * _bounds.width, _bounds.y + _anchorPoint.y * _bounds.height};
  return AffineTransform::translation(-anchor.x, -anchor.y)
      .concat(_affineTransform)
      .concat(AffineTransform::translation(_position.x, _position.y));
}

Point Layer::convertFromSuperlayer(Point point) const {
  return transformToSuperlayer().inverted().value_or(AffineTransform::identity()).apply(point);
}

Rect Layer::convertToSuperlayer(Rect rect) const { return boundingBox(transformToSuperlayer(), rect); }

void Layer::addSublayer(std::shared_ptr<Layer> layer) {
  layer->removeFromSuperlayer();
  layer->_superlayer = this;
  _sublayers.push_back(std::move(layer));
}

void Layer::removeFromSuperlayer() {
  if (_superlayer == nullptr) return;
  auto& siblings = std::exchange(_superlayer, nullptr)->_sublayers;
  const auto self = [this](const auto& sibling) { return sibling.get() == this; };
  siblings.erase(std::find_if(siblings.begin(), siblings.end(), self));  // may end this layer's life
}

void Layer::render(Canvas& canvas) const {
  drawWithin(canvas, [&] {
    draw(canvas);
    renderSublayers(canvas);
  });
}

void Layer::renderSublayers(Canvas& canvas) const {
  for (const auto& sublayer : _sublayers) sublayer->render(canvas);
}

void Layer::drawWithin(Canvas& canvas, const std::function<void()>& drawing) const {
  if (!_affineTransform.inverted()) return;
  const bool isFaded = _opacity < 1;
  canvas.save();
  canvas.concat(transformToSuperlayer());
  if (isFaded) canvas.beginGroup(_opacity);
  drawing();
  if (isFaded) canvas.endGroup();
  canvas.restore();
}

}  // namespace velmora
