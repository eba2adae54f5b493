#pragma once

#include <chrono>
#include <cmath>
#include <functional>
#include <numbers>
#include <utility>

#include <velmora/almanac/Place.h>
#include <velmora/ephemeris/Ephemeris.h>

namespace velmora::testing {

/// Where a body is so many seconds after some instant, kilometres, in the frame that turns with the Earth: x
/// in the equator to Greenwich, z to the north pole.
using PathOverEarth = std::function<ephemeris::Vector(double seconds)>;

/// For two days from the instant on, by the paths of the ephemeris.
inline PathOverEarth pathOverEarth(ephemeris::Body body, Instant start) {
  return
      [body, start, paths = *ephemeris::Paths::over(start, start + std::chrono::hours(48))](double seconds) {
        const Instant at = start + Seconds(seconds);
        const ephemeris::Vector v = paths.vector(body, at);
        const double turn = ephemeris::meanSiderealTime(at), c = std::cos(turn), s = std::sin(turn);
        return ephemeris::Vector{c * v.x + s * v.y, c * v.y - s * v.x, v.z};
      };
}

/// How high a body stands over its rise and set, written down once more from the books: Meeus, "Astronomical
/// Algorithms", chapters 11 (the observer on the ellipsoid) and 40 (parallax).
class HeightOverHorizon {
 public:
  HeightOverHorizon(const almanac::Place& place, ephemeris::Body body, PathOverEarth path)
      : _body(body), _path(std::move(path)) {
    setPlace(place);
  }

  void setPlace(const almanac::Place& place) {
    const double latitude = place.latitude * degree,
                 reduced = std::atan(0.996647189335253 * std::tan(latitude));
    _sinLatitude = std::sin(latitude);
    _cosLatitude = std::cos(latitude);
    _longitude = place.longitude * degree;
    _rhoSin = earthRadius * 0.996647189335253 * std::sin(reduced);
    _rhoCos = earthRadius * std::cos(reduced);
  }

  /// The sine of the altitude above that of rise and set.
  double operator()(double seconds) const {
    const ephemeris::Vector v = _path(seconds);
    const double x = v.x - _rhoCos * std::cos(_longitude), y = v.y - _rhoCos * std::sin(_longitude);
    const double z = v.z - _rhoSin, distance = std::sqrt(x * x + y * y + z * z);
    const double outward = x * std::cos(_longitude) + y * std::sin(_longitude);
    return (_cosLatitude * outward + _sinLatitude * z) / distance - std::sin(altitudeAt(distance));
  }

  /// A bound of its change in a second.
  double fastest() const { return 7.3e-5 * (_cosLatitude + 0.03); }

 private:
  static constexpr double degree = std::numbers::pi / 180, minute = degree / 60;
  static constexpr double earthRadius = 6378.137;

  /// Of the centre as it rises and sets.
  double altitudeAt(double distance) const {
    return _body == ephemeris::Body::sun ? -50 * minute : -34 * minute - std::asin(1737.5 / distance);
  }

  ephemeris::Body _body;
  PathOverEarth _path;
  double _sinLatitude = 0, _cosLatitude = 0, _longitude = 0, _rhoSin = 0, _rhoCos = 0;
};

}  // namespace velmora::testing
