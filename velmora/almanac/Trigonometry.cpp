#include <velmora/almanac/Trigonometry.h>

#include <cmath>

namespace [[gnu::visibility("hidden")]] velmora {
namespace almanac {

using ephemeris::radiansOfTurn;

Complex<double> directionAt(double angle) { return ephemeris::cosineAndSine(angle * (1 / radiansOfTurn)); }

double sine(double angle) { return directionAt(angle).im; }

double cosine(double angle) { return directionAt(angle).re; }

double arcsine(double sine) { return arctangent(sine, std::sqrt((1 - sine) * (1 + sine))); }

double arccosine(double cosine) { return arctangent(std::sqrt((1 - cosine) * (1 + cosine)), cosine); }

double arctangent(double y, double x) { return ephemeris::angleOf(y, x); }

double withinHalfTurn(double angle) {
  return angle - ephemeris::nearestWhole(angle * (1 / radiansOfTurn)) * radiansOfTurn;
}

}  // namespace almanac
}  // namespace velmora
