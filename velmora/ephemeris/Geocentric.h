#pragma once

#include <velmora/ephemeris/Ephemeris.h>
#include <velmora/ephemeris/Lanes.h>

namespace [[gnu::visibility("hidden")]] velmora {
namespace ephemeris {

/// A body as it is seen from the centre of the Earth, on the true equator and from the true equinox of date.
template <class Number>
struct Geocentric {
  Number x, y, z;                 ///< the direction, a vector of length 1
  Number distance;                ///< km
  Number longitude, latitude;     ///< on the ecliptic, turns
  Number equationOfTheEquinoxes;  ///< what apparent sidereal time is ahead of the mean one, turns
};

/// Of one time and of eight side by side, with the same bits, in centuries of Terrestrial Time from J2000.
/// For the ephemeris and the almanac.
Geocentric<double> geocentric(Body body, double centuries);
Geocentric<Doubles> geocentric(Body body, const Doubles& centuries);

}  // namespace ephemeris
}  // namespace velmora
