#include <velmora/astronomy/HourlyAltitudes.h>

#include <cmath>

#include <velmora/astronomy/PrintedDegrees.h>
#include <velmora/astronomy/UniversalTime.h>

namespace [[gnu::visibility("hidden")]] velmora {
namespace {

constexpr double pi = 3.141592653589793;

/// The angle in radians, [0, 2π), to 0.002.
inline FourNumbers roughRadians(const Angle<FourNumbers>& angle) {
  const FourNumbers &c = cos(angle), &s = sin(angle);
  const FourNumbers fromY = roughArcsine(c), fromX = roughArcsine(s);
  const FourNumbers nearY = selectLess(s, 0, 3 * pi / 2 + fromY, pi / 2 - fromY);
  const FourNumbers nearPositiveX = selectLess(s, 0, 2 * pi + fromX, fromX);
  const FourNumbers nearX = selectLess(c, 0, pi - fromX, nearPositiveX);
  return selectLess(c * c, s * s, nearY, nearX);
}

/// Right ascension by the printed half-angle formula.
inline Angle<FourNumbers> rightAscension(const Direction<FourNumbers>& body, const FourNumbers& rho) {
  const FourNumbers u = body.x + rho, &y = body.y;
  const FourNumbers scale = 1 / (u * u + y * y);
  return {(u * u - y * y) * scale, 2 * u * y * scale};
}

/// The right ascension, counted in [0, 2π), less its lost share.
inline Angle<FourNumbers> rightAscensionAfterDegrees(const Direction<FourNumbers>& body,
                                                     const FourNumbers& rho) {
  const Angle<FourNumbers> alpha = rightAscension(body, rho);
  const FourNumbers startingAnew = selectLess(body.y, 0, shortfallOfTurn(seriesTwoPi), 0);
  return alpha - Angle<FourNumbers>{1, lostShare * roughRadians(alpha) + startingAnew};
}

inline FourNumbers sineOfAltitude(const Direction<FourNumbers>& body, const Angle<FourNumbers>& siderealAngle,
                                  const Angle<double>& latitude) {
  const FourNumbers rho = sqrt(1 - body.z * body.z);
  const Angle<FourNumbers> delta = declinationAfterDegrees(body.z, rho);
  const Angle<FourNumbers> hourAngle = siderealAngle - rightAscensionAfterDegrees(body, rho);
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
  const FourNumbers sines = sineOfAltitude(_body.direction(), _siderealAngle.angle(), _latitude);
  for (std::size_t i = 0; i < FourNumbers::count; ++i) _sines[_known++] = sines[i];
  _body.step();
  _siderealAngle.step();
}

template class HourlyAltitudes<HourlySun>;
template class HourlyAltitudes<HourlyMoon>;

}  // namespace velmora
