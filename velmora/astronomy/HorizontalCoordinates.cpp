#include <velmora/astronomy/HorizontalCoordinates.h>

#include <cmath>

#include <velmora/astronomy/PrintedDegrees.h>
#include <velmora/astronomy/RiseAndSetCalc.h>
#include <velmora/astronomy/UniversalTime.h>
#include <velmora/platform/time/NumberText.h>

namespace [[gnu::visibility("hidden")]] velmora {
namespace {

// The Sun's equation of the centre in radians: 1.915° and 0.020°.
constexpr double centreOfAnomaly = 0.03342305517569141;
constexpr double centreOfTwiceAnomaly = 0.00034906585039886593;

std::string degreesText(double degrees) { return decimalText(degrees, 1) + "°"; }

template <class Number>
Angle<Number> obliquity(const Number& d) {
  static const Angle<double> atEpoch = angleOfRadians(0.4090877233749509);
  return Angle<Number>{cos(atEpoch), sin(atEpoch)} - smallAngle<Number>(6.981317007977318e-09 * d);
}

double withinTurn(double radians) { return RiseAndSetCalc::FNRange(radians); }

FourNumbers withinTurn(const FourNumbers& radians) {
  FourNumbers reduced;
  for (std::size_t i = 0; i < FourNumbers::count; ++i) reduced.set(i, withinTurn(radians[i]));
  return reduced;
}

/// Greenwich's sidereal time with the longitude, in radians.
template <class Number>
Number localSiderealRadians(const Number& d, double longitude) {
  return longitude + (280.46061837 + 360.98564736629 * d) * radiansPerDegree;
}

template <class Number>
Number anomalyOfSun(const Number& d) {
  return 6.240040768070287 + 0.017201970343643867 * d;
}

template <class Number>
Number longitudeOfSun(const Number& d) {
  return 4.894967873435816 + 0.017202792393721557 * d;
}

/// A unit vector's vertical and horizontal parts.
template <class Number>
struct HorizontalDirection {
  Number up, north, east;
};

HorizontalCoordinates coordinatesOf(const HorizontalDirection<double>& body) {
  return {std::asin(body.up) * degreesPerRadian,
          RiseAndSetCalc::FNatn2(body.east, body.north) * degreesPerRadian};
}

/// Whether the printed reduction brings every angle of the Sun into its turn. It takes a negative one further
/// away, where only the printed steps themselves are rounded like those.
bool reducesAnglesOfSun(double d, double longitude) {
  return d >= 0 && localSiderealRadians(d, longitude) >= 0;
}

/// The angles of the Sun's formula.
template <class Number>
struct SunAngles {
  Angle<Number> g, meanLongitude, siderealAngle;
};

SunAngles<FourNumbers> sunAngles(const FourNumbers& d, double longitude) {
  const auto angle = [](const FourNumbers& radians) {
    return angleWithinTurn<FourNumbers>(withinTurn(radians));
  };
  return {angle(anomalyOfSun(d)), angle(longitudeOfSun(d)), angle(localSiderealRadians(d, longitude))};
}

SunAngles<double> sunAngles(double d, double longitude) {
  const auto angles = anglesSideBySide(
      withinTurn(FourNumbers::of(anomalyOfSun(d), longitudeOfSun(d), localSiderealRadians(d, longitude), 0)));
  return {angles[0], angles[1], angles[2]};
}

/// The Sun by the addition theorems, where its angles are reduced.
template <class Number>
HorizontalDirection<Number> sunDirectionInSky(const Number& d, double longitude,
                                              const Angle<double>& latitude) {
  const auto [g, meanLongitude, siderealAngle] = sunAngles(d, longitude);
  const Angle<Number> lambda =
      meanLongitude + smallAngle<Number>(centreOfAnomaly * sin(g) + centreOfTwiceAnomaly * sin(g + g));
  const Angle<Number> epsilon = obliquity(d);
  const Number x = cos(lambda), y = cos(epsilon) * sin(lambda), z = sin(epsilon) * sin(lambda);
  const Number south = cos(siderealAngle) * x + sin(siderealAngle) * y;
  const Number east = cos(siderealAngle) * y - sin(siderealAngle) * x;
  const Number up = sin(latitude) * z + cos(latitude) * south;
  return {up, z - sin(latitude) * up, cos(latitude) * east};
}

HorizontalCoordinates sunCoordinatesByPrintedSteps(double d, double longitude,
                                                   const Angle<double>& latitude) {
  const Angle<double> lambda = angleOfRadians(RiseAndSetCalc::FNsun(d)), epsilon = obliquity(d);
  const double alpha = RiseAndSetCalc::FNatn2(cos(epsilon) * sin(lambda), cos(lambda));
  const double sinDelta = sin(epsilon) * sin(lambda), cosDelta = std::sqrt(1 - sinDelta * sinDelta);
  const double siderealAngle = withinTurn(localSiderealRadians(d, longitude));
  const Angle<double> H = angleOfRadians(RiseAndSetCalc::FNRange(siderealAngle - alpha));
  const double sinAltitude = sinDelta * sin(latitude) + cosDelta * cos(latitude) * cos(H);
  return coordinatesOf(
      {sinAltitude, sinDelta - sin(latitude) * sinAltitude, -cosDelta * cos(latitude) * sin(H)});
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

double RiseAndSetCalc::FNsun(double daysFromJ2000) {
  const double L = FNRange(longitudeOfSun(daysFromJ2000));
  const Angle<double> g = angleOfRadians(FNRange(anomalyOfSun(daysFromJ2000)));
  return FNRange(L + centreOfAnomaly * sin(g) + centreOfTwiceAnomaly * sin(g + g));
}

HorizontalCoordinates sunCoordinates(double d, double longitude, const Angle<double>& latitude) {
  if (!reducesAnglesOfSun(d, longitude)) return sunCoordinatesByPrintedSteps(d, longitude, latitude);
  return coordinatesOf(sunDirectionInSky(d, longitude, latitude));
}

std::array<HorizontalCoordinates, FourNumbers::count> sunCoordinates(const FourNumbers& d, double longitude,
                                                                     const Angle<double>& latitude) {
  std::array<HorizontalCoordinates, FourNumbers::count> places;
  const bool areReduced = reducesAnglesOfSun(d[0], longitude);
  const auto sun = sunDirectionInSky(d, longitude, latitude);
  for (std::size_t i = 0; i < FourNumbers::count; ++i) {
    places[i] = areReduced ? coordinatesOf({sun.up[i], sun.north[i], sun.east[i]})
                           : sunCoordinatesByPrintedSteps(d[i], longitude, latitude);
  }
  return places;
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
