#include <velmora/platform/graphics/cairo/CairoDrawing.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <variant>
#include <vector>

#include <velmora/platform/graphics/cairo/CairoColor.h>
#include <velmora/platform/graphics/cairo/CairoEncoder.h>
#include <velmora/platform/graphics/cairo/CairoFrame.h>
#include <velmora/platform/graphics/cairo/CairoImage.h>
#include <velmora/platform/graphics/cairo/CairoPath.h>
#include <velmora/platform/graphics/cairo/KeptShapes.h>
#include <velmora/platform/graphics/cairo/OverlayPixels.h>
#include <velmora/platform/time/NumberText.h>

namespace [[gnu::visibility("hidden")]] velmora {
namespace {

/// How far a corner may stand out, in widths of its line.
constexpr double longestMiter = 10;

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
double curveTolerance(double pixelsAPoint) { return std::max(0.1, 0.05 * pixelsAPoint); }

double pixelsAPoint(cairo_t* context) {
  const cairo_matrix_t frame = frameOf(context);
  return std::sqrt(std::abs(frame.xx * frame.yy - frame.xy * frame.yx)) *
         deviceScale(cairo_get_group_target(context));
}

bool isRecorded(cairo_surface_t* surface) {
  switch (cairo_surface_get_type(surface)) {
    case CAIRO_SURFACE_TYPE_PDF:
    case CAIRO_SURFACE_TYPE_PS:
    case CAIRO_SURFACE_TYPE_RECORDING:
    case CAIRO_SURFACE_TYPE_SCRIPT:
    case CAIRO_SURFACE_TYPE_SVG:
      return true;
    default:
      return false;
  }
}

/// What a host may have set otherwise.
void setDefaults(cairo_t* context) {
  cairo_set_antialias(context, CAIRO_ANTIALIAS_DEFAULT);
  cairo_set_dash(context, nullptr, 0, 0);
  cairo_set_fill_rule(context, CAIRO_FILL_RULE_WINDING);
  cairo_set_line_cap(context, CAIRO_LINE_CAP_BUTT);
  cairo_set_line_join(context, CAIRO_LINE_JOIN_MITER);
  cairo_set_miter_limit(context, longestMiter);
}

/// A surface that Cairo refuses, so that drawing on it has no effect.
CairoSurface refusedSurface() {
  return CairoSurface(cairo_image_surface_create(CAIRO_FORMAT_ARGB32, -1, -1));
}

enum class Kind : std::uint64_t { fill, stroke, glyphs, image };

ShapeKey keyOf(Kind kind) {
  ShapeKey key;
  key.add(static_cast<std::uint64_t>(kind));
  return key;
}

/// The phase of the dashes comes last.
std::vector<double> dashesOf(cairo_t* context) {
  std::vector<double> dashes(static_cast<std::size_t>(cairo_get_dash_count(context)) + 1);
  cairo_get_dash(context, dashes.data(), &dashes.back());
  return dashes;
}

/// How far a line reaches beyond its path: half its width, and at corners as far as a miter may stand out.
double reachOfLine(const Path& path, double lineWidth) {
  const bool hasCorners = path.elements().size() > 2;
  return lineWidth / 2 * (hasCorners ? longestMiter : 1);
}

bool isCurved(const Path& path) {
  const std::vector<Path::Element> elements = path.elements();
  return std::any_of(elements.begin(), elements.end(),
                     [](const auto& element) { return std::holds_alternative<Path::Curve>(element); });
}

}  // namespace

CairoCanvas::Drawing::Drawing(PictureFormat pictureFormat, Size pictureSize, double scale,
                              Color pictureBackground)
    : format(pictureFormat),
      size(pictureSize),
      background(pictureBackground),
      _sizeError(checkedSize(pictureFormat, size, scale)),
      _surface(_sizeError ? refusedSurface() : makeSurface(pictureFormat, size, scale)),
      _context(cairo_create(_surface.get())),
      _isVector(format != PictureFormat::png),
      _keepsShapes(!_isVector),
      _states(context()),
      _painted(background, _isVector) {
  cairo_set_line_width(context(), 1);
  if (!_isVector) cairo_scale(context(), scale, scale);
  cairo_set_tolerance(context(), curveTolerance(pixelsAPoint(context())));
}

CairoCanvas::Drawing::Drawing(cairo_t* host, Size hostSize)
    : size(hostSize),
      background(Color::clear()),
      _context(cairo_reference(host)),
      _isVector(isRecorded(cairo_get_group_target(host))),
      _keepsShapes(cairo_surface_get_type(cairo_get_group_target(host)) == CAIRO_SURFACE_TYPE_IMAGE),
      _states(host),
      _painted(background, _isVector) {
  cairo_save(host);
  cairo_new_path(host);
  cairo_rectangle(host, 0, 0, size.width, size.height);
  cairo_clip(host);
  cairo_push_group(host);
  cairo_reset_clip(host);  // it applies when the layer is laid down
  setDefaults(host);
  cairo_set_line_width(host, 1);
  cairo_set_tolerance(host, curveTolerance(pixelsAPoint(host)));
}

CairoCanvas::Drawing::~Drawing() {
  if (format) {
    cairo_surface_finish(surface());  // Cairo's SVG holds on to the record and would never free what is in it
  } else {
    endAll();
    cairo_pop_group_to_source(context());
    cairo_set_operator(context(), CAIRO_OPERATOR_OVER);
    cairo_paint(context());
    cairo_restore(context());
  }
}

void CairoCanvas::Drawing::restore() {
  if (state().kind == DrawingStates::State::Kind::save) endState();
}

void CairoCanvas::Drawing::beginGroup(double alpha) {
  finishPendingClear();
  const bool canDrawThrough = alpha == 1 && !_painted.isPainted(visiblePixels(context()));
  if (canDrawThrough) return _states.beginGroup();
  _states.beginLayer(alpha);
  _painted.begin();
}

void CairoCanvas::Drawing::endGroup() {
  if (!_states.isInGroup()) return;
  while (state().kind != DrawingStates::State::Kind::group) endState();
  endState();
}

void CairoCanvas::Drawing::endAll() {
  while (state().kind != DrawingStates::State::Kind::base) endState();
  finishPendingClear();
}

void CairoCanvas::Drawing::endState() {
  finishPendingClear();
  const bool isLaidDown = _states.end();
  if (isLaidDown) _painted.end();
}

void CairoCanvas::Drawing::transform(const AffineTransform& step) {
  finishPendingClear();
  _states.transform(step);
}

void CairoCanvas::Drawing::clip(const Path& path) {
  finishPendingClear();
  _states.clip(path);
}

bool CairoCanvas::Drawing::isReady() {
  finishPendingClear();
  return !state().isCollapsed && !_sizeError;
}

void CairoCanvas::Drawing::notePaint(const Rect& box) { _painted.note(visiblePixels(context(), box)); }

void CairoCanvas::Drawing::fill(const Path& path) {
  const DrawingStates::State& s = state();
  if (s.blendMode == BlendMode::clear) return clear(path);
  const bool isOpaque = s.blendMode == BlendMode::normal && s.fill.alpha >= 1 && s.alpha >= 1;
  if (isOpaque && _pendingClear == path) _pendingClear.reset();
  const auto box = path.boundingBox();
  if (!isReady() || !box) return;
  _states.setPaint(s.fill);
  cover(path, *box);
  notePaint(*box);
  if (!isOpaque || !_isVector) return;
  if (const auto rectangle = uprightRectangle(frameOf(context()), path)) {
    _painted.noteFilled(_states.clipped(*rectangle).value_or(Rect()), s.fill);
  }
}

void CairoCanvas::Drawing::clear(const Path& path) {
  const auto box = path.boundingBox();
  if (!isReady() || !box || !_painted.isPainted(visiblePixels(context(), *box))) return;
  _pendingClear = path;
  if (!_isVector) finishPendingClear();
}

void CairoCanvas::Drawing::finishPendingClear() {
  if (!_pendingClear) return;
  const Rect box = *_pendingClear->boundingBox();
  const auto shown = _isVector ? _painted.colorBelow(visiblePixels(context(), box)) : std::nullopt;
  if (_isVector && !shown) becomePixels();
  setSource(context(), shown.value_or(Color::clear()));
  cairo_set_operator(context(), shown ? CAIRO_OPERATOR_OVER : CAIRO_OPERATOR_CLEAR);
  cover(*_pendingClear, box);
  _pendingClear.reset();
}

bool CairoCanvas::Drawing::canClear(const Rect& box) {
  const bool isPainted = _painted.isPainted(visiblePixels(context(), box));
  if (isPainted && _isVector) becomePixels();
  return isPainted;
}

void CairoCanvas::Drawing::becomePixels() {
  if (format && !_becamePixels) addPixels(pixelsOfPage(size));
  _becamePixels = true;
}

void CairoCanvas::Drawing::addPixels(double count) {
  _pixelsOfVector += count;
  if (_pixelsOfVector <= static_cast<double>(CairoCanvas::maximumPixelsOfVector)) return;
  _sizeError =
      PictureError{PictureError::Kind::size,
                   "the picture cannot stay vector and would be made of more than 64 million pixels; "
                   "accepted: a smaller size, or an opaque background"};
}

void CairoCanvas::Drawing::cover(const Path& path, const Rect& box) {
  drawFigure(keyOf(Kind::fill), path, box, [&] {
    setPath(context(), path);
    cairo_fill(context());
  });
}

void CairoCanvas::Drawing::stroke(const Path& path) {
  const auto box = path.boundingBox();
  if (!isReady() || !box) return;
  const double width = cairo_get_line_width(context()), reach = reachOfLine(path, width);
  const Rect reached = box->inset(-reach, -reach);
  if (state().blendMode == BlendMode::clear && !canClear(reached)) return;
  _states.setPaint(state().stroke);
  notePaint(reached);
  ShapeKey key = keyOf(Kind::stroke);
  key.add(width);
  const std::vector<double> dashes = dashesOf(context());
  key.add(dashes.size());
  for (const double length : dashes) key.add(length);
  drawFigure(key, path, reached, [&] {
    setPath(context(), path);
    cairo_stroke(context());
  });
}

/// Figures of straight lines take no longer to draw than to lay down.
void CairoCanvas::Drawing::drawFigure(const ShapeKey& key, const Path& path, const Rect& box,
                                      const std::function<void()>& draw) {
  if (!_keepsShapes || !isCurved(path)) return drawOnce(box, draw);
  drawKept(context(), {key, outlineInPixels(context(), path), box, CAIRO_CONTENT_ALPHA, draw},
           state().clip.get());
}

void CairoCanvas::Drawing::drawGlyphs(const GlyphRun& run, const ShapedLine& line, const std::string& text) {
  const Rect box = inkBox(context(), run);
  if (state().blendMode == BlendMode::clear && !canClear(box)) return;
  _states.setPaint(run.color);
  notePaint(box);
  if (_isVector) return drawOnce(box, [&] { showCharacters(context(), run, line, text); });
  const auto draw = [&] { fillOutlines(context(), run); };
  if (!_keepsShapes) return draw();
  ShapeKey key = keyOf(Kind::glyphs);
  key.add(line.serial);
  key.add(run.first);
  key.add(run.glyphs.size());
  key.add(run.glyphs.front().x);
  key.add(run.glyphs.front().y);
  drawKept(context(), {key, {}, box, CAIRO_CONTENT_ALPHA, draw}, state().clip.get());
}

void CairoCanvas::Drawing::drawImage(const Image& image, const Rect& rect) {
  if (state().blendMode == BlendMode::clear) return clear(Path::rect(rect));
  const auto [width, height] = image.pixelSize();
  const AffineTransform intoRect = {rect.width / static_cast<double>(width),   0,      0,
                                    rect.height / static_cast<double>(height), rect.x, rect.y};
  if (!isReady() || !frameAfter(context(), intoRect)) return;
  const double alpha = state().alpha;
  _states.setPaint(Color::black());
  notePaint(rect);
  const auto draw = [&] { paintImage(context(), image, rect, alpha); };
  if (!_keepsShapes) return drawOnce(rect, draw);
  ShapeKey key = keyOf(Kind::image);
  key.add(image.serial());
  key.add(rect);
  key.add(alpha);
  drawKept(context(), {key, {}, rect, CAIRO_CONTENT_COLOR_ALPHA, draw}, state().clip.get());
}

void CairoCanvas::Drawing::drawOnce(const Rect& box, const std::function<void()>& draw) {
  const bool isOverlay = cairo_get_operator(context()) == CAIRO_OPERATOR_OVERLAY;
  if (_isVector && isOverlay) return drawOverlay(box, draw);
  draw();
}

void CairoCanvas::Drawing::drawOverlay(const Rect& box, const std::function<void()>& draw) {
  const Rect area = visiblePixels(context(), box);
  if (area.isEmpty()) return;
  addPixels(area.width * overlayPixelsAPoint * area.height * overlayPixelsAPoint);
  if (_sizeError) return;
  const CairoSurface backdrop(cairo_surface_reference(cairo_get_group_target(context())));
  cairo_set_operator(context(), CAIRO_OPERATOR_OVER);
  cairo_push_group(context());
  const CairoSurface paint(cairo_surface_reference(cairo_get_group_target(context())));
  draw();
  cairo_pattern_destroy(cairo_pop_group(context()));
  layDown(context(), overlaid(paint.get(), backdrop.get(), area).get(), CAIRO_CONTENT_COLOR_ALPHA,
          area.origin());
}

}  // namespace velmora
