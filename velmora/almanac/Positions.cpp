#include <velmora/almanac/Positions.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <numbers>

#include <velmora/almanac/Disc.h>
#include <velmora/almanac/Observer.h>
#include <velmora/almanac/Refraction.h>

namespace velmora::almanac {
namespace {

using ephemeris::Apparent;
using ephemeris::Vector;

constexpr double turn = 2 * std::numbers::pi;
constexpr double radiansPerHour = 15 * degree;

double positiveAngle(double angle) {
  const double positive = angle < 0 ? angle + turn : angle;
  return positive < turn ? positive : positive - turn;
}

/// Greenwich apparent sidereal time, radians.
double apparentSiderealTime(Instant at) {
  const ephemeris::Nutation nutation = ephemeris::nutation(at);
  return positiveAngle(ephemeris::meanSiderealTime(at) +
                       nutation.longitude * std::cos(nutation.trueObliquity));
}

Local seenFrom(const Observer& observer, const Apparent& place, double siderealTime) {
  const double outward = place.distance * std::cos(place.declination);
  const double east = place.rightAscension - siderealTime;  // of Greenwich
  return observer.seen(
      {outward * std::cos(east), outward * std::sin(east), place.distance * std::sin(place.declination)});
}

Position positionOf(const Observer& observer, double longitude, Body body, const Apparent& place,
                    double siderealTime) {
  const Local local = seenFrom(observer, place, siderealTime);
  const double level = std::hypot(local.east, local.north), distance = std::hypot(level, local.up);
  const double altitude = std::atan2(local.up, level) / degree;
  const double outward = observer.cosLatitude * local.up - observer.sinLatitude * local.north;
  const double northward = observer.sinLatitude * local.up + observer.cosLatitude * local.north;
  const double rightAscension =
      std::remainder(siderealTime + longitude * degree + std::atan2(local.east, outward), turn);
  return {
      .rightAscension = place.rightAscension / radiansPerHour,
      .declination = place.declination / degree,
      .distance = place.distance,
      .topocentricRightAscension = positiveAngle(rightAscension) / radiansPerHour,
      .topocentricDeclination = std::atan2(northward, std::hypot(outward, local.east)) / degree,
      .topocentricDistance = distance,
      .azimuth = azimuthOf(local),
      .altitude = altitude,
      .apparentAltitude = apparentAltitude(altitude),
      .semidiameter = std::asin(radiusOf(body) / distance) / degree,
  };
}

Position none() {
  constexpr double nan = std::numeric_limits<double>::quiet_NaN();
  return {nan, nan, nan, nan, nan, nan, nan, nan, nan, nan};
}

double dot(const Local& a, const Local& b) { return a.east * b.east + a.north * b.north + a.up * b.up; }

Local cross(const Local& a, const Local& b) {
  return {a.north * b.up - a.up * b.north, a.up * b.east - a.east * b.up,
          a.east * b.north - a.north * b.east};
}

/// The angle at a body from the north of the sky by its east to another direction, radians.
double positionAngle(const Observer& observer, const Local& body, const Local& other) {
  const Local pole{0, observer.cosLatitude, observer.sinLatitude};
  const Local east = cross(pole, body), north = cross(body, east);
  return std::atan2(dot(other, east) * body.distance(), dot(other, north));
}

}  // namespace

std::optional<Position> position(const Place& place, Body body, Instant at) {
  const auto apparent = ephemeris::apparent(body, at);
  if (!apparent || !isValid(place)) return std::nullopt;
  return positionOf(Observer(place), place.longitude, body, *apparent, apparentSiderealTime(at));
}

void positions(const Place& place, Body body, std::span<const Instant> instants, std::span<Position> out) {
  if (!isValid(place)) return std::fill(out.begin(), out.end(), none());
  const Observer observer(place);
  std::array<Apparent, 64> part;
  for (std::size_t first = 0; first < instants.size(); first += part.size()) {
    const auto some = instants.subspan(first, std::min(part.size(), instants.size() - first));
    ephemeris::apparent(body, some, std::span(part).first(some.size()));
    for (std::size_t k = 0; k < some.size(); ++k) {
      out[first + k] = ephemeris::covers(some[k]) ? positionOf(observer, place.longitude, body, part[k],
                                                               apparentSiderealTime(some[k]))
                                                  : none();
    }
  }
}

std::optional<Illumination> illumination(const Place& place, Instant at) {
  const auto moon = ephemeris::apparent(Body::moon, at), sun = ephemeris::apparent(Body::sun, at);
  if (!moon || !sun || !isValid(place)) return std::nullopt;
  const Observer observer(place);
  const double siderealTime = apparentSiderealTime(at);
  const Local toMoon = seenFrom(observer, *moon, siderealTime),
              toSun = seenFrom(observer, *sun, siderealTime);
  const Local lit{toSun.east - toMoon.east, toSun.north - toMoon.north, toSun.up - toMoon.up};
  const Local back{-toMoon.east, -toMoon.north, -toMoon.up};
  const double phaseAngle = std::atan2(std::sqrt(dot(cross(lit, back), cross(lit, back))), dot(lit, back));
  const double elongation = positiveAngle(moon->longitude - sun->longitude);
  const double brightLimb = positionAngle(observer, toMoon, toSun);
  const double parallactic = positionAngle(observer, toMoon, {0, 0, 1});
  return Illumination{
      .fraction = (1 + std::cos(phaseAngle)) / 2,
      .isWaxing = elongation < turn / 2,
      .elongation = elongation / degree,
      .phaseAngle = phaseAngle / degree,
      .brightLimbAngle = positiveAngle(brightLimb) / degree,
      .parallacticAngle = parallactic / degree,
      .tilt = positiveAngle(std::remainder(brightLimb - parallactic, turn)) / degree,
  };
}

}  // namespace velmora::almanac
