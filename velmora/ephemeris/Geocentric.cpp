#include <velmora/ephemeris/Geocentric.h>

#include <velmora/ephemeris/Evaluation.h>

namespace [[gnu::visibility("hidden")]] velmora {
namespace ephemeris {
namespace {

template <class Number>
Geocentric<Number> evaluated(Body body, const Number& centuries) {
  const auto angles = anglesAt(centuries);
  const auto tilted = tilt(centuries, angles);
  const auto place = ecliptical(body, centuries, angles);
  const Number longitude = place.longitude + tilted.longitude;
  const auto direction = equatorial(longitude, place.latitude, tilted.trueObliquity);
  return {direction.x,
          direction.y,
          direction.z,
          place.distance,
          longitude,
          place.latitude,
          tilted.longitude * cosineAndSine(tilted.trueObliquity).re};
}

}  // namespace

Geocentric<double> geocentric(Body body, double centuries) { return evaluated(body, centuries); }

Geocentric<Doubles> geocentric(Body body, const Doubles& centuries) {
  Geocentric<Doubles> result;
  inLanes([&](auto lanes) {
    const auto all = evaluated(body, doublesOf<typename decltype(lanes)::Doubles>(centuries));
    result = {doublesOf(all.x),
              doublesOf(all.y),
              doublesOf(all.z),
              doublesOf(all.distance),
              doublesOf(all.longitude),
              doublesOf(all.latitude),
              doublesOf(all.equationOfTheEquinoxes)};
  });
  return result;
}

}  // namespace ephemeris
}  // namespace velmora
