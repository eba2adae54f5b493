#include <velmora/platform/ui/ShapeLayer.h>

namespace velmora {

void ShapeLayer::draw(Canvas& canvas) const {
  if (_fillColor.alpha > 0) {
    canvas.setFillColor(_fillColor);
    canvas.fill(_path);
  }
  if (_strokeColor.alpha > 0) {
    canvas.setStrokeColor(_strokeColor);
    canvas.setLineWidth(_lineWidth);
    canvas.stroke(_path);
  }
}

}  // namespace velmora
