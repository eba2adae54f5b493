#include <tests/astronomy/reference/Reference.h>

#include <array>
#include <cmath>
#include <cstdio>

#include <tests/support/PlainNumbers.h>

namespace velmora::reference {
namespace {

constexpr double degreesPerRadian = 57.29577951308232;
constexpr double radiansPerDegree = 0.017453292519943295;  // of the Sun
constexpr double moonRadiansPerDegree = 0.0174532925;      // of the Moon's series

double centuriesSinceJ2000(double mjd) { return (mjd - 51544.5) / 36525; }

// 2π of the reduction and its whole turns, as printed.
constexpr double pi = 3.141592653589793, twoPi = 6.283185307179586;

double fnRange(double radians) {
  const double turns = radians / twoPi;
  const double reduced = (turns - std::trunc(std::abs(turns))) * twoPi;
  return reduced < 0 ? reduced + twoPi : reduced;
}

double fnAtn2(double y, double x) {
  double angle = std::atan(y / x);
  if (x < 0) angle += pi;
  if (x > 0 && y < 0) angle += twoPi;
  return angle;
}

double fnSun(double daysFromJ2000) {
  const double L = fnRange(4.894967873435816 + 0.017202792393721557 * daysFromJ2000);
  const double g = fnRange(6.240040768070287 + 0.017201970343643867 * daysFromJ2000);
  return fnRange(L + 0.03342305517569141 * std::sin(g) + 0.00034906585039886593 * std::sin(2 * g));
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

Horizontal sunPosition(double d, double longitude, double latitude) {
  using std::cos, std::sin;
  const double lambda = fnSun(d);
  const double obliquity = 0.4090877233749509 - 6.981317007977318e-09 * d;
  const double alpha = fnAtn2(cos(obliquity) * sin(lambda), cos(lambda));
  const double delta = std::asin(sin(obliquity) * sin(lambda));
  const double siderealAngle = fnRange(longitude + (280.46061837 + 360.98564736629 * d) * radiansPerDegree);
  const double H = fnRange(siderealAngle - alpha);
  const double sinAltitude = sin(delta) * sin(latitude) + cos(delta) * cos(latitude) * cos(H);
  const double azimuth =
      fnAtn2(-cos(delta) * cos(latitude) * sin(H), sin(delta) - sin(latitude) * sinAltitude);
  return {std::asin(sinAltitude) * degreesPerRadian, azimuth * degreesPerRadian};
}

Horizontal moonPosition(double mjd, double longitude, double cosLatitude, double sinLatitude) {
  const EquatorialCoordinates moon = minimoon(centuriesSinceJ2000(mjd));
  const double siderealTime = siderealDegrees(mjd);
  const double H = hourAngle(longitude, siderealTime, moon.rightAscension) * moonRadiansPerDegree;
  const double delta = moon.declination * moonRadiansPerDegree;
  const double sinAltitude = sinLatitude * std::sin(delta) + cosLatitude * std::cos(delta) * std::cos(H);
  const double altitude = std::asin(sinAltitude);
  const double fromNorth =
      std::acos((std::sin(delta) - sinAltitude * sinLatitude) / (cosLatitude * std::cos(altitude))) *
      degreesPerRadian;
  const double azimuth = std::sin(H) > 0 ? 360 - fromNorth : fromNorth;
  return {altitude * degreesPerRadian, azimuth};
}

std::string degreesText(double degrees) {
  if (std::isnan(degrees)) return "nan°";
  const testing::PlainNumbers plain;
  std::array<char, 512> text{};
  std::snprintf(text.data(), text.size(), "%.1f°", degrees);
  return text.data();
}

}  // namespace velmora::reference
