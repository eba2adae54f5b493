#include <cmath>

#include <velmora/almanac/Observer.h>
#include <velmora/almanac/Positions.h>
#include <velmora/almanac/SkyAngles.h>
#include <velmora/almanac/Topocentric.h>
#include <velmora/almanac/Trigonometry.h>
#include <velmora/ephemeris/TimeScales.h>

namespace velmora::almanac {
namespace {

using ephemeris::Geocentric;

constexpr double turn = ephemeris::radiansOfTurn;

/// The angle at a body from the north of the sky by its east to another direction, radians.
double positionAngle(const Observer& observer, const Local& body, const Local& other) {
  return angleBetween(body, {0, observer.cosLatitude, observer.sinLatitude}, other);
}

Local localOf(const Observer& observer, const Geocentric<double>& body, double meanMeridian) {
  const auto local = fromPlace(observer, body, meanMeridian + body.equationOfTheEquinoxes);
  return {local.east, local.north, local.up};
}

}  // namespace

std::optional<Illumination> illumination(const Place& place, Instant at) {
  if (!isValid(place) || !ephemeris::covers(at)) return std::nullopt;
  const Observer observer(place);
  const double centuries = ephemeris::terrestrialCenturies(at), meridian = meanMeridian(place, at);
  const auto moon = geocentric(Body::moon, centuries), sun = geocentric(Body::sun, centuries);
  const Local toMoon = localOf(observer, moon, meridian), toSun = localOf(observer, sun, meridian);
  const Local lit{toSun.east - toMoon.east, toSun.north - toMoon.north, toSun.up - toMoon.up};
  const Local back{-toMoon.east, -toMoon.north, -toMoon.up};
  const double phaseAngle = arctangent(std::sqrt(dot(cross(lit, back), cross(lit, back))), dot(lit, back));
  const double elongation = 360 * partOfTurn(moon.longitude - sun.longitude);
  const double brightLimb = positionAngle(observer, toMoon, toSun);
  const double parallactic = positionAngle(observer, toMoon, {0, 0, 1});
  return Illumination{
      .fraction = (1 + cosine(phaseAngle)) / 2,
      .isWaxing = elongation < 180,
      .elongation = elongation,
      .phaseAngle = phaseAngle / degree,
      .brightLimbAngle = 360 * partOfTurn(brightLimb / turn),
      .parallacticAngle = parallactic / degree,
      .tilt = 360 * partOfTurn((brightLimb - parallactic) / turn),
  };
}

}  // namespace velmora::almanac
