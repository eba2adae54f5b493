#pragma once

#include <cairo.h>

#include <iosfwd>

namespace [[gnu::visibility("hidden")]] velmora {

/// Writes the pixels of an image surface as a PNG, without alpha where all are opaque.
cairo_status_t writePng(cairo_surface_t* pixels, std::ostream& output);

}  // namespace velmora
