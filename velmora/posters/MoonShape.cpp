#include <velmora/posters/MoonShape.h>

#include <algorithm>
#include <cmath>
#include <numbers>

#include <velmora/posters/Sheet.h>

namespace [[gnu::visibility("hidden")]] velmora {
namespace {

constexpr double quarterTurn = std::numbers::pi / 2;

constexpr double leastRim = 0.4, rimShare = 0.02;  // of the line around a disc, units and radii

/// How far a quarter of a circle of radius 1 has its control points from its ends.
constexpr double quarterControl = 0.5522847498307936;

/// Points by their way towards the light and to its right, in radii.
struct Frame {
  Point center;
  double radius;
  Point light, right;

  Frame(Point middle, double size, double direction)
      : center(middle),
        radius(size),
        light{std::sin(direction), -std::cos(direction)},
        right{std::cos(direction), std::sin(direction)} {}

  Point at(double towards, double aside) const {
    return {center.x + radius * (towards * light.x + aside * right.x),
            center.y + radius * (towards * light.y + aside * right.y)};
  }
};

/// From one end of the diameter across the light to the other, by way of a point that far towards the light.
void addHalfEllipse(Path& path, const Frame& frame, double towards, double fromAside) {
  constexpr double c = quarterControl;
  path.curveTo(frame.at(towards * c, fromAside), frame.at(towards, fromAside * c), frame.at(towards, 0));
  path.curveTo(frame.at(towards, -fromAside * c), frame.at(towards * c, -fromAside), frame.at(0, -fromAside));
}

Rect squareAround(Point center, double reach) {
  return {center.x - reach, center.y - reach, 2 * reach, 2 * reach};
}

}  // namespace

MoonLight tilted(const almanac::Illumination& moon) {
  return {moon.fraction, -moon.tilt * std::numbers::pi / 180};
}

MoonLight upright(const almanac::Illumination& moon, bool isSouthernHemisphere) {
  return {moon.fraction, moon.isWaxing != isSouthernHemisphere ? quarterTurn : -quarterTurn};
}

Path litPart(Point center, double radius, const MoonLight& light) {
  const Frame frame(center, radius, light.direction);
  Path path;
  path.moveTo(frame.at(0, -1));
  addHalfEllipse(path, frame, 1, -1);
  addHalfEllipse(path, frame, 1 - 2 * light.fraction, 1);
  path.close();
  return path;
}

void drawMoon(Sheet& sheet, Point center, double radius, const MoonLight& light) {
  const Point middle = sheet.onPaper(center);
  Canvas& canvas = sheet.canvas();
  canvas.setFillColor(sheet.palette().moonDark);
  canvas.fillEllipse(squareAround(middle, radius));
  canvas.setFillColor(sheet.palette().moonLit);
  canvas.fill(litPart(middle, radius, light));
  canvas.setStrokeColor(sheet.palette().moonRim);
  canvas.setLineWidth(std::max(leastRim * sheet.unit(), radius * rimShare));
  canvas.strokeEllipse(squareAround(middle, radius));
}

void drawRing(Sheet& sheet, Point center, double radius) {
  const double gap = 1.4 * sheet.unit();
  sheet.canvas().setStrokeColor(sheet.palette().accent);
  sheet.canvas().setLineWidth(1.2 * sheet.unit());
  sheet.canvas().strokeEllipse(squareAround(sheet.onPaper(center), radius + gap));
}

}  // namespace velmora
