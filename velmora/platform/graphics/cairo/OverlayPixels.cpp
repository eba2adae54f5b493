#include <velmora/platform/graphics/cairo/OverlayPixels.h>

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <vector>

#include <velmora/platform/graphics/cairo/CairoImage.h>

namespace [[gnu::visibility("hidden")]] velmora {
namespace {

constexpr int opaque = 255;

CairoSurface pixelsOf(cairo_surface_t* drawn, const Rect& area) {
  CairoSurface pixels(cairo_image_surface_create(
      CAIRO_FORMAT_ARGB32, static_cast<int>(std::lround(area.width * overlayPixelsAPoint)),
      static_cast<int>(std::lround(area.height * overlayPixelsAPoint))));
  const CairoContext context(cairo_create(pixels.get()));
  cairo_scale(context.get(), overlayPixelsAPoint, overlayPixelsAPoint);
  cairo_set_source_surface(context.get(), drawn, -area.x, -area.y);
  cairo_paint(context.get());
  cairo_surface_flush(pixels.get());
  return pixels;
}

/// Of a premultiplied channel of the paint over one of the backdrop: multiplied where the backdrop is dark,
/// screened where it is light, unchanged where there is none (ISO 32000-1, 11.3.5).
std::uint8_t overlaid(int paint, int paintAlpha, int backdrop, int backdropAlpha) {
  const bool isDark = 2 * backdrop <= backdropAlpha;
  const int blended =
      isDark ? 2 * paint * backdrop
             : paintAlpha * backdropAlpha - 2 * (backdropAlpha - backdrop) * (paintAlpha - paint);
  return static_cast<std::uint8_t>((paint * (opaque - backdropAlpha) + blended + opaque / 2) / opaque);
}

void overlayRow(std::vector<std::uint8_t>& paint, const std::vector<std::uint8_t>& backdrop) {
  for (std::size_t pixel = 0; pixel < paint.size(); pixel += 4) {
    for (std::size_t channel = pixel; channel < pixel + 3; ++channel) {
      paint[channel] = overlaid(paint[channel], paint[pixel + 3], backdrop[channel], backdrop[pixel + 3]);
    }
  }
}

}  // namespace

CairoSurface overlaid(cairo_surface_t* paint, cairo_surface_t* backdrop, const Rect& area) {
  CairoSurface pixels = pixelsOf(paint, area);
  const CairoSurface below = pixelsOf(backdrop, area);
  const bool isComplete = cairo_surface_status(pixels.get()) == CAIRO_STATUS_SUCCESS &&
                          cairo_surface_status(below.get()) == CAIRO_STATUS_SUCCESS;
  if (!isComplete) return pixels;
  std::vector<std::uint8_t> row(static_cast<std::size_t>(cairo_image_surface_get_width(pixels.get())) * 4);
  std::vector<std::uint8_t> rowBelow = row;
  for (int y = 0; y < cairo_image_surface_get_height(pixels.get()); ++y) {
    copyRow(pixels.get(), y, row.data());
    copyRow(below.get(), y, rowBelow.data());
    overlayRow(row, rowBelow);
    setRow(pixels.get(), y, row.data());
  }
  cairo_surface_mark_dirty(pixels.get());
  cairo_surface_set_device_scale(pixels.get(), overlayPixelsAPoint, overlayPixelsAPoint);
  return pixels;
}

}  // namespace velmora
