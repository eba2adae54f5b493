#pragma once

#include <cmath>
#include <numbers>

#include <velmora/platform/graphics/Geometry.h>

namespace velmora {

constexpr double radiansFromDegrees(double degrees) { return degrees * std::numbers::pi / 180; }

/// Points on circles in view coordinates, which the views that place things on a circle offer as their own.
class CircleGeometry {
 public:
  /// The point of the circle at the angle from the positive x axis; angles turn clockwise as seen, since y
  /// grows downwards.
  static Point pointOnCircleWithCenter(Point center, double angleInRadians, double withRadius) {
    return {center.x + withRadius * std::cos(angleInRadians),
            center.y + withRadius * std::sin(angleInRadians)};
  }

  /// The squared distance of two points.
  static double CGPointDistanceSquared(Point from, Point to) {
    const Point difference = to - from;
    return difference.x * difference.x + difference.y * difference.y;
  }

  /// The distance of two points.
  static double CGPointDistance(Point from, Point to) { return std::sqrt(CGPointDistanceSquared(from, to)); }
};

}  // namespace velmora
