#include <velmora/almanac/Positions.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <limits>

#include <velmora/almanac/Disc.h>
#include <velmora/almanac/Refraction.h>
#include <velmora/almanac/Topocentric.h>
#include <velmora/ephemeris/Sines.h>
#include <velmora/ephemeris/TimeScales.h>

namespace velmora::almanac {
namespace {

using ephemeris::angleOf;
using ephemeris::Doubles;
using ephemeris::Geocentric;
using ephemeris::lane;
using ephemeris::laneCount;
using ephemeris::nearestWhole;
using ephemeris::selectLess;

constexpr double degreesOfRadian = 1 / degree;
constexpr double turn = ephemeris::radiansOfTurn;

/// The fields of `Position`, at one time or at several side by side.
template <class Number>
struct Fields {
  Number rightAscension, declination, distance;
  Number topocentricRightAscension, topocentricDeclination, topocentricDistance;
  Number azimuth, altitude, apparentAltitude, semidiameter;
};

/// The angle within a whole turn, which is given in the unit of the angle.
template <class Number>
Number positive(const Number& angle, double wholeTurn) {
  const Number zero{}, positive = selectLess(angle, zero, angle + wholeTurn, angle);
  return selectLess(positive, zero + wholeTurn, positive,
                    zero);  // a tiny negative angle rounds up to the turn
}

template <class Number>
Number length(const Number& a, const Number& b) {
  return ephemeris::squareRoot(a * a + b * b);
}

/// Degrees; the series of the arcsine, of which the argument is less than 0.005.
template <class Number>
Number semidiameterOf(Body body, const Number& distance) {
  const Number s = (Number{} + radiusOf(body)) / distance, ss = s * s;
  return s * (1.0 + ss * (1.0 / 6 + ss * (3.0 / 40))) * degreesOfRadian;
}

template <class Number>
Fields<Number> fieldsOf(const Observer& observer, Body body, const Geocentric<Number>& there,
                        const Number& meanMeridian) {
  const Number meridian = meanMeridian + there.equationOfTheEquinoxes;
  const auto local = fromPlace(observer, there, meridian);
  const Number level = length(local.east, local.north), distance = length(level, local.up);
  const Number altitude = angleOf(local.up, level) * degreesOfRadian;
  const Number hourAngle = angleOf(local.east, local.outward) * (1 / turn);  // to the east, turns
  const Number rightAscension = meridian - nearestWhole(meridian) + hourAngle;
  constexpr double hours = 24, degrees = 360;
  return {
      .rightAscension = positive(angleOf(there.y, there.x) * (hours / turn), hours),
      .declination = angleOf(there.z, length(there.x, there.y)) * degreesOfRadian,
      .distance = there.distance,
      .topocentricRightAscension = positive((rightAscension - nearestWhole(rightAscension)) * hours, hours),
      .topocentricDeclination = angleOf(local.northward, length(local.outward, local.east)) * degreesOfRadian,
      .topocentricDistance = distance,
      .azimuth = positive(angleOf(local.east, local.north) * degreesOfRadian, degrees),
      .altitude = altitude,
      .apparentAltitude = altitude + refractionOf(altitude),
      .semidiameter = semidiameterOf(body, distance)};
}

Position positionOf(const Fields<Doubles>& f, std::size_t i) {
  return {lane(f.rightAscension, i),
          lane(f.declination, i),
          lane(f.distance, i),
          lane(f.topocentricRightAscension, i),
          lane(f.topocentricDeclination, i),
          lane(f.topocentricDistance, i),
          lane(f.azimuth, i),
          lane(f.altitude, i),
          lane(f.apparentAltitude, i),
          lane(f.semidiameter, i)};
}

Position none() {
  constexpr double nan = std::numeric_limits<double>::quiet_NaN();
  return {nan, nan, nan, nan, nan, nan, nan, nan, nan, nan};
}

}  // namespace

std::optional<Position> position(const Place& place, Body body, Instant at) {
  if (!isValid(place) || !ephemeris::covers(at)) return std::nullopt;
  const auto there = geocentric(body, ephemeris::terrestrialCenturies(at));
  const auto f = fieldsOf(Observer(place), body, there, meanMeridian(place, at));
  return Position{f.rightAscension,         f.declination,         f.distance, f.topocentricRightAscension,
                  f.topocentricDeclination, f.topocentricDistance, f.azimuth,  f.altitude,
                  f.apparentAltitude,       f.semidiameter};
}

void positions(const Place& place, Body body, std::span<const Instant> instants, std::span<Position> out) {
  if (!isValid(place)) return std::fill(out.begin(), out.end(), none());
  const Observer observer(place);
  for (std::size_t first = 0; first < instants.size(); first += laneCount) {
    const std::size_t count = std::min(instants.size() - first, laneCount);
    std::array<double, laneCount> centuries{}, meridians{};
    for (std::size_t i = 0; i < count; ++i) {
      const Instant at = instants[first + i];
      if (!ephemeris::covers(at)) continue;
      centuries[i] = ephemeris::terrestrialCenturies(at);
      meridians[i] = meanMeridian(place, at);
    }
    const auto there = geocentric(body, ephemeris::doublesOf(centuries));
    const auto f = fieldsOf(observer, body, there, ephemeris::doublesOf(meridians));
    for (std::size_t i = 0; i < count; ++i) {
      out[first + i] = ephemeris::covers(instants[first + i]) ? positionOf(f, i) : none();
    }
  }
}

}  // namespace velmora::almanac
