#pragma once

#include <functional>
#include <optional>

#include <velmora/platform/graphics/cairo/CairoHandles.h>
#include <velmora/platform/graphics/cairo/DrawingStates.h>
#include <velmora/platform/graphics/cairo/ShapeKey.h>

namespace [[gnu::visibility("hidden")]] velmora {

/// What covers pixels: a figure, glyphs or an image.
struct Shape {
  ShapeKey key;                            ///< distinguishes it from others of its outline, frame and clips
  std::optional<OutlineInPixels> outline;  ///< of a figure
  Rect box;                                ///< holds all of it
  cairo_content_t content;     ///< with colours of its own, or to be drawn with the paint that is set
  std::function<void()> draw;  ///< onto the context
};

/// Draws the shape from its pixels, which the thread's cache keeps; a large shape is drawn directly. The clip
/// is the context's innermost one.
void drawKept(cairo_t* context, const Shape& shape, const DrawingStates::Clip* clip);

/// Lays pixels down with the operator that is set, as they are or, if they are coverage alone, with the
/// paint. The clip is part of the pixels.
void layDown(cairo_t* context, cairo_surface_t* pixels, cairo_content_t content, Point topLeft);

}  // namespace velmora
