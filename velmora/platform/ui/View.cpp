#include <velmora/platform/ui/View.h>

#include <algorithm>
#include <utility>

#include <velmora/platform/ui/LayoutConstraint.h>
#include <velmora/platform/ui/SubviewLayout.h>

namespace velmora {
namespace {

// A view that is fainter cannot be seen and is not touched.
constexpr double leastTouchableAlpha = 0.01;

}  // namespace

View::~View() {
  for (const auto& constraint : _constraints) constraint->_isActive = false;
  for (const auto& subview : _subviews) subview->_superview = nullptr;
}

void View::setFrame(Rect frame) {
  if (frame == this->frame()) return;
  _layer.setFrame(frame);
  setNeedsDisplay();
}

void View::place(Rect untransformedFrame) {
  _placedFrame = untransformedFrame;
  if (untransformedFrame == _layer.untransformedFrame()) return;
  _layer.setUntransformedFrame(untransformedFrame);
  setNeedsDisplay();
}

void View::setTransform(const AffineTransform& transform) {
  _layer.setAffineTransform(transform);
  setNeedsDisplay();
}

void View::setAlpha(double alpha) {
  _layer.setOpacity(alpha);
  setNeedsDisplay();
}

void View::setBackgroundColor(const Color& color) {
  _backgroundColor = color;
  setNeedsDisplay();
}

void View::addSubview(std::shared_ptr<View> view) {
  view->detach();
  view->_superview = this;
  view->_placedFrame.reset();
  _subviews.push_back(view);
  _layout.reset();
  setNeedsDisplay();
  view->didMoveToSuperview();
}

void View::removeFromSuperview() {
  if (const auto self = detach()) self->didMoveToSuperview();
}

// Takes the view out of its superview and returns it, so that it lives on; none if no view holds it.
std::shared_ptr<View> View::detach() {
  if (_superview == nullptr) return nullptr;
  for (View* above = _superview; above != nullptr; above = above->_superview) above->dropConstraintsOn(*this);
  View& former = *std::exchange(_superview, nullptr);
  former.setNeedsDisplay();
  const auto found = std::find_if(former._subviews.begin(), former._subviews.end(),
                                  [this](const auto& sibling) { return sibling.get() == this; });
  auto self = std::move(*found);
  former._subviews.erase(found);
  return self;
}

void View::dropConstraintsOn(const View& leaving) {
  const auto isOnLeaving = [&](const std::shared_ptr<View>& item) {
    return item != nullptr && item->isDescendantOf(leaving);
  };
  std::erase_if(_constraints, [&](const auto& constraint) {
    const bool ends = isOnLeaving(constraint->firstItem()) || isOnLeaving(constraint->secondItem());
    if (ends) constraint->_isActive = false;
    return ends;
  });
  _layout.reset();
}

/// A constraint on this view alone is solved with its superview's.
void View::constraintsChanged() {
  _layout.reset();
  if (_superview != nullptr) _superview->_layout.reset();
  setNeedsDisplay();
}

bool View::isDescendantOf(const View& other) const {
  const View* view = this;
  while (view != nullptr && view != &other) view = view->_superview;
  return view != nullptr;
}

void View::invalidateIntrinsicContentSize() {
  View& affected = _superview == nullptr ? *this : *_superview;
  affected._layout.reset();
  affected.setNeedsDisplay();
}

void View::layoutSubviews() { layoutIn(Device::current().layoutDirection()); }

void View::layoutIn(LayoutDirection direction) {
  if (needsLayout(direction)) {
    for (const auto& subview : _subviews) subview->_placedFrame.reset();
    SubviewLayout(*this, direction).apply();
    _layout = {direction, bounds()};
  }
  for (const auto& subview : _subviews) subview->layoutIn(direction);
}

bool View::needsLayout(LayoutDirection direction) const {
  if (!_layout || _layout->direction != direction || _layout->bounds != bounds()) return true;
  return std::any_of(_subviews.begin(), _subviews.end(), [](const auto& subview) {
    return subview->_placedFrame && *subview->_placedFrame != subview->_layer.untransformedFrame();
  });
}

bool View::needsDisplay() const {
  return _needsDisplay || std::any_of(_subviews.begin(), _subviews.end(),
                                      [](const auto& subview) { return subview->needsDisplay(); });
}

void View::render(Canvas& canvas) {
  layoutSubviews();
  draw(canvas);
}

void View::draw(Canvas& canvas) {
  _needsDisplay = false;
  _layer.drawWithin(canvas, [&] {
    drawBackground(canvas);
    drawContent(canvas);
    _layer.renderSublayers(canvas);
    for (const auto& subview : _subviews) subview->draw(canvas);
  });
}

void View::drawBackground(Canvas& canvas) {
  if (_backgroundColor.alpha <= 0) return;
  canvas.save();
  canvas.setFillColor(_backgroundColor);
  canvas.fillRect(bounds());
  canvas.restore();
}

void View::drawContent(Canvas& canvas) {
  canvas.save();
  canvas.clip(Path::rect(bounds()));
  canvas.beginGroup(1);
  drawRect(canvas, bounds());
  canvas.endGroup();
  canvas.restore();
}

std::shared_ptr<View> View::hitTest(Point point) {
  const bool isSeen = alpha() >= leastTouchableAlpha && transform().inverted();
  if (!_isUserInteractionEnabled || !isSeen || !bounds().contains(point)) return nullptr;
  for (auto subview = _subviews.rbegin(); subview != _subviews.rend(); ++subview) {
    if (auto hit = (*subview)->hitTest((*subview)->convertFromSuperview(point))) return hit;
  }
  return shared_from_this();
}

}  // namespace velmora
