#include <velmora/platform/graphics/canvas2d/Canvas2dCanvas.h>

#include <algorithm>
#include <cmath>
#include <numeric>

#include <velmora/platform/graphics/canvas2d/Canvas2dTextEngine.h>
#include <velmora/platform/graphics/canvas2d/Recording.h>
#include <velmora/platform/resources/Image.h>

// In pictures.js.
extern "C" void velmora_canvas2d_add_image(double serial, const char* encoded, std::size_t size);

namespace velmora {
namespace {

/// By which ink may stand out of its line, in points for each point of the line's height.
constexpr double overhang = 0.5;

}  // namespace

Canvas2dCanvas::Canvas2dCanvas(Size size, double scale)
    : _recording(std::make_unique<Recording>(size, scale)) {
  Canvas2dTextEngine::shared().makeRoom();
}
Canvas2dCanvas::~Canvas2dCanvas() = default;

const std::vector<double>& Canvas2dCanvas::operations() {
  _recording->endAll();
  return _recording->operations.numbers();
}

std::vector<double> Canvas2dCanvas::squares() {
  _recording->endAll();
  return _recording->squares.numbers();
}

void Canvas2dCanvas::save() { _recording->save(); }
void Canvas2dCanvas::restore() { _recording->restore(); }
void Canvas2dCanvas::setStrokeColor(const Color& color) { _recording->state().style.stroke = color; }
void Canvas2dCanvas::setFillColor(const Color& color) { _recording->state().style.fill = color; }
void Canvas2dCanvas::setAlpha(double alpha) { _recording->state().style.alpha = std::clamp(alpha, 0.0, 1.0); }
void Canvas2dCanvas::setBlendMode(BlendMode mode) { _recording->state().style.blendMode = mode; }

void Canvas2dCanvas::setLineWidth(double width) {
  if (std::isfinite(width)) _recording->state().style.lineWidth = std::abs(width);
}

void Canvas2dCanvas::setLineDash(const std::vector<double>& lengths, double phase) {
  const bool isValid =
      std::isfinite(phase) &&
      std::all_of(lengths.begin(), lengths.end(), [](double length) { return length >= 0; }) &&
      std::accumulate(lengths.begin(), lengths.end(), 0.0) > 0;
  const std::vector<double>& used = isValid ? lengths : std::vector<double>();
  _recording->setLineDash(used, std::isfinite(phase) ? phase : 0);
}

void Canvas2dCanvas::translate(double dx, double dy) {
  _recording->transform(AffineTransform::translation(dx, dy));
}
void Canvas2dCanvas::rotate(double angle) { _recording->transform(AffineTransform::rotation(angle)); }
void Canvas2dCanvas::scale(double sx, double sy) { _recording->transform(AffineTransform::scaling(sx, sy)); }
void Canvas2dCanvas::concat(const AffineTransform& transform) { _recording->transform(transform); }

void Canvas2dCanvas::clip(const Path& path) { _recording->clip(path); }
void Canvas2dCanvas::fill(const Path& path) { _recording->fill(path); }
void Canvas2dCanvas::stroke(const Path& path) { _recording->stroke(path); }
void Canvas2dCanvas::fillRect(Rect rect) { _recording->fill(Path::rect(rect)); }
void Canvas2dCanvas::clearRect(Rect rect) { _recording->clear(Path::rect(rect)); }

void Canvas2dCanvas::drawImage(const Image& image, Rect rect) {
  const Rect box = rect.standardised();
  if (_recording->state().style.blendMode == BlendMode::clear) return clearRect(box);
  if (!_recording->isShown(box)) return;
  _recording->tellFill();
  const auto serial = static_cast<double>(image.serial());
  velmora_canvas2d_add_image(serial, image.encodedBytes().data(), image.encodedBytes().size());
  _recording->operations.add(Operation::image,
                             {serial, image.isMirrored() ? 1.0 : 0.0, box.x, box.y, box.width, box.height});
}

void Canvas2dCanvas::drawText(const AttributedText& text, Point topLeft) {
  if (const auto line = shownLine(text, topLeft)) {
    _recording->operations.add(Operation::text, {*line, topLeft.x, topLeft.y});
  }
}

void Canvas2dCanvas::drawGlyph(const AttributedText& text, std::size_t glyph, Point topLeft) {
  if (const auto line = shownLine(text, topLeft)) {
    _recording->operations.add(Operation::glyph, {*line, topLeft.x, topLeft.y, static_cast<double>(glyph)});
  }
}

std::optional<double> Canvas2dCanvas::shownLine(const AttributedText& text, Point topLeft) {
  if (text.isEmpty()) return std::nullopt;
  const auto& [number, metrics] = Canvas2dTextEngine::shared().line(text);
  const double height = metrics.ascent + metrics.descent, beyond = overhang * height;
  if (!_recording->isShown(Rect{topLeft.x, topLeft.y, metrics.width, height}.inset(-beyond, -beyond))) {
    return std::nullopt;
  }
  _recording->tellFill();
  return number;
}

void Canvas2dCanvas::beginGroup(double alpha) { _recording->beginGroup(alpha); }
void Canvas2dCanvas::endGroup() { _recording->endGroup(); }

}  // namespace velmora
