#pragma once

#include <cairo.h>

#include <optional>

#include <velmora/platform/graphics/Geometry.h>
#include <velmora/platform/graphics/Path.h>

namespace [[gnu::visibility("hidden")]] velmora {

cairo_matrix_t frameOf(cairo_t* context);

/// How many pixels make one unit of the surface: two on many screens, on which "pixels" below are such units.
double deviceScale(cairo_surface_t* surface);

/// The frame that the step leads to from the current one; none if it has no area or is not finite.
std::optional<cairo_matrix_t> frameAfter(cairo_t* context, const AffineTransform& step);

/// The pixels that the path holds in the frame, if it is a rectangle with upright edges.
std::optional<Rect> uprightRectangle(const cairo_matrix_t& frame, const Path& path);

/// The whole pixels that the clip lets show, or a rectangle around them.
Rect visiblePixels(cairo_t* context);

/// Those of them that the rectangle of the current frame touches.
Rect visiblePixels(cairo_t* context, const Rect& rect);

}  // namespace velmora
