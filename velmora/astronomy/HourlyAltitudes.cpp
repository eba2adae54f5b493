#include <velmora/astronomy/HourlyAltitudes.h>

#include <cmath>

#include <velmora/astronomy/PrintedDegrees.h>
#include <velmora/astronomy/TimeScales.h>

namespace [[gnu::visibility("hidden")]] velmora {
namespace {

constexpr double pi = 3.141592653589793;

/// The angle in radians, [0, 2π), to 0.002.
inline Hours roughRadians(const Angle<Hours>& angle) {
  const Hours &c = cos(angle), &s = sin(angle);
  const Hours fromY = roughArcsine(c), fromX = roughArcsine(s);
  const Hours nearY = selectLess(s, 0, 3 * pi / 2 + fromY, pi / 2 - fromY);
  const Hours nearPositiveX = selectLess(s, 0, 2 * pi + fromX, fromX);
  const Hours nearX = selectLess(c, 0, pi - fromX, nearPositiveX);
  return selectLess(c * c, s * s, nearY, nearX);
}

/// Right ascension by the printed half-angle formula.
inline Angle<Hours> rightAscension(const Direction<Hours>& body, const Hours& rho) {
  const Hours u = body.x + rho, &y = body.y;
  const Hours scale = 1 / (u * u + y * y);
  return {(u * u - y * y) * scale, 2 * u * y * scale};
}

/// The right ascension, counted in [0, 2π), less its lost share.
inline Angle<Hours> rightAscensionAfterDegrees(const Direction<Hours>& body, const Hours& rho) {
  const Angle<Hours> alpha = rightAscension(body, rho);
  const Hours startingAnew = selectLess(body.y, 0, shortfallOfTurn(seriesTwoPi), 0);
  return alpha - Angle<Hours>{1, lostShare * roughRadians(alpha) + startingAnew};
}

inline Hours sineOfAltitude(const Direction<Hours>& body, const Angle<Hours>& siderealAngle,
                            const Angle<double>& latitude) {
  const Hours rho = sqrt(1 - body.z * body.z);
  const Angle<Hours> delta = declinationAfterDegrees(body.z, rho);
  const Angle<Hours> hourAngle = siderealAngle - rightAscensionAfterDegrees(body, rho);
  return sin(latitude) * sin(delta) + cos(latitude) * cos(delta) * cos(hourAngle);
}

/// The growth of Greenwich's sidereal time.
HourlyGrowth siderealGrowth(double mjd) {
  const double T = centuriesSinceJ2000(mjd);
  return {(360.98564736629 + 2 * 0.000387933 * T / daysPerCentury) / 24 / 360, printedRadiansPerCircle};
}

/// Greenwich's sidereal time in turns, with the angle that it is at a longitude.
ArgumentValue<double> siderealAngle(double mjd, double longitude) {
  const double greenwich = greenwichMeanSiderealDegrees(mjd);
  return {greenwich / 360, angleOfRadians((greenwich + longitude) * printedRadiansPerDegree)};
}

HourlyAngle hourlySiderealAngle(double mjd, double longitude) {
  const HourlyGrowth growth = siderealGrowth(mjd);
  return {siderealAngle(mjd, longitude), growth, angleOfRadians(growth.turnsPerHour * growth.radiansPerTurn)};
}

}  // namespace

template <class HourlyBody>
HourlyAltitudes<HourlyBody>::HourlyAltitudes(double localMidnight, double longitude, double latitude)
    : _body(centuriesSinceJ2000(localMidnight)),
      _siderealAngle(hourlySiderealAngle(localMidnight, longitude)),
      _latitude(angleOfRadians(latitude * printedRadiansPerDegree)) {}

template <class HourlyBody>
void HourlyAltitudes<HourlyBody>::sampleHours() {
  const Hours sines = sineOfAltitude(_body.direction(), _siderealAngle.angle(), _latitude);
  for (std::size_t i = 0; i < Hours::count; ++i) _sines[_known++] = sines[i];
  _body.step();
  _siderealAngle.step();
}

template class HourlyAltitudes<HourlySun>;
template class HourlyAltitudes<HourlyMoon>;

}  // namespace velmora
