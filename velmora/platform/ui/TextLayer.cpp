#include <velmora/platform/ui/TextLayer.h>

namespace velmora {

void TextLayer::draw(Canvas& canvas) const {
  if (!_attributedText.isEmpty()) canvas.drawText(_attributedText, bounds().origin());
}

}  // namespace velmora
