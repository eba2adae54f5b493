#include <velmora/platform/graphics/cairo/CairoFrame.h>

#include <algorithm>
#include <array>
#include <cmath>

namespace [[gnu::visibility("hidden")]] velmora {
namespace {

/// The whole pixels that the rectangle of the current frame touches.
Rect inPixels(cairo_t* context, const Rect& rect) {
  Path corners;
  const std::array<Point, 4> points = {{{rect.minX(), rect.minY()},
                                        {rect.maxX(), rect.minY()},
                                        {rect.maxX(), rect.maxY()},
                                        {rect.minX(), rect.maxY()}}};
  for (Point point : points) {
    cairo_user_to_device(context, &point.x, &point.y);
    corners.moveTo(point);
  }
  const Rect box = *corners.boundingBox();
  const double left = std::floor(box.minX()), top = std::floor(box.minY());
  return {left, top, std::ceil(box.maxX()) - left, std::ceil(box.maxY()) - top};
}

}  // namespace

cairo_matrix_t frameOf(cairo_t* context) {
  cairo_matrix_t frame;
  cairo_get_matrix(context, &frame);
  return frame;
}

double deviceScale(cairo_surface_t* surface) {
  double x = 1, y = 1;
  cairo_surface_get_device_scale(surface, &x, &y);
  return x;
}

std::optional<cairo_matrix_t> frameAfter(cairo_t* context, const AffineTransform& t) {
  const cairo_matrix_t step = {t.a, t.b, t.c, t.d, t.tx, t.ty};
  cairo_matrix_t frame = frameOf(context);
  cairo_matrix_multiply(&frame, &step, &frame);
  const double area = frame.xx * frame.yy - frame.xy * frame.yx;
  if (area == 0 || !std::isfinite(area) || !std::isfinite(frame.x0) || !std::isfinite(frame.y0)) return {};
  return frame;
}

std::optional<Rect> uprightRectangle(const cairo_matrix_t& frame, const Path& path) {
  const auto box = path.boundingBox();
  if (!box || path != Path::rect(*box) || frame.xy != 0 || frame.yx != 0) return std::nullopt;
  const auto [left, right] = std::minmax({frame.xx * box->x, frame.xx * (box->x + box->width)});
  const auto [top, bottom] = std::minmax({frame.yy * box->y, frame.yy * (box->y + box->height)});
  return Rect{frame.x0 + left, frame.y0 + top, right - left, bottom - top};
}

Rect visiblePixels(cairo_t* context) {
  const cairo_matrix_t frame = frameOf(context);
  double left = 0, top = 0, right = 0, bottom = 0;
  cairo_identity_matrix(context);
  cairo_clip_extents(context, &left, &top, &right, &bottom);
  cairo_set_matrix(context, &frame);
  return {left, top, right - left, bottom - top};
}

Rect visiblePixels(cairo_t* context, const Rect& rect) {
  return visiblePixels(context).intersection(inPixels(context, rect));
}

}  // namespace velmora
