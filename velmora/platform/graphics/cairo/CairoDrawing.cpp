#include <velmora/platform/graphics/cairo/CairoDrawing.h>

#include <algorithm>
#include <array>
#include <cmath>

#include <velmora/platform/graphics/cairo/CairoEncoder.h>
#include <velmora/platform/graphics/cairo/CairoPath.h>
#include <velmora/platform/time/NumberText.h>

namespace [[gnu::visibility("hidden")]] velmora {
namespace {

/// The sides in what the limits count: pixels of a PNG, else points.
Size limitedSize(PictureFormat format, Size size, double scale) {
  if (format != PictureFormat::png) return size;
  return {size.width * scale, size.height * scale};
}

std::optional<PictureError> checkedSize(PictureFormat format, Size size, double scale) {
  const Size sides = limitedSize(format, size, scale);
  const auto isAllowed = [](double side) {
    return side >= 0.5 && side < static_cast<double>(CairoCanvas::maximumSide) + 0.5;
  };
  if (scale > 0 && isAllowed(sides.width) && isAllowed(sides.height)) return std::nullopt;
  const std::string unit = format == PictureFormat::png ? " pixels" : " points";
  return PictureError{PictureError::Kind::size,
                      "a picture has 1 to " + integerText(CairoCanvas::maximumSide) + unit + " a side, not " +
                          decimalText(sides.width, 0) + " x " + decimalText(sides.height, 0)};
}

/// How far a curve's pieces may be from it, in pixels: a tenth, or a twentieth of a point where that is more.
/// Finer pieces cost much time and are not seen.
double curveTolerance(PictureFormat format, double scale) {
  return format == PictureFormat::png ? std::max(0.1, 0.05 * scale) : 0.1;
}

/// A surface that Cairo refuses, so that drawing on it has no effect.
CairoSurface refusedSurface() {
  return CairoSurface(cairo_image_surface_create(CAIRO_FORMAT_ARGB32, -1, -1));
}

cairo_operator_t cairoOperator(BlendMode mode) {
  switch (mode) {
    case BlendMode::overlay:
      return CAIRO_OPERATOR_OVERLAY;
    case BlendMode::clear:
      return CAIRO_OPERATOR_CLEAR;
    default:
      return CAIRO_OPERATOR_OVER;
  }
}

}  // namespace

CairoCanvas::Drawing::Drawing(PictureFormat pictureFormat, Size pictureSize, double scale,
                              Color pictureBackground)
    : format(pictureFormat),
      size(pictureSize),
      background(pictureBackground),
      sizeError(checkedSize(format, size, scale)),
      _surface(sizeError ? refusedSurface() : makeSurface(format, size, scale)),
      _context(cairo_create(_surface.get())) {
  cairo_set_tolerance(context(), curveTolerance(format, scale));
  cairo_set_line_width(context(), 1);
  if (format == PictureFormat::png) cairo_scale(context(), scale, scale);
}

CairoCanvas::Drawing::~Drawing() {
  cairo_surface_finish(surface());  // Cairo's SVG holds on to the record and would never free what is in it
}

void CairoCanvas::Drawing::save() {
  cairo_save(context());
  _states.push_back(state());
  state().kind = State::Kind::save;
}

void CairoCanvas::Drawing::restore() {
  if (state().kind == State::Kind::save) popState();
}

void CairoCanvas::Drawing::beginGroup(double alpha) {
  finishPendingClear();
  State inside = state();
  inside.kind = State::Kind::group;
  inside.alpha = 1;
  inside.blendMode = BlendMode::normal;
  inside.layer.reset();
  const bool canDrawThrough = alpha == 1 && !isPainted(visiblePixels());
  if (canDrawThrough) {
    cairo_save(context());
  } else {
    cairo_push_group(context());
    cairo_reset_clip(context());  // the clip applies when the layer is laid down
    inside.clip.reset();
    _layers.emplace_back();
    inside.layer = alpha;
  }
  _states.push_back(inside);
}

void CairoCanvas::Drawing::endGroup() {
  const auto isGroup = [](const State& s) { return s.kind == State::Kind::group; };
  if (std::none_of(_states.begin(), _states.end(), isGroup)) return;
  while (!isGroup(state())) popState();
  popState();
}

void CairoCanvas::Drawing::endAll() {
  while (_states.size() > 1) popState();
  finishPendingClear();
}

void CairoCanvas::Drawing::popState() {
  finishPendingClear();
  const std::optional<double> layer = state().kind == State::Kind::group ? state().layer : std::nullopt;
  _states.pop_back();
  if (!layer) return cairo_restore(context());

  cairo_pop_group_to_source(context());
  cairo_set_operator(context(), CAIRO_OPERATOR_OVER);
  cairo_paint_with_alpha(context(), *layer);
  const Layer painted = std::move(_layers.back());
  _layers.pop_back();
  for (const Paint& paint : painted) _layers.back().push_back({paint.box, {}, {}});
}

void CairoCanvas::Drawing::transform(const AffineTransform& step) {
  finishPendingClear();
  if (const auto frame = frameAfter(step)) {
    cairo_set_matrix(context(), &*frame);
  } else {
    state().isCollapsed = true;
  }
}

std::optional<cairo_matrix_t> CairoCanvas::Drawing::frameAfter(const AffineTransform& t) const {
  const cairo_matrix_t step = {t.a, t.b, t.c, t.d, t.tx, t.ty};
  cairo_matrix_t frame;
  cairo_get_matrix(context(), &frame);
  cairo_matrix_multiply(&frame, &step, &frame);
  const double area = frame.xx * frame.yy - frame.xy * frame.yx;
  if (area == 0 || !std::isfinite(area) || !std::isfinite(frame.x0) || !std::isfinite(frame.y0)) return {};
  return frame;
}

bool CairoCanvas::Drawing::isReady() {
  finishPendingClear();
  return !state().isCollapsed;
}

void CairoCanvas::Drawing::setPaint(const Color& color) {
  cairo_set_source_rgba(context(), color.red, color.green, color.blue, color.alpha * state().alpha);
  cairo_set_operator(context(), cairoOperator(state().blendMode));
}

Rect CairoCanvas::Drawing::inPixels(const Rect& rect) const {
  Path corners;
  const std::array<Point, 4> points = {{{rect.minX(), rect.minY()},
                                        {rect.maxX(), rect.minY()},
                                        {rect.maxX(), rect.maxY()},
                                        {rect.minX(), rect.maxY()}}};
  for (Point point : points) {
    cairo_user_to_device(context(), &point.x, &point.y);
    corners.moveTo(point);
  }
  const Rect box = *corners.boundingBox();
  const double left = std::floor(box.minX()), top = std::floor(box.minY());
  return {left, top, std::ceil(box.maxX()) - left, std::ceil(box.maxY()) - top};
}

Rect CairoCanvas::Drawing::visiblePixels() const {
  cairo_matrix_t frame;
  cairo_get_matrix(context(), &frame);
  double left = 0, top = 0, right = 0, bottom = 0;
  cairo_identity_matrix(context());
  cairo_clip_extents(context(), &left, &top, &right, &bottom);
  cairo_set_matrix(context(), &frame);
  return {left, top, right - left, bottom - top};
}

bool CairoCanvas::Drawing::isPainted(const Rect& pixels) const {
  return std::any_of(_layers.back().begin(), _layers.back().end(),
                     [&](const Paint& paint) { return !pixels.intersection(paint.box).isEmpty(); });
}

std::optional<Color> CairoCanvas::Drawing::colorBelow(const Rect& pixels) const {
  const auto isThere = [&](const Paint& paint) { return !pixels.intersection(paint.box).isEmpty(); };
  for (auto layer = _layers.rbegin() + 1; layer != _layers.rend(); ++layer) {
    const auto topmost = std::find_if(layer->rbegin(), layer->rend(), isThere);
    if (topmost == layer->rend()) continue;
    const bool coversAll = topmost->filled.intersection(pixels) == pixels;
    return coversAll ? std::optional(topmost->color) : std::nullopt;
  }
  return background.alpha >= 1 ? std::optional(background) : std::nullopt;
}

}  // namespace velmora
