#pragma once

#include <velmora/almanac/Observer.h>
#include <velmora/almanac/Place.h>
#include <velmora/ephemeris/EarthRotation.h>
#include <velmora/ephemeris/Geocentric.h>
#include <velmora/ephemeris/Sines.h>
#include <velmora/platform/time/Instant.h>

namespace [[gnu::visibility("hidden")]] velmora {
namespace almanac {

/// The vector from the place to the body by the directions of the place, kilometres.
template <class Number>
struct FromPlace {
  Number east, north, up;
  Number outward, northward;  ///< away from the Earth's axis, and along it
};

/// `turns`: how far the meridian of the place lies to the east of the equinox.
template <class Number>
FromPlace<Number> fromPlace(const Observer& observer, const ephemeris::Geocentric<Number>& body,
                            const Number& turns) {
  const auto meridian = ephemeris::cosineAndSine(turns);
  const Number outward = body.distance * (meridian.re * body.x + meridian.im * body.y) - observer.equatorial;
  const Number east = body.distance * (meridian.re * body.y - meridian.im * body.x);
  const Number northward = body.distance * body.z - observer.polar;
  return {east, northward * observer.cosLatitude - outward * observer.sinLatitude,
          outward * observer.cosLatitude + northward * observer.sinLatitude, outward, northward};
}

/// The same from the mean equinox: Greenwich mean sidereal time and the longitude of the place, turns.
inline double meanMeridian(const Place& place, Instant at) {
  return ephemeris::siderealTurns(at) + place.longitude / 360;
}

}  // namespace almanac
}  // namespace velmora
