#include <velmora/platform/graphics/cairo/CairoEncoder.h>

#include <cairo-pdf.h>
#include <cairo-svg.h>

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <ostream>

#include <velmora/platform/graphics/cairo/CairoColor.h>
#include <velmora/platform/graphics/cairo/LargePages.h>
#include <velmora/platform/graphics/cairo/PngWriter.h>

namespace [[gnu::visibility("hidden")]] velmora {
namespace {

cairo_status_t writeBytes(void* output, const unsigned char* bytes, unsigned int count) {
  auto& stream = *static_cast<std::ostream*>(output);
  stream.write(reinterpret_cast<const char*>(bytes), static_cast<std::streamsize>(count));
  return stream ? CAIRO_STATUS_SUCCESS : CAIRO_STATUS_WRITE_ERROR;
}

constexpr double pointsAnInch = 72;

/// In dots an inch of 72 points, of a page that cannot stay vector: as fine as print, but no more pixels a
/// side than a PNG may have.
double resolutionOfPixels(Size size) {
  constexpr double print = 300;
  const double longest = std::max(size.width, size.height);
  return std::min(print, pointsAnInch * static_cast<double>(CairoCanvas::maximumSide) / longest);
}

CairoSurface makeDocument(PictureFormat format, Size size, std::ostream& output) {
  if (format == PictureFormat::pdf) {
    return CairoSurface(cairo_pdf_surface_create_for_stream(writeBytes, &output, size.width, size.height));
  }
  CairoSurface image(cairo_svg_surface_create_for_stream(writeBytes, &output, size.width, size.height));
  cairo_svg_surface_set_document_unit(image.get(), CAIRO_SVG_UNIT_PX);
  return image;
}

void paintPage(cairo_t* context, cairo_surface_t* recorded, const Color& background) {
  if (background.alpha > 0) {
    setSource(context, background);
    cairo_paint(context);
  }
  cairo_set_source_surface(context, recorded, 0, 0);
  cairo_paint(context);
}

cairo_status_t encodePages(PictureFormat format, const std::vector<cairo_surface_t*>& recorded, Size size,
                           const Color& background, std::ostream& output) {
  const CairoSurface document = makeDocument(format, size, output);
  const double resolution = resolutionOfPixels(size);
  cairo_surface_set_fallback_resolution(document.get(), resolution, resolution);
  CairoContext context(cairo_create(document.get()));
  for (cairo_surface_t* const page : recorded) {
    paintPage(context.get(), page, background);
    if (format == PictureFormat::pdf) cairo_show_page(context.get());
  }
  const cairo_status_t status = cairo_status(context.get());
  context.reset();
  cairo_surface_finish(document.get());
  return status != CAIRO_STATUS_SUCCESS ? status : cairo_surface_status(document.get());
}

}  // namespace

CairoSurface makeSurface(PictureFormat format, Size size, double scale) {
  if (format != PictureFormat::png) {
    const cairo_rectangle_t extents = {0, 0, size.width, size.height};
    return CairoSurface(cairo_recording_surface_create(CAIRO_CONTENT_COLOR_ALPHA, &extents));
  }
  CairoSurface pixels(cairo_image_surface_create(CAIRO_FORMAT_ARGB32,
                                                 static_cast<int>(std::lround(size.width * scale)),
                                                 static_cast<int>(std::lround(size.height * scale))));
  preferLargePages(cairo_image_surface_get_data(pixels.get()),
                   static_cast<std::size_t>(cairo_image_surface_get_stride(pixels.get())) *
                       static_cast<std::size_t>(cairo_image_surface_get_height(pixels.get())));
  return pixels;
}

double pixelsOfPage(Size size) {
  const double pixelsAPoint = resolutionOfPixels(size) / pointsAnInch;
  return size.width * pixelsAPoint * size.height * pixelsAPoint;
}

cairo_status_t encode(PictureFormat format, const std::vector<cairo_surface_t*>& pages, Size size,
                      const Color& background, std::ostream& output) {
  return format == PictureFormat::png ? writePng(pages.front(), background, output)
                                      : encodePages(format, pages, size, background, output);
}

}  // namespace velmora
