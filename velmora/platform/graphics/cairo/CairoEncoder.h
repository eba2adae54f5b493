#pragma once

#include <iosfwd>

#include <velmora/platform/graphics/Color.h>
#include <velmora/platform/graphics/Geometry.h>
#include <velmora/platform/graphics/cairo/CairoCanvas.h>
#include <velmora/platform/graphics/cairo/CairoHandles.h>

namespace [[gnu::visibility("hidden")]] velmora {

/// What a picture is drawn on: pixels for a PNG, else a record of the drawing. In an error state when there
/// is no memory for it.
CairoSurface makeSurface(PictureFormat format, Size size, double scale);

/// How many pixels the page of a vector picture of the size has where it cannot stay vector.
double pixelsOfPage(Size size);

/// Writes what was drawn on such a surface over the background, as a picture of the size in points.
cairo_status_t encode(PictureFormat format, cairo_surface_t* drawn, Size size, const Color& background,
                      std::ostream& output);

}  // namespace velmora
