#include <velmora/astronomy/SunAndMoonSeries.h>

#include <cmath>

#include <velmora/astronomy/PrintedDegrees.h>
#include <velmora/astronomy/RiseAndSetCalc.h>
#include <velmora/astronomy/UniversalTime.h>

namespace [[gnu::visibility("hidden")]] velmora {
namespace {

constexpr double degreesPerRadian = 57.29577951471995;         // 360 / 6.283185307
constexpr double hoursPerHalfAngleRadian = 7.639437268629327;  // 48 / 6.283185307

double turnsAt(const MeanArgument& argument, double centuries) {
  return RiseAndSetCalc::_frac(argument.atEpoch + argument.perCentury * centuries);
}

constexpr double moon = 1.0;  // every other object is the Sun

EquatorialCoordinates coordinates(const Direction<double>& direction) {
  const double rho = std::sqrt(1 - direction.z * direction.z);
  return {degreesPerRadian * std::atan(direction.z / rho), rightAscensionHours(direction, rho)};
}

}  // namespace

ArgumentValue<double> valueAt(const MeanArgument& argument, double centuries) {
  const double turns = turnsAt(argument, centuries);
  return {turns, angleWithinTurn(seriesTwoPi * turns)};
}

ArgumentValue<FourNumbers> valueAt(const MeanArgument& argument, const FourNumbers& centuries) {
  FourNumbers turns;
  for (std::size_t i = 0; i < FourNumbers::count; ++i) {
    turns.set(i, turnsAt(argument, centuries[i]));
  }
  return {turns, angleWithinTurn<FourNumbers>(seriesTwoPi * turns)};
}

std::array<ArgumentValue<double>, FourNumbers::count> valuesAt(
    const std::array<MeanArgument, FourNumbers::count>& arguments, double centuries) {
  FourNumbers turns;
  for (std::size_t i = 0; i < FourNumbers::count; ++i) turns.set(i, turnsAt(arguments[i], centuries));
  const auto angles = anglesSideBySide(seriesTwoPi * turns);
  std::array<ArgumentValue<double>, FourNumbers::count> values;
  for (std::size_t i = 0; i < FourNumbers::count; ++i) values[i] = {turns[i], angles[i]};
  return values;
}

Direction<double> moonDirectionAt(double centuries) {
  const auto turns = [&](const MeanArgument& argument) { return turnsAt(argument, centuries); };
  const auto [l, ls, D, F] =
      anglesSideBySide(seriesTwoPi * FourNumbers::of(turns(moonAnomaly), turns(sunAnomaly),
                                                     turns(moonElongation), turns(moonLatitudeArgument)));
  return moonDirection(valueAt(moonLongitude, centuries), l, ls, D, F);
}

Direction<FourNumbers> moonDirectionAt(const FourNumbers& centuries) {
  const auto angle = [&](const MeanArgument& argument) { return valueAt(argument, centuries).angle; };
  return moonDirection(valueAt(moonLongitude, centuries), angle(moonAnomaly), angle(sunAnomaly),
                       angle(moonElongation), angle(moonLatitudeArgument));
}

double rightAscensionHours(const Direction<double>& direction, double rho) {
  const double hours = hoursPerHalfAngleRadian * std::atan(direction.y / (direction.x + rho));
  return hours < 0 ? hours + 24 : hours;
}

EquatorialCoordinates RiseAndSetCalc::_minisun(double centuries) {
  return coordinates(sunDirection(valueAt(sunLongitude, centuries), valueAt(sunAnomaly, centuries).angle));
}

EquatorialCoordinates RiseAndSetCalc::_minimoon(double centuries) {
  return coordinates(moonDirectionAt(centuries));
}

double RiseAndSetCalc::_sin_alt(double object, double mjd0, double hour, double longitude, double cosLatitude,
                                double sinLatitude) {
  const double mjd = mjd0 + hour / 24;
  const double T = centuriesSinceJ2000(mjd);
  const EquatorialCoordinates body = object == moon ? _minimoon(T) : _minisun(T);
  const double hourAngle = 15 * (_lmst(mjd, longitude) - body.rightAscension) * printedRadiansPerDegree;
  const double declination = body.declination * printedRadiansPerDegree;
  return sinLatitude * std::sin(declination) + cosLatitude * std::cos(declination) * std::cos(hourAngle);
}

}  // namespace velmora
