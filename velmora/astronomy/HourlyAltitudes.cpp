#include <velmora/astronomy/HourlyAltitudes.h>

#include <cmath>

#include <velmora/astronomy/PrintedDegrees.h>
#include <velmora/astronomy/TimeScales.h>

namespace velmora {
namespace {

constexpr double pi = 3.141592653589793;
constexpr double hoursPerCentury = 24 * daysPerCentury;

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

/// Lets the angle grow; a turn that it completes starts the next one from 0.
template <class Number>
ArgumentValue<Number> grown(const ArgumentValue<Number>& value, double turns, const Angle<Number>& growth,
                            double radiansPerTurn) {
  const Number sum = value.turns + turns;
  const Number wholeTurns = selectLess(sum, 1, 0, 1);
  const Angle<Number> startingAnew{1, wholeTurns * shortfallOfTurn(radiansPerTurn)};
  return {sum - wholeTurns, value.angle + growth + startingAnew};
}

}  // namespace

HourlyAngle::HourlyAngle(const ArgumentValue<double>& start, const HourlyGrowth& growth,
                         const Angle<double>& perHour)
    : _growth(growth) {
  ArgumentValue<double> value = start;
  Angle<double> perStep{1, 0};
  for (std::size_t i = 0; i < Hours::count; ++i) {
    _value.turns.set(i, value.turns);
    _value.angle.cosine.set(i, cos(value.angle));
    _value.angle.sine.set(i, sin(value.angle));
    value = grown(value, growth.turnsPerHour, perHour, growth.radiansPerTurn);
    perStep = perStep + perHour;
  }
  _perStep = {cos(perStep), sin(perStep)};
}

HourlyAngle::HourlyAngle(const MeanArgument& argument, double centuries)
    : HourlyAngle(valueAt(argument, centuries), {argument.perCentury / hoursPerCentury, seriesTwoPi},
                  smallAngle(seriesTwoPi * argument.perCentury / hoursPerCentury)) {}

void HourlyAngle::step() {
  _value = grown(_value, Hours::count * _growth.turnsPerHour, _perStep, _growth.radiansPerTurn);
}

HourlySun::HourlySun(double centuries)
    : _longitude(sunLongitude, centuries), _anomaly(sunAnomaly, centuries) {}

void HourlySun::step() {
  _longitude.step();
  _anomaly.step();
}

HourlyMoon::HourlyMoon(double centuries)
    : _longitude(moonLongitude, centuries),
      _anomaly(moonAnomaly, centuries),
      _sunAnomaly(sunAnomaly, centuries),
      _elongation(moonElongation, centuries),
      _latitudeArgument(moonLatitudeArgument, centuries) {}

void HourlyMoon::step() {
  for (HourlyAngle* angle : {&_longitude, &_anomaly, &_sunAnomaly, &_elongation, &_latitudeArgument}) {
    angle->step();
  }
}

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
