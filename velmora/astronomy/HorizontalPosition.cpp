#include <cmath>

#include <velmora/astronomy/PrintedDegrees.h>
#include <velmora/astronomy/RiseAndSetCalc.h>
#include <velmora/astronomy/TimeScales.h>
#include <velmora/platform/time/Calendar.h>
#include <velmora/platform/time/NumberText.h>

namespace velmora {
namespace {

constexpr double degreesPerRadian = 57.29577951308232;
constexpr double radiansPerDegree = 0.017453292519943295;  // of the Sun

std::string degreesText(double degrees) { return decimalText(degrees, 1) + "°"; }

/// A place in the sky in numbers alone, degrees.
struct HorizontalCoordinates {
  double altitude, azimuth;
};

PositionData position(const HorizontalCoordinates& place, double hour) {
  return {place.altitude, place.azimuth, hour, degreesText(place.altitude), degreesText(place.azimuth)};
}

/// Days from 2000 January 1, 12h, valid from 1901 to 2099. The doubles hold every whole number here exactly.
double daysFromJ2000(std::int64_t year, std::int64_t month, std::int64_t day, double hour) {
  const auto Y = static_cast<double>(year), M = static_cast<double>(month), D = static_cast<double>(day);
  const double n = 367 * Y + D + std::trunc(275 * M / 9) - std::trunc(7 * (Y + std::trunc((M + 9) / 12)) / 4);
  return n - 730531.5 + hour / 24;
}

Angle<double> obliquity(double d) {
  static const Angle<double> atEpoch = angleOfRadians(0.4090877233749509);
  return atEpoch - smallAngle(6.981317007977318e-09 * d);
}

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

/// The hour angle in degrees, negative ones moved up by whole turns. No place on Earth needs more than two;
/// for a longitude of many turns the angle stays negative.
double hourAngle(double longitude, double siderealTime, double rightAscension) {
  constexpr int mostTurns = 1000;
  double degrees = longitude + siderealTime - 15 * rightAscension;
  for (int turn = 0; turn < mostTurns && degrees < 0; ++turn) degrees += 360;
  return degrees;
}

/// `longitude` in degrees. No guard where the azimuth is undefined, at the poles and the zenith: NaN there.
HorizontalCoordinates moonCoordinates(double mjd, double longitude, const Angle<double>& latitude) {
  const Direction<double> moon = moonDirectionAt(centuriesSinceJ2000(mjd));
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

}  // namespace

double RiseAndSetCalc::FNsun(double daysFromJ2000) {
  const double L = FNRange(4.894967873435816 + 0.017202792393721557 * daysFromJ2000);
  const Angle<double> g = angleOfRadians(FNRange(6.240040768070287 + 0.017201970343643867 * daysFromJ2000));
  return FNRange(L + 0.03342305517569141 * sin(g) + 0.00034906585039886593 * sin(g + g));
}

PositionData RiseAndSetCalc::CalculateSunPosition(double longitude, double latitude, std::int64_t year,
                                                  std::int64_t month, std::int64_t day, double hour,
                                                  std::int64_t timezoneInterval) {
  const auto zone = static_cast<double>(timezoneInterval);
  const double zoneHour = hour + zone < 0 ? hour + (zone + 24) : hour + zone;
  return position(sunCoordinates(daysFromJ2000(year, month, day, hour), longitude, angleOfRadians(latitude)),
                  zoneHour);
}

PositionData RiseAndSetCalc::CalculateMoonPosition(double longitude, double latitude, std::int32_t year,
                                                   std::int32_t month, std::int32_t day, double hour,
                                                   double timezoneInterval) {
  return position(moonCoordinates(_mjd(day, month, year, 0) + hour / 24, longitude * degreesPerRadian,
                                  angleOfRadians(latitude)),
                  hour + timezoneInterval);
}

PositionData RiseAndSetCalc::ComputeSunPosition(Instant date, const GeoLocationData& location,
                                                std::int64_t secondsFromGMT) {
  const Calendar calendar(location.calendarZone(secondsFromGMT));
  const DateComponents c = calendar.components(movedToUniversalReading(date, secondsFromGMT));
  const auto hour = static_cast<double>(c.hour), minute = static_cast<double>(c.minute);
  return position(sunCoordinates(daysFromJ2000(c.year, c.month, c.day, hour + minute / 60),
                                 location.longitude * radiansPerDegree,
                                 angleOfRadians(location.latitude * radiansPerDegree)),
                  hour);
}

PositionData RiseAndSetCalc::ComputeMoonPosition(Instant date, const GeoLocationData& location,
                                                 std::int64_t secondsFromGMT) {
  const Calendar calendar(location.calendarZone(secondsFromGMT));
  const DateComponents c = calendar.components(date);
  const double offsetHours = static_cast<double>(secondsFromGMT) / 3600;
  const double hour = static_cast<double>(c.minute) / 60 + static_cast<double>(c.hour) - offsetHours;
  return CalculateMoonPosition(location.longitude * printedRadiansPerDegree,
                               location.latitude * printedRadiansPerDegree, static_cast<std::int32_t>(c.year),
                               static_cast<std::int32_t>(c.month), static_cast<std::int32_t>(c.day), hour,
                               offsetHours);
}

PositionData RiseAndSetCalc::_find_moon_position(double mjd0, double hour, double longitude,
                                                 double cosLatitude, double sinLatitude) {
  return position(moonCoordinates(mjd0 + hour / 24, longitude, {cosLatitude, sinLatitude}), hour);
}

}  // namespace velmora
