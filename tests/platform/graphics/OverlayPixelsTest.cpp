#include <velmora/platform/graphics/cairo/OverlayPixels.h>

#include <gtest/gtest.h>

#include <cstdint>
#include <vector>

#include <velmora/platform/graphics/cairo/CairoColor.h>
#include <velmora/platform/graphics/cairo/CairoImage.h>

namespace velmora {
namespace {

using Bytes = std::vector<std::uint8_t>;

const std::vector<Color>& colors() {
  static const std::vector<Color> all = {Color::clear(),     Color::black(),      Color::white(),
                                         {0.2, 0.4, 0.6, 1}, {0.9, 0.5, 0.1, 1},  {0.18, 0.25, 0.45, 0.8},
                                         {1, 0.8, 0.3, 0.7}, {0.1, 0.9, 0.5, 0.2}};
  return all;
}

CairoSurface drawnWith(const Color& color, const Rect& rect) {
  CairoSurface record(cairo_recording_surface_create(CAIRO_CONTENT_COLOR_ALPHA, nullptr));
  const CairoContext context(cairo_create(record.get()));
  setSource(context.get(), color);
  cairo_rectangle(context.get(), rect.x, rect.y, rect.width, rect.height);
  cairo_fill(context.get());
  return record;
}

/// One pixel with the paint over the backdrop.
Bytes laidOver(const Color& backdrop, cairo_surface_t* paint, cairo_operator_t how) {
  const CairoSurface pixel(cairo_image_surface_create(CAIRO_FORMAT_ARGB32, 1, 1));
  const CairoContext context(cairo_create(pixel.get()));
  setSource(context.get(), backdrop);
  cairo_paint(context.get());
  cairo_set_operator(context.get(), how);
  cairo_set_source_surface(context.get(), paint, 0, 0);
  cairo_paint(context.get());
  return bytesOfSurface(pixel.get());
}

TEST(OverlayPixels, LaidDownLookAsThePaintDoesLaidDownByOverlay) {
  constexpr Rect pixel = {0, 0, 1, 1};
  for (const Color& below : colors()) {
    for (const Color& color : colors()) {
      const CairoSurface paint = drawnWith(color, pixel), backdrop = drawnWith(below, pixel);
      const CairoSurface pixels = overlaid(paint.get(), backdrop.get(), pixel);
      const Bytes normal = laidOver(below, pixels.get(), CAIRO_OPERATOR_OVER);
      const Bytes overlay = laidOver(below, paint.get(), CAIRO_OPERATOR_OVERLAY);
      for (std::size_t i = 0; i < normal.size(); ++i) {
        EXPECT_NEAR(normal[i], overlay[i], 1) << color.text() << " over " << below.text();
      }
    }
  }
}

TEST(OverlayPixels, AreThoseOfTheAreaFourAPoint) {
  const CairoSurface paint = drawnWith(Color::withWhite(0.5, 1), {10.5, 20, 2, 2});
  const CairoSurface backdrop = drawnWith(Color::withWhite(0.4, 1), {0, 0, 100, 20.25});
  const Bytes bytes = bytesOfSurface(overlaid(paint.get(), backdrop.get(), {10, 20, 3, 2}).get());
  ASSERT_EQ(bytes.size(), 4U * 12 * 8);
  const auto pixel = [&](std::size_t x, std::size_t y) {
    const auto first = bytes.begin() + static_cast<std::ptrdiff_t>(4 * (12 * y + x));
    return Bytes(first, first + 4);
  };
  EXPECT_EQ(pixel(1, 0), (Bytes{0, 0, 0, 0}));
  EXPECT_EQ(pixel(2, 0), (Bytes{102, 102, 102, 255})) << "2 · 0.4 · 0.5";
  EXPECT_EQ(pixel(9, 1), (Bytes{128, 128, 128, 255})) << "beside the backdrop";
  EXPECT_EQ(pixel(10, 1), (Bytes{0, 0, 0, 0}));
}

}  // namespace
}  // namespace velmora
