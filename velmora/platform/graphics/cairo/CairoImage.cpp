#include <velmora/platform/graphics/cairo/CairoImage.h>

#include <cstddef>
#include <memory>
#include <string>
#include <utility>

#include <velmora/platform/graphics/cairo/CairoHandles.h>

namespace [[gnu::visibility("hidden")]] velmora {
namespace {

std::uint32_t packed(const std::uint8_t* rgba) {
  return static_cast<std::uint32_t>(rgba[3]) << 24 | static_cast<std::uint32_t>(rgba[0]) << 16 |
         static_cast<std::uint32_t>(rgba[1]) << 8 | rgba[2];
}

void unpack(std::uint32_t pixel, std::uint8_t* rgba) {
  rgba[0] = static_cast<std::uint8_t>(pixel >> 16);
  rgba[1] = static_cast<std::uint8_t>(pixel >> 8);
  rgba[2] = static_cast<std::uint8_t>(pixel);
  rgba[3] = static_cast<std::uint8_t>(pixel >> 24);
}

/// A PDF or SVG holds what has the same name once, however often and on whichever page it is drawn.
void setName(cairo_surface_t* surface, const Image& image) {
  auto name = std::make_unique<std::string>("image " + std::to_string(image.serial()));
  const auto* const bytes = reinterpret_cast<const unsigned char*>(name->data());
  const auto release = [](void* text) { delete static_cast<std::string*>(text); };
  if (cairo_surface_set_mime_data(surface, CAIRO_MIME_TYPE_UNIQUE_ID, bytes, name->size(), release,
                                  name.get()) == CAIRO_STATUS_SUCCESS)
    static_cast<void>(name.release());
}

/// The image as a surface; none if it is damaged.
CairoSurface makeSurfaceOf(const Image& image) {
  const PixelBytes& pixels = image.pixels();
  if (pixels.empty()) return nullptr;
  const int width = static_cast<int>(image.pixelSize().width),
            height = static_cast<int>(image.pixelSize().height);
  CairoSurface surface(cairo_image_surface_create(CAIRO_FORMAT_ARGB32, width, height));
  if (cairo_surface_status(surface.get()) != CAIRO_STATUS_SUCCESS) return surface;
  const std::size_t rowSize = static_cast<std::size_t>(width) * 4;
  for (int y = 0; y < height; ++y) {
    setRow(surface.get(), y, pixels.data() + rowSize * static_cast<std::size_t>(y));
  }
  cairo_surface_mark_dirty(surface.get());
  setName(surface.get(), image);
  return surface;
}

/// The same, kept until another image is drawn in the thread: records of drawing then share its pixels.
cairo_surface_t* surfaceOf(const Image& image) {
  struct Kept {
    std::uint64_t serial = 0;
    CairoSurface surface;
  };
  thread_local Kept kept;
  if (!kept.surface || kept.serial != image.serial()) kept = {image.serial(), makeSurfaceOf(image)};
  return kept.surface.get();
}

}  // namespace

void paintImage(cairo_t* context, const Image& image, const Rect& rect, double alpha) {
  cairo_surface_t* const surface = surfaceOf(image);
  if (surface == nullptr) return;
  cairo_save(context);
  cairo_rectangle(context, rect.x, rect.y, rect.width, rect.height);
  cairo_clip(context);
  cairo_translate(context, rect.x, rect.y);
  cairo_scale(context, rect.width / static_cast<double>(image.pixelSize().width),
              rect.height / static_cast<double>(image.pixelSize().height));
  cairo_set_source_surface(context, surface, 0, 0);
  // Edges of pixels must not fade; a PDF has no such edges, and would hold a copy as large as the page.
  const bool isRecord =
      cairo_surface_get_type(cairo_get_group_target(context)) == CAIRO_SURFACE_TYPE_RECORDING;
  if (!isRecord) cairo_pattern_set_extend(cairo_get_source(context), CAIRO_EXTEND_PAD);
  cairo_paint_with_alpha(context, alpha);
  cairo_restore(context);
}

std::span<std::uint32_t> rowOf(cairo_surface_t* surface, int y) {
  unsigned char* const start = cairo_image_surface_get_data(surface) +
                               static_cast<std::ptrdiff_t>(y) * cairo_image_surface_get_stride(surface);
  return {reinterpret_cast<std::uint32_t*>(start),
          static_cast<std::size_t>(cairo_image_surface_get_width(surface))};
}

void copyRow(cairo_surface_t* surface, int y, std::uint8_t* rgba) {
  for (const std::uint32_t pixel : rowOf(surface, y)) unpack(pixel, std::exchange(rgba, rgba + 4));
}

void setRow(cairo_surface_t* surface, int y, const std::uint8_t* rgba) {
  for (std::uint32_t& pixel : rowOf(surface, y)) pixel = packed(std::exchange(rgba, rgba + 4));
}

std::vector<std::uint8_t> bytesOfSurface(cairo_surface_t* surface) {
  cairo_surface_flush(surface);
  const std::size_t rowSize = static_cast<std::size_t>(cairo_image_surface_get_width(surface)) * 4;
  const int height = cairo_image_surface_get_height(surface);
  std::vector<std::uint8_t> bytes(rowSize * static_cast<std::size_t>(height));
  for (int y = 0; y < height; ++y) copyRow(surface, y, bytes.data() + rowSize * static_cast<std::size_t>(y));
  return bytes;
}

}  // namespace velmora
