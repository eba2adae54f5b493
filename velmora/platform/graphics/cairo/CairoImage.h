#pragma once

#include <cairo.h>

#include <cstdint>
#include <span>
#include <vector>

#include <velmora/platform/graphics/Geometry.h>
#include <velmora/platform/resources/Image.h>

namespace [[gnu::visibility("hidden")]] velmora {

/// Paints the whole image into the rectangle with the context's operator.
void paintImage(cairo_t* context, const Image& image, const Rect& rect, double alpha);

/// One row of pixels of an image surface of 32 bits, each as one number: alpha in the highest byte, then red,
/// green and blue, premultiplied.
std::span<std::uint32_t> rowOf(cairo_surface_t* surface, int y);

/// One row of pixels of an image surface, each as red, green, blue, alpha of 8 bits, premultiplied.
void copyRow(cairo_surface_t* surface, int y, std::uint8_t* rgba);
void setRow(cairo_surface_t* surface, int y, const std::uint8_t* rgba);

/// The pixels of an image surface as red, green, blue, alpha of 8 bits, premultiplied.
std::vector<std::uint8_t> bytesOfSurface(cairo_surface_t* surface);

}  // namespace velmora
