#include <velmora/platform/graphics/cairo/CairoCanvas.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <numeric>
#include <ostream>
#include <utility>

#include <velmora/platform/graphics/cairo/CairoDrawing.h>
#include <velmora/platform/graphics/cairo/CairoEncoder.h>
#include <velmora/platform/graphics/cairo/CairoFrame.h>
#include <velmora/platform/graphics/cairo/CairoImage.h>
#include <velmora/platform/graphics/cairo/CairoPath.h>
#include <velmora/platform/graphics/cairo/CairoText.h>
#include <velmora/platform/graphics/cairo/PangoTextEngine.h>
#include <velmora/platform/system/ReplacedFile.h>

namespace velmora {
namespace {

PictureError drawingError(cairo_status_t status) {
  const bool isOutput = status == CAIRO_STATUS_WRITE_ERROR;
  return {isOutput ? PictureError::Kind::output : PictureError::Kind::drawing,
          isOutput ? std::string("the picture cannot be written")
                   : std::string("the picture cannot be drawn: ") + cairo_status_to_string(status)};
}

}  // namespace

CairoCanvas::CairoCanvas(PictureFormat format, Size size, double scale, Color background)
    : _drawing(std::make_unique<Drawing>(format, size, scale, background)) {}

CairoCanvas::CairoCanvas(cairo_t* context, Size size) : _drawing(std::make_unique<Drawing>(context, size)) {}

CairoCanvas::~CairoCanvas() = default;
CairoCanvas::CairoCanvas(CairoCanvas&&) noexcept = default;
CairoCanvas& CairoCanvas::operator=(CairoCanvas&&) noexcept = default;

Size CairoCanvas::size() const {
  if (_drawing->format != PictureFormat::png) return _drawing->size;
  cairo_surface_t* const pixels = _drawing->surface();
  return {static_cast<double>(cairo_image_surface_get_width(pixels)),
          static_cast<double>(cairo_image_surface_get_height(pixels))};
}

std::optional<PictureError> CairoCanvas::error() const {
  for (const auto& page : _ended)
    if (const auto failure = errorOf(*page)) return failure;
  return _pageError ? _pageError : errorOf(*_drawing);
}

std::optional<PictureError> CairoCanvas::errorOf(const Drawing& drawing) {
  if (drawing.sizeError()) return drawing.sizeError();
  const cairo_status_t status = cairo_status(drawing.context());
  if (status == CAIRO_STATUS_SUCCESS) return std::nullopt;
  return drawingError(status);
}

void CairoCanvas::nextPage() {
  if (_drawing->format != PictureFormat::pdf) {
    if (!_pageError) _pageError = {PictureError::Kind::drawing, "only a PDF has more than one page"};
    return;
  }
  _drawing->endAll();
  auto next = std::make_unique<Drawing>(PictureFormat::pdf, _drawing->size, 1, _drawing->background);
  _ended.push_back(std::exchange(_drawing, std::move(next)));
}

std::optional<PictureError> CairoCanvas::write(std::ostream& output) {
  if (!_drawing->format)
    return PictureError{PictureError::Kind::drawing,
                        "what is drawn on a context of the host's is no picture"};
  _drawing->endAll();
  if (const auto failure = error()) return failure;
  std::vector<cairo_surface_t*> pages;
  for (const auto& page : _ended) pages.push_back(page->surface());
  pages.push_back(_drawing->surface());
  const cairo_status_t status =
      encode(*_drawing->format, pages, _drawing->size, _drawing->background, output);
  if (status == CAIRO_STATUS_SUCCESS && output.flush()) return std::nullopt;
  return drawingError(status == CAIRO_STATUS_SUCCESS ? CAIRO_STATUS_WRITE_ERROR : status);
}

std::optional<PictureError> CairoCanvas::writeFile(const std::filesystem::path& path) {
  if (const auto failure = error()) return failure;
  std::optional<PictureError> failure;
  const auto systemError = replaceFile(path, [&](std::ostream& file) {
    failure = write(file);
    return !failure;
  });
  if (failure && failure->kind != PictureError::Kind::output) return failure;
  if (!systemError) return std::nullopt;
  return PictureError{PictureError::Kind::output, "the picture cannot be written: " + *systemError};
}

std::vector<std::uint8_t> CairoCanvas::pixels() const {
  if (_drawing->format != PictureFormat::png || error()) return {};
  return bytesOfSurface(_drawing->surface());
}

bool CairoCanvas::becamePixels() const {
  return _drawing->becamePixels() ||
         std::any_of(_ended.begin(), _ended.end(), [](const auto& page) { return page->becamePixels(); });
}

std::set<std::string> CairoCanvas::uncoveredCharacters() const {
  std::set<std::string> characters = _drawing->uncovered();
  for (const auto& page : _ended) characters.insert(page->uncovered().begin(), page->uncovered().end());
  return characters;
}

void CairoCanvas::save() { _drawing->save(); }
void CairoCanvas::restore() { _drawing->restore(); }
void CairoCanvas::setStrokeColor(const Color& color) { _drawing->state().stroke = color; }
void CairoCanvas::setFillColor(const Color& color) { _drawing->state().fill = color; }
void CairoCanvas::setAlpha(double alpha) { _drawing->state().alpha = std::clamp(alpha, 0.0, 1.0); }
void CairoCanvas::setBlendMode(BlendMode mode) { _drawing->state().blendMode = mode; }

void CairoCanvas::setLineWidth(double width) {
  if (std::isfinite(width)) cairo_set_line_width(_drawing->context(), std::abs(width));
}

void CairoCanvas::setLineDash(const std::vector<double>& lengths, double phase) {
  const bool isValid =
      std::isfinite(phase) &&
      std::all_of(lengths.begin(), lengths.end(), [](double length) { return length >= 0; }) &&
      std::accumulate(lengths.begin(), lengths.end(), 0.0) > 0;
  cairo_set_dash(_drawing->context(), lengths.data(), isValid ? static_cast<int>(lengths.size()) : 0, phase);
}

void CairoCanvas::translate(double dx, double dy) {
  _drawing->transform(AffineTransform::translation(dx, dy));
}
void CairoCanvas::rotate(double angle) { _drawing->transform(AffineTransform::rotation(angle)); }
void CairoCanvas::scale(double sx, double sy) { _drawing->transform(AffineTransform::scaling(sx, sy)); }
void CairoCanvas::concat(const AffineTransform& transform) { _drawing->transform(transform); }

void CairoCanvas::clip(const Path& path) { _drawing->clip(path); }
void CairoCanvas::fill(const Path& path) { _drawing->fill(path); }
void CairoCanvas::clearRect(Rect rect) { _drawing->clear(Path::rect(rect)); }
void CairoCanvas::stroke(const Path& path) { _drawing->stroke(path); }
void CairoCanvas::drawImage(const Image& image, Rect rect) {
  _drawing->drawImage(image, rect.standardised());
}

void CairoCanvas::drawText(const AttributedText& text, Point topLeft) {
  drawGlyphRange(text, 0, std::string::npos, topLeft);
}

void CairoCanvas::drawGlyph(const AttributedText& text, std::size_t glyph, Point topLeft) {
  drawGlyphRange(text, glyph, glyph + 1, topLeft);
}

void CairoCanvas::drawGlyphRange(const AttributedText& text, std::size_t first, std::size_t end,
                                 Point topLeft) {
  const bool isPlaceable =
      frameAfter(_drawing->context(), AffineTransform::translation(topLeft.x, topLeft.y)).has_value();
  if (!_drawing->isReady() || !isPlaceable) return;
  const auto line = PangoTextEngine::shared().line(text);
  for (const GlyphRun& run : glyphRuns(*line, text, first, std::min(end, line->glyphs.size()), topLeft)) {
    _drawing->drawGlyphs(run, *line, text.text());
  }
  _drawing->noteUncovered(line->uncovered);
}

void CairoCanvas::beginGroup(double alpha) { _drawing->beginGroup(alpha); }
void CairoCanvas::endGroup() { _drawing->endGroup(); }

}  // namespace velmora
