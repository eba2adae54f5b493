#include <velmora/almanac/EclipseSky.h>

#include <cmath>

#include <velmora/almanac/Trigonometry.h>

namespace [[gnu::visibility("hidden")]] velmora {
namespace almanac {
namespace {

using ephemeris::Apparent;
using ephemeris::Body;

/// Half of what lies between two of the four places, seconds.
constexpr double halfStep = 4000;

/// Radians that the Earth turns in a second of UT1 from the equinox.
constexpr double turnPerSecond = 7.292115855e-5;

Vector vectorOf(const Apparent& place) {
  const Complex<double> along = directionAt(place.rightAscension), across = directionAt(place.declination);
  const double inEquator = place.distance * across.re;
  return {inEquator * along.re, inEquator * along.im, place.distance * across.im};
}

}  // namespace

Motion EclipseSky::Cubic::at(double seconds) const {
  const double t = seconds / halfStep;
  const auto& c = coefficients;
  return {c[0] + t * (c[1] + t * (c[2] + t * c[3])),
          (1 / halfStep) * (c[1] + t * (2 * c[2] + (3 * t) * c[3]))};
}

/// The cubic through the places three and one half steps before and after the middle.
std::optional<EclipseSky::Cubic> EclipseSky::path(Body body, Instant middle) {
  std::array<Instant, 4> instants;
  for (int i = 0; i < 4; ++i)
    instants[static_cast<std::size_t>(i)] = middle + Seconds((2 * i - 3) * halfStep);
  if (!ephemeris::covers(instants.front()) || !ephemeris::covers(instants.back())) return std::nullopt;
  std::array<Apparent, 4> places;
  ephemeris::apparent(body, instants, places);
  const Vector a = vectorOf(places[0]), b = vectorOf(places[1]), c = vectorOf(places[2]),
               d = vectorOf(places[3]);
  const Vector outer = a + d, inner = b + c, outerRise = d - a, innerRise = c - b;
  return Cubic{{(1.0 / 16) * (9 * inner - outer), (1.0 / 48) * (27 * innerRise - outerRise),
                (1.0 / 16) * (outer - inner), (1.0 / 48) * (outerRise - 3 * innerRise)}};
}

std::optional<EclipseSky> EclipseSky::around(Instant middle) {
  const auto sun = path(Body::sun, middle), moon = path(Body::moon, middle);
  if (!sun || !moon) return std::nullopt;
  EclipseSky sky;
  sky._middle = middle;
  sky._sun = *sun;
  sky._moon = *moon;
  const ephemeris::Nutation nutation = ephemeris::nutation(middle);
  sky._siderealTime =
      ephemeris::meanSiderealTime(middle) + nutation.longitude * cosine(nutation.trueObliquity);
  return sky;
}

double EclipseSky::siderealTime(double seconds) const { return _siderealTime + turnPerSecond * seconds; }

Motion EclipseSky::offset(Body eclipsed, double seconds) const {
  const Motion moonMotion = moon(seconds), sunMotion = sun(seconds);
  const Motion axis = direction(eclipsed == Body::moon ? sunMotion : sunMotion - moonMotion);
  const double along = dot(moonMotion.at, axis.at);
  const double alongRate = dot(moonMotion.rate, axis.at) + dot(moonMotion.at, axis.rate);
  return {moonMotion.at - along * axis.at, moonMotion.rate - along * axis.rate - alongRate * axis.at};
}

double EclipseSky::greatest(Body eclipsed) const {
  double seconds = 0;
  for (int step = 0; step < 4; ++step) {
    const Motion across = offset(eclipsed, seconds);
    seconds -= dot(across.at, across.rate) / dot(across.rate, across.rate);
  }
  return seconds;
}

}  // namespace almanac
}  // namespace velmora
