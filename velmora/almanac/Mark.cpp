#include <velmora/almanac/Mark.h>

#include <cmath>

#include <velmora/almanac/Disc.h>

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

Mark horizonMark(ephemeris::Body body, const Place& place, const Convention& convention) {
  const double semidiameters = limbFactor(convention.limb);
  const double below = depression(place, convention);
  return body == ephemeris::Body::sun ? Mark(below + semidiameters * convention.sunSemidiameter)
                                      : Mark(below, semidiameters * moonRadius);
}

}  // namespace almanac
}  // namespace velmora
