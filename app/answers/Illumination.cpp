#include <app/answers/Illumination.h>

#include <cmath>

#include <velmora/astronomy/RiseAndSetCalc.h>

namespace velmora::app {
namespace {

using DaysAsDouble = std::chrono::duration<double, std::chrono::days::period>;

constexpr Instant j2000 = std::chrono::sys_days(std::chrono::January / 1 / 2000) + std::chrono::hours(12);
constexpr double daysPerCentury = 36525;
constexpr double radiansPerDegree = 0.017453292519943295;
constexpr double radiansPerHour = 15 * radiansPerDegree;
constexpr double obliquity = 23.44 * radiansPerDegree;  // of the ecliptic; it moves 0.01 degrees in 80 years
constexpr double sunDistance = 149'597'871, moonDistance = 385'001;  // means, in kilometres

struct Vector {
  double x, y, z;
};

double dot(const Vector& a, const Vector& b) { return a.x * b.x + a.y * b.y + a.z * b.z; }

Vector cross(const Vector& a, const Vector& b) {
  return {a.y * b.z - a.z * b.y, a.z * b.x - a.x * b.z, a.x * b.y - a.y * b.x};
}

Vector directionOf(const EquatorialCoordinates& body) {
  const double declination = body.declination * radiansPerDegree;
  const double rightAscension = body.rightAscension * radiansPerHour;
  return {std::cos(declination) * std::cos(rightAscension), std::cos(declination) * std::sin(rightAscension),
          std::sin(declination)};
}

}  // namespace

Illumination illuminationAt(Instant instant) {
  const double centuries = DaysAsDouble(instant - j2000).count() / daysPerCentury;
  const Vector sun = directionOf(RiseAndSetCalc::_minisun(centuries));
  const Vector moon = directionOf(RiseAndSetCalc::_minimoon(centuries));
  const Vector perpendicular = cross(sun, moon);
  const double cosElongation = dot(sun, moon), sinElongation = std::sqrt(dot(perpendicular, perpendicular));
  const double phaseAngle =
      std::atan2(sunDistance * sinElongation, moonDistance - sunDistance * cosElongation);
  const Vector eclipticNorth = {0, -std::sin(obliquity), std::cos(obliquity)};
  return {(1 + std::cos(phaseAngle)) / 2, dot(perpendicular, eclipticNorth) > 0};
}

}  // namespace velmora::app
