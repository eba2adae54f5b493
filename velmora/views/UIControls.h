#pragma once

#include <velmora/platform/graphics/Geometry.h>

namespace velmora {

/// How views mirror what they draw where the layout runs from right to left.
class UIControls {
 public:
  /// Whether layouts run from right to left: what the host forces, else the direction of the locale.
  static bool isUserInterfaceRightToLeft();

  /// The rectangle as it stands in the current direction: unchanged from left to right, else as far from the
  /// container's right edge as it was from its left. Size and y never change.
  static Rect rectForCurrentLayoutDirection(Rect rect, Rect inContainer);

  /// The same for a point.
  static Point pointForCurrentLayoutDirection(Point point, Rect inContainer);
};

}  // namespace velmora
