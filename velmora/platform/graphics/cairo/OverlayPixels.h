#pragma once

#include <velmora/platform/graphics/Geometry.h>
#include <velmora/platform/graphics/cairo/CairoHandles.h>

namespace [[gnu::visibility("hidden")]] velmora {

/// As fine as print.
constexpr double overlayPixelsAPoint = 4;

/// What overlay makes of the paint over the backdrop within the area, as pixels that look the same when they
/// are laid over the backdrop as normal. For SVG, which has no overlay, and for PDF, whose own came out in
/// other colours than those of a PNG.
CairoSurface overlaid(cairo_surface_t* paint, cairo_surface_t* backdrop, const Rect& area);

}  // namespace velmora
