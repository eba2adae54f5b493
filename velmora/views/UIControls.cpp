#include <velmora/views/UIControls.h>

#include <velmora/platform/ui/Device.h>

namespace velmora {

bool UIControls::isUserInterfaceRightToLeft() {
  return Device::current().layoutDirection() == LayoutDirection::rightToLeft;
}

Rect UIControls::rectForCurrentLayoutDirection(Rect rect, Rect inContainer) {
  if (!isUserInterfaceRightToLeft()) return rect;
  const double x = inContainer.x + ((inContainer.x + inContainer.width) - (rect.x + rect.width));
  return {x, rect.y, rect.width, rect.height};
}

Point UIControls::pointForCurrentLayoutDirection(Point point, Rect inContainer) {
  if (!isUserInterfaceRightToLeft()) return point;
  return {inContainer.x + ((inContainer.x + inContainer.width) - point.x), point.y};
}

}  // namespace velmora
