#include <algorithm>
#include <cmath>
#include <cstdint>
#include <utility>
#include <variant>
#include <vector>

#include <velmora/platform/graphics/cairo/CairoColor.h>
#include <velmora/platform/graphics/cairo/CairoDrawing.h>
#include <velmora/platform/graphics/cairo/CairoImage.h>
#include <velmora/platform/graphics/cairo/CairoPath.h>
#include <velmora/platform/graphics/cairo/OverlayPixels.h>
#include <velmora/platform/graphics/cairo/ShapeCache.h>

namespace velmora {
namespace {

/// In pixels; the cache has room for many shapes of this size.
constexpr double largestKeptArea = 512 * 512;

enum class Kind : std::uint64_t { fill, stroke, glyphs, image };

ShapeKey keyOf(Kind kind) {
  ShapeKey key;
  key.add(static_cast<std::uint64_t>(kind));
  return key;
}

cairo_matrix_t frameOf(cairo_t* context) {
  cairo_matrix_t frame;
  cairo_get_matrix(context, &frame);
  return frame;
}

/// The phase of the dashes comes last.
std::vector<double> dashesOf(cairo_t* context) {
  std::vector<double> dashes(static_cast<std::size_t>(cairo_get_dash_count(context)) + 1);
  cairo_get_dash(context, dashes.data(), &dashes.back());
  return dashes;
}

/// How far a line reaches beyond its path: half its width, and at corners as far as a miter may stand out.
double reachOfLine(const Path& path, double lineWidth) {
  constexpr double longestMiter = 10;
  const bool hasCorners = path.elements().size() > 2;
  return lineWidth / 2 * (hasCorners ? longestMiter : 1);
}

/// Where clips consist of parts, a group may be smaller than what was asked for, and begin further in.
void countOffsetFrom(cairo_surface_t* group, Point origin) {
  Point offset;
  cairo_surface_get_device_offset(group, &offset.x, &offset.y);
  cairo_surface_set_device_offset(group, offset.x + origin.x, offset.y + origin.y);
}

/// The pixels that the path holds in the frame, if it is a rectangle with upright edges.
std::optional<Rect> uprightRectangle(const cairo_matrix_t& frame, const Path& path) {
  const auto box = path.boundingBox();
  if (!box || path != Path::rect(*box) || frame.xy != 0 || frame.yx != 0) return std::nullopt;
  const auto [left, right] = std::minmax({frame.xx * box->x, frame.xx * (box->x + box->width)});
  const auto [top, bottom] = std::minmax({frame.yy * box->y, frame.yy * (box->y + box->height)});
  return Rect{frame.x0 + left, frame.y0 + top, right - left, bottom - top};
}

bool isCurved(const Path& path) {
  const std::vector<Path::Element> elements = path.elements();
  return std::any_of(elements.begin(), elements.end(),
                     [](const auto& element) { return std::holds_alternative<Path::Curve>(element); });
}

}  // namespace

/// Figures of straight lines take no longer to draw than to lay down.
bool CairoCanvas::Drawing::isWorthKeeping(const Path& path) const {
  return format == PictureFormat::png && isCurved(path);
}

void CairoCanvas::Drawing::clip(const Path& path) {
  finishPendingClear();
  state().clip = std::make_shared<Clip>(
      Clip{outlineInPixels(context(), path), uprightRectangle(frameOf(context()), path), state().clip});
  setPath(context(), path);
  cairo_clip(context());
}

void CairoCanvas::Drawing::fill(const Path& path) {
  const State& s = state();
  if (s.blendMode == BlendMode::clear) return clear(path);
  const bool isOpaque = s.blendMode == BlendMode::normal && s.fill.alpha >= 1 && s.alpha >= 1;
  if (isOpaque && _pendingClear == path) _pendingClear.reset();
  const auto box = path.boundingBox();
  if (!isReady() || !box) return;
  setPaint(s.fill);
  cover(path, *box);
  notePaint(*box);
  if (isOpaque && format != PictureFormat::png) noteFilled(path);
}

void CairoCanvas::Drawing::noteFilled(const Path& path) {
  auto filled = uprightRectangle(frameOf(context()), path);
  for (const Clip* clip = state().clip.get(); filled && clip != nullptr; clip = clip->outer.get()) {
    filled = clip->rectangle ? std::optional(filled->intersection(*clip->rectangle)) : std::nullopt;
  }
  Paint& paint = _layers.back().back();
  paint.filled = filled.value_or(Rect());
  paint.color = state().fill;
}

void CairoCanvas::Drawing::clear(const Path& path) {
  const auto box = path.boundingBox();
  if (!isReady() || !box || !isPainted(visiblePixels(*box))) return;
  _pendingClear = path;
  if (format == PictureFormat::png) finishPendingClear();
}

void CairoCanvas::Drawing::finishPendingClear() {
  if (!_pendingClear) return;
  const Rect box = *_pendingClear->boundingBox();
  const auto shown = format == PictureFormat::png ? std::nullopt : colorBelow(visiblePixels(box));
  setSource(context(), shown.value_or(Color::clear()));
  cairo_set_operator(context(), shown ? CAIRO_OPERATOR_OVER : CAIRO_OPERATOR_CLEAR);
  cover(*_pendingClear, box);
  _pendingClear.reset();
}

void CairoCanvas::Drawing::cover(const Path& path, const Rect& box) {
  const auto draw = [&] {
    setPath(context(), path);
    cairo_fill(context());
  };
  if (!isWorthKeeping(path)) return drawOnce(box, draw);
  place({keyOf(Kind::fill), outlineInPixels(context(), path), box, CAIRO_CONTENT_ALPHA, draw});
}

void CairoCanvas::Drawing::stroke(const Path& path) {
  const auto box = path.boundingBox();
  if (!isReady() || !box) return;
  const double width = cairo_get_line_width(context()), reach = reachOfLine(path, width);
  const Rect reached = box->inset(-reach, -reach);
  setPaint(state().stroke);
  notePaint(reached);
  const auto draw = [&] {
    setPath(context(), path);
    cairo_stroke(context());
  };
  if (!isWorthKeeping(path)) return drawOnce(reached, draw);
  ShapeKey key = keyOf(Kind::stroke);
  key.add(width);
  const std::vector<double> dashes = dashesOf(context());
  key.add(dashes.size());
  for (const double length : dashes) key.add(length);
  place({key, outlineInPixels(context(), path), reached, CAIRO_CONTENT_ALPHA, draw});
}

void CairoCanvas::Drawing::drawGlyphs(const GlyphRun& run, std::uint64_t lineSerial) {
  const Rect box = inkBox(context(), run);
  setPaint(run.color);
  notePaint(box);
  if (format != PictureFormat::png) return drawOnce(box, [&] { showCharacters(context(), run); });
  ShapeKey key = keyOf(Kind::glyphs);
  key.add(lineSerial);
  key.add(run.first);
  key.add(run.glyphs.size());
  key.add(run.glyphs.front().x);
  key.add(run.glyphs.front().y);
  place({key, {}, box, CAIRO_CONTENT_ALPHA, [&] { fillOutlines(context(), run); }});
}

void CairoCanvas::Drawing::drawImage(const Image& image, const Rect& rect) {
  if (state().blendMode == BlendMode::clear) return clear(Path::rect(rect));
  const auto [width, height] = image.pixelSize();
  const AffineTransform intoRect = {rect.width / static_cast<double>(width),   0,      0,
                                    rect.height / static_cast<double>(height), rect.x, rect.y};
  if (!isReady() || !frameAfter(intoRect)) return;
  const double alpha = state().alpha;
  setPaint(Color::black());
  notePaint(rect);
  const auto draw = [&] { paintImage(context(), image, rect, alpha); };
  if (format != PictureFormat::png) return drawOnce(rect, draw);
  ShapeKey key = keyOf(Kind::image);
  key.add(image.serial());
  key.add(rect);
  key.add(alpha);
  place({key, {}, rect, CAIRO_CONTENT_COLOR_ALPHA, draw});
}

void CairoCanvas::Drawing::drawOnce(const Rect& box, const std::function<void()>& draw) {
  const bool isOverlay = cairo_get_operator(context()) == CAIRO_OPERATOR_OVERLAY;
  if (format != PictureFormat::png && isOverlay) return drawOverlay(box, draw);
  draw();
}

void CairoCanvas::Drawing::drawOverlay(const Rect& box, const std::function<void()>& draw) {
  const Rect area = visiblePixels(box);
  if (area.isEmpty()) return;
  const CairoSurface backdrop(cairo_surface_reference(cairo_get_group_target(context())));
  cairo_set_operator(context(), CAIRO_OPERATOR_OVER);
  cairo_push_group(context());
  const CairoSurface paint(cairo_surface_reference(cairo_get_group_target(context())));
  draw();
  cairo_pattern_destroy(cairo_pop_group(context()));
  layDown(overlaid(paint.get(), backdrop.get(), area).get(), CAIRO_CONTENT_COLOR_ALPHA, area.origin());
}

/// Draws the shape by way of its pixels, unless it is large.
void CairoCanvas::Drawing::place(const Shape& shape) {
  const Rect pixels = visiblePixels(shape.box);
  if (pixels.isEmpty()) return;
  if (!(pixels.width * pixels.height <= largestKeptArea)) return shape.draw();

  ShapeCache& cache = ShapeCache::ofThread();
  const ShapeKey key = keyInPlace(shape, pixels);
  if (cairo_surface_t* kept = cache.find(key)) return layDown(kept, shape.content, pixels.origin());
  CairoSurface made = makePixels(shape, pixels);
  if (cairo_status(context()) != CAIRO_STATUS_SUCCESS) return;
  layDown(cache.keep(key, std::move(made)), shape.content, pixels.origin());
}

/// Shapes that lie whole pixels apart, with the clips that touch them, share their key.
ShapeKey CairoCanvas::Drawing::keyInPlace(const Shape& shape, const Rect& pixels) const {
  const Point origin = pixels.origin();
  cairo_matrix_t frame = frameOf(context());
  ShapeKey key = shape.key;
  key.add(cairo_get_tolerance(context()));
  key.add(pixels.width);
  key.add(pixels.height);
  if (shape.outline) {
    key.add(*shape.outline, origin);
    frame.x0 = origin.x, frame.y0 = origin.y;  // the outline says where it lies
  }
  key.add(frame, origin);
  for (const Clip* clip = _states.back().clip.get(); clip != nullptr; clip = clip->outer.get()) {
    const bool showsAll = clip->rectangle && clip->rectangle->intersection(pixels) == pixels;
    if (!showsAll) key.add(clip->outline, origin);
  }
  return key;
}

CairoSurface CairoCanvas::Drawing::makePixels(const Shape& shape, const Rect& pixels) {
  const cairo_matrix_t frame = frameOf(context());
  cairo_save(context());
  cairo_identity_matrix(context());
  cairo_rectangle(context(), pixels.x, pixels.y, pixels.width, pixels.height);
  cairo_clip(context());
  cairo_set_matrix(context(), &frame);
  cairo_push_group_with_content(context(), shape.content);
  CairoSurface made(cairo_surface_reference(cairo_get_group_target(context())));
  cairo_set_source_rgba(context(), 0, 0, 0, 1);
  cairo_set_operator(context(), CAIRO_OPERATOR_OVER);
  shape.draw();
  cairo_pattern_destroy(cairo_pop_group(context()));
  cairo_restore(context());
  countOffsetFrom(made.get(), pixels.origin());
  return made;
}

/// The clip is part of the pixels.
void CairoCanvas::Drawing::layDown(cairo_surface_t* pixels, cairo_content_t content, Point topLeft) {
  cairo_save(context());
  cairo_identity_matrix(context());
  cairo_reset_clip(context());
  if (content == CAIRO_CONTENT_ALPHA) {
    cairo_mask_surface(context(), pixels, topLeft.x, topLeft.y);
  } else {
    cairo_set_source_surface(context(), pixels, topLeft.x, topLeft.y);
    cairo_paint(context());
  }
  cairo_restore(context());
}

}  // namespace velmora
