#include <velmora/platform/graphics/Canvas.h>

namespace velmora {

void Canvas::strokeLine(Point from, Point to) {
  Path line;
  line.moveTo(from);
  line.lineTo(to);
  stroke(line);
}

}  // namespace velmora
