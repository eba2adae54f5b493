#include <velmora/platform/graphics/cairo/ShapeKey.h>

#include <type_traits>
#include <variant>
#include <vector>

namespace velmora {

void ShapeKey::add(const Rect& rect) {
  for (const double number : {rect.x, rect.y, rect.width, rect.height}) add(number);
}

void ShapeKey::add(const Path& path) {
  const std::vector<Path::Element> elements = path.elements();
  add(elements.size());
  for (const Path::Element& element : elements) {
    _bytes += static_cast<char>(element.index());
    std::visit(
        [this](const auto& part) {
          if constexpr (!std::is_empty_v<std::decay_t<decltype(part)>>) append(&part, sizeof part);
        },
        element);
  }
}

void ShapeKey::add(const cairo_matrix_t& frame, Point origin) {
  for (const double number :
       {frame.xx, frame.yx, frame.xy, frame.yy, frame.x0 - origin.x, frame.y0 - origin.y}) {
    add(number);
  }
}

}  // namespace velmora
