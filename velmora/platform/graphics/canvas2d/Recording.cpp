#include <velmora/platform/graphics/canvas2d/Recording.h>

#include <algorithm>
#include <cmath>

namespace [[gnu::visibility("hidden")]] velmora {
namespace {

/// How far a line reaches beyond its path: half its width, and at corners as far as a miter may stand out.
double reachOfLine(const Path& path, double lineWidth) {
  constexpr double longestMiter = 10;
  const bool hasCorners = path.elements().size() > 2;
  return lineWidth / 2 * (hasCorners ? longestMiter : 1);
}

bool isFinite(const AffineTransform& frame) {
  return std::isfinite(frame.a) && std::isfinite(frame.b) && std::isfinite(frame.c) &&
         std::isfinite(frame.d) && std::isfinite(frame.tx) && std::isfinite(frame.ty);
}

void addFrame(Fingerprint& fingerprint, const AffineTransform& frame) {
  for (const double number : {frame.a, frame.b, frame.c, frame.d, frame.tx, frame.ty})
    fingerprint.add(number);
}

bool meetsAny(const std::vector<Rect>& painted, const Rect& pixels) {
  return std::any_of(painted.begin(), painted.end(),
                     [&](const Rect& paint) { return !pixels.intersection(paint).isEmpty(); });
}

}  // namespace

Canvas2dCanvas::Recording::Recording(Size size, double scale)
    : squares({size.width * scale, size.height * scale}),
      _pixelsOfPoints(AffineTransform::scaling(scale, scale)),
      _states{State()} {
  state().clip = inPixels({0, 0, size.width, size.height});
}

void Canvas2dCanvas::Recording::save() {
  push(State::Kind::save);
  operations.add(Operation::save);
}

void Canvas2dCanvas::Recording::push(State::Kind kind) {
  _states.push_back(state());
  state().kind = kind;
  state().beginsAt = operations.size();
  state().paintingsBefore = _paintings;
}

void Canvas2dCanvas::Recording::restore() {
  if (state().kind == State::Kind::save) pop();
}

/// A state in which nothing was painted leaves no trace.
void Canvas2dCanvas::Recording::pop() {
  finishPendingClear();
  const State ended = std::move(state());
  _states.pop_back();
  const bool isGroup = ended.kind == State::Kind::group;
  operations.add(isGroup ? Operation::endGroup : Operation::restore);
  if (isGroup) endLayer(ended);
  if (ended.paintingsBefore == _paintings) operations.cut(ended.beginsAt);
}

void Canvas2dCanvas::Recording::endLayer(const State& begun) {
  const Group ended = std::move(_groups.back());
  _groups.pop_back();
  const bool needsLayer = ended.alpha < 1 || (ended.isOverPaint && ended.reachesBelow);
  operations.set(begun.beginsAt + 1, needsLayer ? 1 : 0);
  Group& around = _groups.back();
  around.painted.insert(around.painted.end(), ended.painted.begin(), ended.painted.end());
}

void Canvas2dCanvas::Recording::beginGroup(double alpha) {
  finishPendingClear();
  const Rect shown = state().clip;
  _groups.push_back({.alpha = std::clamp(alpha, 0.0, 1.0), .isOverPaint = isOverPaint(shown)});
  push(State::Kind::group);
  operations.add(Operation::beginGroup,
                 {0, _groups.back().alpha, shown.x, shown.y, shown.width, shown.height});
  state().shape.add(_groups.back().alpha);
  state().style.alpha = 1;
  state().style.blendMode = BlendMode::normal;
}

void Canvas2dCanvas::Recording::endGroup() {
  if (_groups.size() == 1) return;
  while (state().kind != State::Kind::group) pop();
  pop();
}

void Canvas2dCanvas::Recording::endAll() {
  while (_states.size() > 1) pop();
  finishPendingClear();
  finishPainting();
}

void Canvas2dCanvas::Recording::transform(const AffineTransform& step) {
  finishPendingClear();
  const AffineTransform frame = step.concat(state().frame);
  if (!isFinite(frame) || !frame.inverted()) {
    state().isCollapsed = true;
    return;
  }
  state().frame = frame;
  operations.add(Operation::transform, {step.a, step.b, step.c, step.d, step.tx, step.ty});
}

void Canvas2dCanvas::Recording::clip(const Path& path) {
  finishPendingClear();
  const Rect box = path.boundingBox().value_or(Rect());
  state().clip = state().clip.intersection(inPixels(box));
  const std::size_t beginsAt = operations.size();
  operations.add(Operation::clip, path);
  addFrame(state().shape, state().frame);
  state().shape.add(operations.numbers().data() + beginsAt, operations.size() - beginsAt);
}

void Canvas2dCanvas::Recording::setLineDash(const std::vector<double>& lengths, double phase) {
  const std::size_t beginsAt = operations.size();
  operations.add(Operation::lineDash, {phase, static_cast<double>(lengths.size())});
  operations.append(lengths);
  state().shape.add(operations.numbers().data() + beginsAt, operations.size() - beginsAt);
}

void Canvas2dCanvas::Recording::fill(const Path& path) {
  const Style& style = state().style;
  if (style.blendMode == BlendMode::clear) return clear(path);
  const bool isOpaque = style.blendMode == BlendMode::normal && style.fill.alpha >= 1 && style.alpha >= 1;
  if (isOpaque && _pendingClear == path) _pendingClear.reset();
  const auto box = path.boundingBox();
  if (!box || !isShown(*box)) return;
  tellFill();
  if (path == Path::rect(*box)) {
    operations.add(Operation::fillRect, {box->x, box->y, box->width, box->height});
  } else {
    operations.add(Operation::fill, path);
  }
}

void Canvas2dCanvas::Recording::stroke(const Path& path) {
  const auto box = path.boundingBox();
  const double width = state().style.lineWidth;
  if (!box || width <= 0) return;
  const double reach = reachOfLine(path, width);
  if (!isShown(box->inset(-reach, -reach))) return;
  tellStroke();
  operations.add(Operation::stroke, path);
}

void Canvas2dCanvas::Recording::clear(const Path& path) {
  finishPendingClear();
  const auto box = path.boundingBox();
  if (!box || state().isCollapsed) return;
  if (meetsAny(_groups.back().painted, inPixels(*box).intersection(state().clip))) _pendingClear = path;
}

void Canvas2dCanvas::Recording::finishPendingClear() {
  if (!_pendingClear) return;
  const Rect box = *_pendingClear->boundingBox();
  _groups.back().reachesBelow = true;
  beginPainting(inPixels(box).intersection(state().clip));
  if (*_pendingClear == Path::rect(box)) {
    operations.add(Operation::clearRect, {box.x, box.y, box.width, box.height});
  } else {
    operations.add(Operation::clear, *_pendingClear);
  }
  _pendingClear.reset();
}

bool Canvas2dCanvas::Recording::isShown(const Rect& rect) {
  finishPendingClear();
  if (state().isCollapsed) return false;
  const Rect shown = inPixels(rect).intersection(state().clip);
  if (shown.isEmpty()) return false;
  _groups.back().painted.push_back(shown);
  beginPainting(shown);
  return true;
}

void Canvas2dCanvas::Recording::beginPainting(const Rect& pixels) {
  finishPainting();
  const State& now = state();
  const Style& style = now.style;
  Fingerprint fingerprint = now.shape;
  addFrame(fingerprint, now.frame);
  for (const Color& color : {style.fill, style.stroke}) {
    for (const double part : {color.red, color.green, color.blue, color.alpha}) fingerprint.add(part);
  }
  for (const double number : {style.lineWidth, style.alpha, static_cast<double>(style.blendMode)}) {
    fingerprint.add(number);
  }
  _painting = {pixels, operations.size(), fingerprint};
  ++_paintings;
}

void Canvas2dCanvas::Recording::finishPainting() {
  if (!_painting) return;
  const std::vector<double>& numbers = operations.numbers();
  _painting->fingerprint.add(numbers.data() + _painting->beginsAt, numbers.size() - _painting->beginsAt);
  squares.add(_painting->pixels, _painting->fingerprint.value());
  _painting.reset();
}

void Canvas2dCanvas::Recording::tellFill() {
  const Color& color = state().style.fill;
  if (state().told.fill != color) operations.add(Operation::fillColor, color);
  state().told.fill = color;
  tellCompositing();
}

void Canvas2dCanvas::Recording::tellStroke() {
  const Style& style = state().style;
  Style& told = state().told;
  if (told.stroke != style.stroke) operations.add(Operation::strokeColor, style.stroke);
  if (told.lineWidth != style.lineWidth) operations.add(Operation::lineWidth, {style.lineWidth});
  told.stroke = style.stroke;
  told.lineWidth = style.lineWidth;
  tellCompositing();
}

void Canvas2dCanvas::Recording::tellCompositing() {
  const Style& style = state().style;
  Style& told = state().told;
  const bool isOverlay = style.blendMode == BlendMode::overlay;
  if (isOverlay) _groups.back().reachesBelow = true;
  if (told.alpha != style.alpha) operations.add(Operation::alpha, {style.alpha});
  if (told.blendMode != style.blendMode) operations.add(Operation::blendMode, {isOverlay ? 1.0 : 0.0});
  told.alpha = style.alpha;
  told.blendMode = style.blendMode;
}

/// The whole pixels that the rectangle of the current frame touches.
Rect Canvas2dCanvas::Recording::inPixels(const Rect& rect) const {
  const AffineTransform toPixels = _states.back().frame.concat(_pixelsOfPoints);
  const Point corners[] = {
      toPixels.apply({rect.minX(), rect.minY()}), toPixels.apply({rect.maxX(), rect.minY()}),
      toPixels.apply({rect.minX(), rect.maxY()}), toPixels.apply({rect.maxX(), rect.maxY()})};
  const auto [left, right] = std::minmax({corners[0].x, corners[1].x, corners[2].x, corners[3].x});
  const auto [top, bottom] = std::minmax({corners[0].y, corners[1].y, corners[2].y, corners[3].y});
  const double x = std::floor(left), y = std::floor(top);
  return {x, y, std::ceil(right) - x, std::ceil(bottom) - y};
}

bool Canvas2dCanvas::Recording::isOverPaint(const Rect& pixels) const {
  return std::any_of(_groups.begin(), _groups.end(),
                     [&](const Group& group) { return meetsAny(group.painted, pixels); });
}

}  // namespace velmora
