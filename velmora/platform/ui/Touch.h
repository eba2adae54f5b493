#pragma once

#include <velmora/platform/graphics/Geometry.h>

namespace velmora {

class View;

/// A finger on the screen.
class Touch {
 public:
  /// The location is in the own coordinates of the topmost view.
  explicit Touch(Point location) : _location(location) {}

  /// Where the finger is in the own coordinates of the view.
  Point locationIn(const View& view) const;

 private:
  Point _location;
};

}  // namespace velmora
