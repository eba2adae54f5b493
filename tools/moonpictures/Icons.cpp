#include "Icons.h"

#include <array>
#include <cmath>

#include "Geometry.h"

namespace moonpictures {
namespace {

constexpr int iconSize = 60;        // pixels
constexpr int samplesPerPixel = 8;  // along each side

/// A point of the icon in pixels, from the top left.
struct Point {
  double x, y;
};

bool isInDisc(Point p, Point centre, double radius) {
  return std::hypot(p.x - centre.x, p.y - centre.y) < radius;
}

/// On a straight stroke with round ends.
bool isOnStroke(Point p, Point from, Point to, double width) {
  const double dx = to.x - from.x, dy = to.y - from.y;
  const double share = ((p.x - from.x) * dx + (p.y - from.y) * dy) / (dx * dx + dy * dy);
  const double nearest = std::fmin(1, std::fmax(0, share));
  return isInDisc(p, {from.x + nearest * dx, from.y + nearest * dy}, width / 2);
}

constexpr double horizon = 47;
constexpr double strokeWidth = 4.4;

bool isOnHorizon(Point p) { return isOnStroke(p, {5, horizon + 5}, {55, horizon + 5}, strokeWidth); }

bool isOnSun(Point p) {
  constexpr Point centre{30, horizon - 1};
  if (p.y > horizon) return false;
  if (isInDisc(p, centre, 12.5)) return true;
  for (const double angle : {12.0, 51.0, 129.0, 168.0}) {
    const double x = std::cos(angle * degree), y = -std::sin(angle * degree);
    if (isOnStroke(p, {centre.x + 18 * x, centre.y + 18 * y}, {centre.x + 24 * x, centre.y + 24 * y},
                   strokeWidth))
      return true;
  }
  return false;
}

bool isOnMoon(Point p) { return isInDisc(p, {20.5, 28.5}, 16.5) && !isInDisc(p, {28.5, 23.5}, 14); }

bool isOnArrow(Point p, double x, double top, double bottom, Crossing crossing) {
  const double tip = crossing == Crossing::rise ? top : bottom;
  const double barbs = crossing == Crossing::rise ? top + 7.5 : bottom - 7.5;
  return isOnStroke(p, {x, top}, {x, bottom}, strokeWidth) ||
         isOnStroke(p, {x, tip}, {x - 7.5, barbs}, strokeWidth) ||
         isOnStroke(p, {x, tip}, {x + 7.5, barbs}, strokeWidth);
}

bool isOnIcon(Point p, Body body, Crossing crossing) {
  if (isOnHorizon(p)) return true;
  if (body == Body::sun) return isOnSun(p) || isOnArrow(p, 30, 6, 24, crossing);
  return isOnMoon(p) || isOnArrow(p, 47, 14, 38, crossing);
}

/// Share of the pixel that the icon covers.
double coverage(int column, int row, Body body, Crossing crossing) {
  int inside = 0;
  for (int i = 0; i < samplesPerPixel * samplesPerPixel; ++i) {
    const Point p{column + (i % samplesPerPixel + 0.5) / samplesPerPixel,
                  row + (i / samplesPerPixel + 0.5) / samplesPerPixel};
    inside += isOnIcon(p, body, crossing);
  }
  return inside / double{samplesPerPixel * samplesPerPixel};
}

}  // namespace

Picture iconOf(Body body, Crossing crossing) {
  constexpr std::array<std::uint8_t, 3> sunColour{255, 205, 92}, moonColour{236, 232, 250};
  const auto& colour = body == Body::sun ? sunColour : moonColour;
  Picture icon{iconSize, iconSize, {}};
  for (int row = 0; row < iconSize; ++row) {
    for (int column = 0; column < iconSize; ++column) {
      icon.pixels.insert(icon.pixels.end(), colour.begin(), colour.end());
      icon.pixels.push_back(
          static_cast<std::uint8_t>(std::lround(255 * coverage(column, row, body, crossing))));
    }
  }
  return icon;
}

}  // namespace moonpictures
