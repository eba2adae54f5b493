#pragma once

#include <cairo.h>

#include <iosfwd>

#include <velmora/platform/graphics/Color.h>

namespace [[gnu::visibility("hidden")]] velmora {

/// Writes the pixels of an image surface over the background as a PNG, without alpha where all are opaque.
/// The surface stays as it is.
cairo_status_t writePng(cairo_surface_t* pixels, const Color& background, std::ostream& output);

}  // namespace velmora
