#pragma once

#include <iosfwd>
#include <vector>

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

/// Writes what was drawn on such surfaces over the background, as a picture of the size in points: the pages
/// of a PDF, one of any other format.
cairo_status_t encode(PictureFormat format, const std::vector<cairo_surface_t*>& pages, Size size,
                      const Color& background, std::ostream& output);

}  // namespace velmora
