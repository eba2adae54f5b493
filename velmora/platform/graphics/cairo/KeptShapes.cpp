#include <velmora/platform/graphics/cairo/KeptShapes.h>

#include <utility>

#include <velmora/platform/graphics/cairo/CairoFrame.h>
#include <velmora/platform/graphics/cairo/ShapeCache.h>

namespace [[gnu::visibility("hidden")]] velmora {
namespace {

/// In pixels; the cache has room for many shapes of this size.
constexpr double largestKeptArea = 512 * 512;

/// Where clips consist of parts, a group may be smaller than what was asked for, and begin further in.
void countOffsetFrom(cairo_surface_t* group, Point origin) {
  const double scale = deviceScale(group);
  Point offset;
  cairo_surface_get_device_offset(group, &offset.x, &offset.y);
  cairo_surface_set_device_offset(group, offset.x + origin.x * scale, offset.y + origin.y * scale);
}

/// Shapes that lie whole pixels apart, with the clips that touch them, share their key.
ShapeKey keyInPlace(cairo_t* context, const Shape& shape, const DrawingStates::Clip* clip,
                    const Rect& pixels) {
  const Point origin = pixels.origin();
  cairo_matrix_t frame = frameOf(context);
  ShapeKey key = shape.key;
  key.add(cairo_get_tolerance(context));
  key.add(deviceScale(cairo_get_group_target(context)));
  key.add(pixels.width);
  key.add(pixels.height);
  if (shape.outline) {
    key.add(*shape.outline, origin);
    frame.x0 = origin.x, frame.y0 = origin.y;  // the outline says where it lies
  }
  key.add(frame, origin);
  for (; clip != nullptr; clip = clip->outer.get()) {
    const bool showsAll = clip->rectangle && clip->rectangle->intersection(pixels) == pixels;
    if (!showsAll) key.add(clip->outline, origin);
  }
  return key;
}

CairoSurface makePixels(cairo_t* context, const Shape& shape, const Rect& pixels) {
  const cairo_matrix_t frame = frameOf(context);
  cairo_save(context);
  cairo_identity_matrix(context);
  cairo_rectangle(context, pixels.x, pixels.y, pixels.width, pixels.height);
  cairo_clip(context);
  cairo_set_matrix(context, &frame);
  cairo_push_group_with_content(context, shape.content);
  CairoSurface made(cairo_surface_reference(cairo_get_group_target(context)));
  cairo_set_source_rgba(context, 0, 0, 0, 1);
  cairo_set_operator(context, CAIRO_OPERATOR_OVER);
  shape.draw();
  cairo_pattern_destroy(cairo_pop_group(context));
  cairo_restore(context);
  countOffsetFrom(made.get(), pixels.origin());
  return made;
}

}  // namespace

void drawKept(cairo_t* context, const Shape& shape, const DrawingStates::Clip* clip) {
  const Rect pixels = visiblePixels(context, shape.box);
  if (pixels.isEmpty()) return;
  if (!(pixels.width * pixels.height <= largestKeptArea)) return shape.draw();

  ShapeCache& cache = ShapeCache::ofThread();
  const ShapeKey key = keyInPlace(context, shape, clip, pixels);
  if (cairo_surface_t* kept = cache.find(key)) return layDown(context, kept, shape.content, pixels.origin());
  CairoSurface made = makePixels(context, shape, pixels);
  if (cairo_status(context) != CAIRO_STATUS_SUCCESS) return;
  layDown(context, cache.keep(key, std::move(made)), shape.content, pixels.origin());
}

void layDown(cairo_t* context, cairo_surface_t* pixels, cairo_content_t content, Point topLeft) {
  cairo_save(context);
  cairo_identity_matrix(context);
  cairo_reset_clip(context);
  if (content == CAIRO_CONTENT_ALPHA) {
    cairo_mask_surface(context, pixels, topLeft.x, topLeft.y);
  } else {
    cairo_set_source_surface(context, pixels, topLeft.x, topLeft.y);
    cairo_paint(context);
  }
  cairo_restore(context);
}

}  // namespace velmora
