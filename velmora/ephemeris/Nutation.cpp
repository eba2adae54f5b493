#include <cmath>
#include <numbers>

#include <velmora/ephemeris/TimeScales.h>

namespace velmora::ephemeris {
namespace {

constexpr double degree = std::numbers::pi / 180.0;
constexpr double arcsecond = degree / 3600.0;

/// Meeus, "Astronomical Algorithms", table 22.A: multiples of D, M, M', F and the node; 0.0001 seconds of
/// arc.
struct Term {
  int d, sun, moon, f, node;
  double longitude, longitudeRate, obliquity, obliquityRate;
};

constexpr Term terms[] = {
    {0, 0, 0, 0, 1, -171996, -174.2, 92025, 8.9},
    {-2, 0, 0, 2, 2, -13187, -1.6, 5736, -3.1},
    {0, 0, 0, 2, 2, -2274, -0.2, 977, -0.5},
    {0, 0, 0, 0, 2, 2062, 0.2, -895, 0.5},
    {0, 1, 0, 0, 0, 1426, -3.4, 54, -0.1},
    {0, 0, 1, 0, 0, 712, 0.1, -7, 0},
    {-2, 1, 0, 2, 2, -517, 1.2, 224, -0.6},
    {0, 0, 0, 2, 1, -386, -0.4, 200, 0},
    {0, 0, 1, 2, 2, -301, 0, 129, -0.1},
    {-2, -1, 0, 2, 2, 217, -0.5, -95, 0.3},
    {-2, 0, 1, 0, 0, -158, 0, 0, 0},
    {-2, 0, 0, 2, 1, 129, 0.1, -70, 0},
    {0, 0, -1, 2, 2, 123, 0, -53, 0},
    {2, 0, 0, 0, 0, 63, 0, 0, 0},
    {0, 0, 1, 0, 1, 63, 0.1, -33, 0},
    {2, 0, -1, 2, 2, -59, 0, 26, 0},
    {0, 0, -1, 0, 1, -58, -0.1, 32, 0},
    {0, 0, 1, 2, 1, -51, 0, 27, 0},
};

}  // namespace

Nutation nutation(Instant instant) {
  const double t = terrestrialCenturies(instant);
  const double d = (297.85036 + (445267.111480 + (-0.0019142 + t / 189474) * t) * t) * degree;
  const double sun = (357.52772 + (35999.050340 + (-0.0001603 - t / 300000) * t) * t) * degree;
  const double moon = (134.96298 + (477198.867398 + (0.0086972 + t / 56250) * t) * t) * degree;
  const double f = (93.27191 + (483202.017538 + (-0.0036825 + t / 327270) * t) * t) * degree;
  const double node = (125.04452 + (-1934.136261 + (0.0020708 + t / 450000) * t) * t) * degree;
  Nutation sum;
  for (const Term& term : terms) {
    const double angle = term.d * d + term.sun * sun + term.moon * moon + term.f * f + term.node * node;
    sum.longitude += (term.longitude + term.longitudeRate * t) * std::sin(angle);
    sum.obliquity += (term.obliquity + term.obliquityRate * t) * std::cos(angle);
  }
  sum.longitude *= 0.0001 * arcsecond;
  sum.obliquity *= 0.0001 * arcsecond;
  // IAU 2006; Capitaine, Wallace and Chapront (2003).
  const double mean = 84381.406 + (-46.836769 + (-0.0001831 + 0.00200340 * t) * t) * t;
  sum.trueObliquity = mean * arcsecond + sum.obliquity;
  return sum;
}

}  // namespace velmora::ephemeris
