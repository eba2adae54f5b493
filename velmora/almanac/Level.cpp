#include <velmora/almanac/Level.h>

#include <cmath>

#include <velmora/almanac/Disc.h>
#include <velmora/almanac/Refraction.h>
#include <velmora/almanac/Trigonometry.h>

namespace [[gnu::visibility("hidden")]] velmora {
namespace almanac {
namespace {

constexpr double dipOfAMetre = 1.76 / 60;  // degrees; grows with the square root of the height

double depression(const Place& place, const Convention& convention) {
  return convention.horizonRefraction + dipOfAMetre * std::sqrt(place.height);
}

/// How many times its semidiameter the point of the disc lies above the centre.
double limbFactor(Convention::Limb limb) {
  switch (limb) {
    case Convention::Limb::upper:
      return 1;
    case Convention::Limb::lower:
      return -1;
    case Convention::Limb::center:
      break;
  }
  return 0;
}

}  // namespace

Level::Level(double depression, double radius)
    : _up(1),
      _sine(sine(depression * degree)),
      _cosine(cosine(depression * degree)),
      _radius(radius),
      _depression(depression),
      _apparentAltitude(apparentAltitude(-depression)) {}

Level Level::meridian() {
  Level level;
  level._east = -1;
  return level;
}

double Level::apparentAltitudeOf(const Local& local) const {
  if (isMeridian()) return apparentAltitude(arcsine(local.up / local.distance()) / degree);
  if (_radius == 0) return _apparentAltitude;
  return apparentAltitude(-_depression - arcsine(_radius / local.distance()) / degree);
}

Level horizonOf(ephemeris::Body body, const Place& place, const Convention& convention) {
  const double semidiameters = limbFactor(convention.limb);
  const double below = depression(place, convention);
  return body == ephemeris::Body::sun ? Level(below + semidiameters * convention.sunSemidiameter)
                                      : Level(below, semidiameters * moonRadius);
}

}  // namespace almanac
}  // namespace velmora
