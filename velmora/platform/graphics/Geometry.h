#pragma once

#include <algorithm>
#include <cmath>
#include <optional>

namespace velmora {

/// A place in points; x grows to the right, y downwards.
struct Point {
  /// Coordinates.
  double x = 0;
  double y = 0;

  friend bool operator==(const Point&, const Point&) = default;
  /// Sum and difference of coordinates.
  friend Point operator+(Point a, Point b) { return {a.x + b.x, a.y + b.y}; }
  friend Point operator-(Point a, Point b) { return {a.x - b.x, a.y - b.y}; }
};

/// A width and a height in points.
struct Size {
  /// Either may be negative.
  double width = 0;
  double height = 0;

  friend bool operator==(const Size&, const Size&) = default;
};

/// What is left free along the edges of a rectangle, in points.
struct EdgeInsets {
  /// At each edge.
  double top = 0;
  double left = 0;
  double bottom = 0;
  double right = 0;

  friend bool operator==(const EdgeInsets&, const EdgeInsets&) = default;
};

/// A rectangle: one corner and the distance to the opposite one. Width and height may be negative; the area
/// is then the same as that of the standardised rectangle, and so are the edges below.
struct Rect {
  /// The corner, and the distance to the opposite one.
  double x = 0;
  double y = 0;
  double width = 0;
  double height = 0;

  /// The same two.
  Point origin() const { return {x, y}; }
  Size size() const { return {width, height}; }

  /// Edges and middle of the area.
  double minX() const { return std::min(x, x + width); }
  double midX() const { return x + width * 0.5; }
  double maxX() const { return std::max(x, x + width); }
  double minY() const { return std::min(y, y + height); }
  double midY() const { return y + height * 0.5; }
  double maxY() const { return std::max(y, y + height); }
  Point center() const { return {midX(), midY()}; }

  /// Whether it covers no area.
  bool isEmpty() const { return width == 0 || height == 0; }

  /// The same area with its top left corner as origin and absolute width and height.
  Rect standardised() const { return {minX(), minY(), std::abs(width), std::abs(height)}; }

  /// The standardised rectangle with its left and right edges moved inwards by dx, its upper and lower ones
  /// by dy (negative: outwards). Where nothing remains, the size is 0, in the middle.
  Rect inset(double dx, double dy) const {
    const double remainingWidth = std::max(0.0, std::abs(width) - 2 * dx);
    const double remainingHeight = std::max(0.0, std::abs(height) - 2 * dy);
    return {midX() - remainingWidth * 0.5, midY() - remainingHeight * 0.5, remainingWidth, remainingHeight};
  }

  /// The area that both cover; of size 0 where there is none.
  Rect intersection(const Rect& other) const {
    const double left = std::max(minX(), other.minX()), right = std::min(maxX(), other.maxX());
    const double top = std::max(minY(), other.minY()), bottom = std::min(maxY(), other.maxY());
    return {left, top, std::max(0.0, right - left), std::max(0.0, bottom - top)};
  }

  /// Whether the point lies inside; the left and upper edges belong to the rectangle, the others do not.
  bool contains(Point point) const {
    return point.x >= minX() && point.x < maxX() && point.y >= minY() && point.y < maxY();
  }

  friend bool operator==(const Rect&, const Rect&) = default;
};

/// An affine map of the plane: x' = a x + c y + tx, y' = b x + d y + ty. A default one is the identity.
/// Angles are in radians and turn clockwise as seen, since y grows downwards.
struct AffineTransform {
  /// The six numbers of the map.
  double a = 1;
  double b = 0;
  double c = 0;
  double d = 1;
  double tx = 0;
  double ty = 0;

  /// The map that changes nothing, a shift, a turn, a scale.
  static AffineTransform identity() { return {}; }
  static AffineTransform translation(double dx, double dy) { return {1, 0, 0, 1, dx, dy}; }
  static AffineTransform rotation(double angle) {
    return {std::cos(angle), std::sin(angle), -std::sin(angle), std::cos(angle), 0, 0};
  }
  static AffineTransform scaling(double sx, double sy) { return {sx, 0, 0, sy, 0, 0}; }

  /// This transform with a shift, turn or scale done before it, as drawing inside a shifted, turned or scaled
  /// frame does.
  AffineTransform translated(double dx, double dy) const { return translation(dx, dy).concat(*this); }
  AffineTransform rotated(double angle) const { return rotation(angle).concat(*this); }
  AffineTransform scaled(double sx, double sy) const { return scaling(sx, sy).concat(*this); }

  /// First this transform, then the other.
  AffineTransform concat(const AffineTransform& next) const {
    const Point origin = next.apply({tx, ty});
    return {a * next.a + b * next.c,
            a * next.b + b * next.d,
            c * next.a + d * next.c,
            c * next.b + d * next.d,
            origin.x,
            origin.y};
  }

  /// Where the point goes.
  Point apply(Point point) const { return {a * point.x + c * point.y + tx, b * point.x + d * point.y + ty}; }

  /// Whether every point stays.
  bool isIdentity() const { return *this == AffineTransform(); }

  /// The transform that undoes this one; none for one that squeezes the plane to a line or a point.
  std::optional<AffineTransform> inverted() const {
    const double area = a * d - b * c;
    if (area == 0 || !std::isfinite(area)) return std::nullopt;
    return AffineTransform{
        d / area, -b / area, -c / area, a / area, (c * ty - d * tx) / area, (b * tx - a * ty) / area};
  }

  friend bool operator==(const AffineTransform&, const AffineTransform&) = default;
};

}  // namespace velmora
