#include <velmora/almanac/MoonAxis.h>

#include <velmora/almanac/Observer.h>
#include <velmora/almanac/SkyAngles.h>
#include <velmora/almanac/Topocentric.h>
#include <velmora/almanac/Trigonometry.h>
#include <velmora/ephemeris/TimeScales.h>

namespace velmora::almanac {
namespace {

constexpr double inclination = 1.54242 * degree;  // of the Moon's equator to the ecliptic

/// The mean longitude of the ascending node (Meeus, formula 47.7), radians.
double nodeLongitude(double centuries) {
  return (125.0445479 - 1934.1362891 * centuries + 0.0020754 * centuries * centuries) * degree;
}

/// The direction of the Moon's north pole on the mean equator of date.
ephemeris::Vector poleOfMoon(double centuries) {
  const double node = nodeLongitude(centuries), obliquity = (23.4392911 - 0.0130042 * centuries) * degree;
  const double x = -sine(inclination) * sine(node), y = sine(inclination) * cosine(node),
               z = cosine(inclination);
  return {x, y * cosine(obliquity) - z * sine(obliquity), y * sine(obliquity) + z * cosine(obliquity)};
}

}  // namespace

std::optional<double> moonAxisTilt(const Place& place, Instant at) {
  if (!isValid(place) || !ephemeris::covers(at)) return std::nullopt;
  const Observer observer(place);
  const double centuries = ephemeris::terrestrialCenturies(at);
  const auto moon = ephemeris::geocentric(ephemeris::Body::moon, centuries);
  const auto seen = fromPlace(observer, moon, meanMeridian(place, at) + moon.equationOfTheEquinoxes);
  const double sidereal =
      ephemeris::radiansOfTurn * (ephemeris::siderealTurns(at) + moon.equationOfTheEquinoxes);
  const Local pole = observer.along(turned(poleOfMoon(centuries), cosine(sidereal), sine(sidereal)));
  const double tilt = angleBetween({seen.east, seen.north, seen.up}, {0, 0, 1}, pole);
  return 360 * partOfTurn(tilt / ephemeris::radiansOfTurn);
}

}  // namespace velmora::almanac
