#include <velmora/platform/graphics/cairo/ShapeKey.h>

namespace [[gnu::visibility("hidden")]] velmora {

void ShapeKey::add(const Rect& rect) {
  for (const double number : {rect.x, rect.y, rect.width, rect.height}) add(number);
}

void ShapeKey::add(const OutlineInPixels& outline, Point origin) {
  add(std::uint64_t{outline.size()});
  for (std::size_t header = 0; header < outline.size();) {
    const auto& [type, length] = outline[header].header;
    add(static_cast<std::uint64_t>(type));
    const std::size_t end = header + static_cast<std::size_t>(length);
    for (std::size_t i = header + 1; i < end; ++i) {
      add(outline[i].point.x - origin.x);
      add(outline[i].point.y - origin.y);
    }
    header = end;
  }
}

void ShapeKey::add(const cairo_matrix_t& frame, Point origin) {
  for (const double number :
       {frame.xx, frame.yx, frame.xy, frame.yy, frame.x0 - origin.x, frame.y0 - origin.y}) {
    add(number);
  }
}

}  // namespace velmora
