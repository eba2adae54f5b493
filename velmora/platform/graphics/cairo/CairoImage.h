#pragma once

#include <cairo.h>

#include <cstdint>
#include <vector>

#include <velmora/platform/graphics/Geometry.h>
#include <velmora/platform/resources/Image.h>

namespace [[gnu::visibility("hidden")]] velmora {

/// Paints the whole image into the rectangle with the context's operator. It changes the frame and the
/// source.
void paintImage(cairo_t* context, const Image& image, const Rect& rect, double alpha);

/// The pixels of an image surface as red, green, blue, alpha of 8 bits, premultiplied.
std::vector<std::uint8_t> bytesOfSurface(cairo_surface_t* surface);

}  // namespace velmora
