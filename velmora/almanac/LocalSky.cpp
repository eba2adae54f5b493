#include <velmora/almanac/LocalSky.h>

#include <algorithm>
#include <cmath>

#include <velmora/almanac/Refraction.h>
#include <velmora/almanac/Trigonometry.h>

namespace [[gnu::visibility("hidden")]] velmora {
namespace almanac {
namespace {

constexpr double earthTurn = 7.292115855e-5;  // radians a second

/// No altitude's sine bends more, a second squared: the Earth's turn squared, and the Moon's way.
constexpr double greatestCurvature = 6e-9;

}  // namespace

LocalSky::LocalSky(const EclipseSky& sky, Body body, const Place& place)
    : _sky(sky),
      _body(body),
      _observer(place),
      _longitude(place.longitude * degree),
      _horizon(horizonOf(body, place)) {}

Motion LocalSky::seen(const Motion& geocentric, double seconds) const {
  const double angle = _sky.siderealTime(seconds) + _longitude;
  const Complex<double> meridian = directionAt(angle);
  const double x = _observer.equatorial * meridian.re, y = _observer.equatorial * meridian.im;
  return geocentric - Motion{{x, y, _observer.polar}, {-earthTurn * y, earthTurn * x, 0}};
}

Local LocalSky::direction(double seconds) const {
  const Motion body = _body == Body::sun ? _sky.sun(seconds) : _sky.moon(seconds);
  const Complex<double> turn = directionAt(_sky.siderealTime(seconds));
  return _observer.seen(turned(body.at, turn.re, turn.im));
}

EclipseMoment LocalSky::moment(double seconds) const {
  const Local local = direction(seconds);
  const double altitude = arcsine(local.up / local.distance()) / degree;
  return {_sky.instant(seconds), apparentAltitude(altitude), azimuthOf(local), _horizon.heightOf(local) >= 0};
}

std::vector<double> LocalSky::horizonPassages(double from, double to) const {
  std::vector<double> passages;
  addPassages({from, height(from)}, {to, height(to)}, passages);
  return passages;
}

/// The bound of the curvature tells where there is none and where there is just one; any other stretch is
/// halved, down to a quarter of a second.
void LocalSky::addPassages(const Sample& from, const Sample& to, std::vector<double>& passages) const {
  const double duration = to.seconds - from.seconds;
  const bool isPassed = (from.height < 0) != (to.height < 0);
  if (isPassed) {
    const double meanSlope = std::abs(to.height - from.height) / duration;
    if (duration < 0.25 || meanSlope > greatestCurvature * duration) {
      passages.push_back(passage(from, to));
      return;
    }
  } else {
    const double nearest = std::min(std::abs(from.height), std::abs(to.height));
    if (duration < 0.25 || nearest > greatestCurvature * duration * duration / 8) return;
  }
  const double seconds = (from.seconds + to.seconds) / 2;
  const Sample middle{seconds, height(seconds)};
  addPassages(from, middle, passages);
  addPassages(middle, to, passages);
}

/// The Illinois method, to a hundredth of a second.
double LocalSky::passage(Sample from, Sample to) const {
  for (;;) {
    const double seconds = to.seconds - to.height * (to.seconds - from.seconds) / (to.height - from.height);
    const Sample sample{seconds, height(seconds)};
    const bool hasPassed = (sample.height < 0) != (to.height < 0);
    if (std::abs(seconds - to.seconds) < 0.01) return seconds;
    if (hasPassed) {
      from = to;
    } else {
      from.height /= 2;
    }
    to = sample;
  }
}

}  // namespace almanac
}  // namespace velmora
