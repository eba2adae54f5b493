#include <velmora/astronomy/HorizontalCoordinates.h>

#include <cmath>

#include <velmora/astronomy/PrintedDegrees.h>
#include <velmora/astronomy/RiseAndSetCalc.h>
#include <velmora/astronomy/TimeScales.h>
#include <velmora/platform/time/NumberText.h>

namespace velmora {
namespace {

constexpr double degreesPerRadian = 57.29577951308232;
constexpr double radiansPerDegree = 0.017453292519943295;  // of the Sun

std::string degreesText(double degrees) { return decimalText(degrees, 1) + "°"; }

Angle<double> obliquity(double d) {
  static const Angle<double> atEpoch = angleOfRadians(0.4090877233749509);
  return atEpoch - smallAngle(6.981317007977318e-09 * d);
}

/// The hour angle in degrees, negative ones moved up by whole turns. No place on Earth needs more than two;
/// for a longitude of many turns the angle stays negative.
double hourAngle(double longitude, double siderealTime, double rightAscension) {
  constexpr int mostTurns = 1000;
  double degrees = longitude + siderealTime - 15 * rightAscension;
  for (int turn = 0; turn < mostTurns && degrees < 0; ++turn) degrees += 360;
  return degrees;
}

}  // namespace

HorizontalCoordinates sunCoordinates(double d, double longitude, const Angle<double>& latitude) {
  const Angle<double> lambda = angleOfRadians(RiseAndSetCalc::FNsun(d)), epsilon = obliquity(d);
  const double alpha = RiseAndSetCalc::FNatn2(cos(epsilon) * sin(lambda), cos(lambda));
  const double sinDelta = sin(epsilon) * sin(lambda), cosDelta = std::sqrt(1 - sinDelta * sinDelta);
  const double siderealAngle =
      RiseAndSetCalc::FNRange(longitude + (280.46061837 + 360.98564736629 * d) * radiansPerDegree);
  const Angle<double> H = angleOfRadians(RiseAndSetCalc::FNRange(siderealAngle - alpha));
  const double sinAltitude = sinDelta * sin(latitude) + cosDelta * cos(latitude) * cos(H);
  const double azimuth =
      RiseAndSetCalc::FNatn2(-cosDelta * cos(latitude) * sin(H), sinDelta - sin(latitude) * sinAltitude);
  return {std::asin(sinAltitude) * degreesPerRadian, azimuth * degreesPerRadian};
}

HorizontalCoordinates moonCoordinates(double mjd, double longitude, const Angle<double>& latitude) {
  return moonCoordinates(moonDirectionAt(centuriesSinceJ2000(mjd)), mjd, longitude, latitude);
}

HorizontalCoordinates moonCoordinates(const Direction<double>& moon, double mjd, double longitude,
                                      const Angle<double>& latitude) {
  const double rho = std::sqrt(1 - moon.z * moon.z);
  const Angle<double> delta = declinationAfterDegrees(moon.z, rho);
  const double degrees =
      hourAngle(longitude, greenwichMeanSiderealDegrees(mjd), rightAscensionHours(moon, rho));
  const Angle<double> H = angleOfRadians(degrees * printedRadiansPerDegree);
  const double sinAltitude = sin(latitude) * sin(delta) + cos(latitude) * cos(delta) * cos(H);
  const double cosAltitude = std::sqrt(1 - sinAltitude * sinAltitude);
  const double cosAzimuth = (sin(delta) - sinAltitude * sin(latitude)) / (cos(latitude) * cosAltitude);
  const double fromNorth = std::acos(cosAzimuth) * degreesPerRadian;
  return {std::asin(sinAltitude) * degreesPerRadian, sin(H) > 0 ? 360 - fromNorth : fromNorth};
}

double daysFromJ2000(std::int64_t year, std::int64_t month, std::int64_t day, double hour) {
  // The doubles hold every whole number here exactly.
  const auto Y = static_cast<double>(year), M = static_cast<double>(month), D = static_cast<double>(day);
  const double n = 367 * Y + D + std::trunc(275 * M / 9) - std::trunc(7 * (Y + std::trunc((M + 9) / 12)) / 4);
  return n - 730531.5 + hour / 24;
}

double sunZoneHour(double hour, std::int64_t zone) {
  const auto hours = static_cast<double>(zone);
  return hour + hours < 0 ? hour + (hours + 24) : hour + hours;
}

PositionData positionAt(const HorizontalCoordinates& place, double hour) {
  return {place.altitude, place.azimuth, hour, degreesText(place.altitude), degreesText(place.azimuth)};
}

}  // namespace velmora
