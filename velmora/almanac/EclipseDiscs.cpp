#include <velmora/almanac/EclipseDiscs.h>

#include <algorithm>
#include <cmath>
#include <numbers>

#include <velmora/almanac/Disc.h>
#include <velmora/almanac/Trigonometry.h>

namespace [[gnu::visibility("hidden")]] velmora {
namespace almanac {
namespace {

// The radii of the "Five Millennium Canon of Solar Eclipses" (Espenak and Meeus), kilometres, as the Sun's.
constexpr double earthRadius = 6378.137;  // of the equator
// 1738.1 with the mountains of the limb, 1736.6 by its valleys, through which the last of the Sun shines.
constexpr double outerMoonRadius = 0.272508 * earthRadius;
constexpr double innerMoonRadius = 0.272281 * earthRadius;
constexpr double danjonEnlargement = 1.01;

/// The area that two circles share.
double sharedArea(double a, double b, double separation) {
  const auto segment = [&](double radius, double other) {
    const double toChord = (separation * separation + radius * radius - other * other) / (2 * separation);
    const double half = arccosine(std::clamp(toChord / radius, -1.0, 1.0));
    return radius * radius * (half - sine(half) * cosine(half));
  };
  return segment(a, b) + segment(b, a);
}

}  // namespace

Separation::Separation(const Motion& a, const Motion& b) {
  const Motion chord = direction(a) - direction(b);
  angle = 2 * arcsine(length(chord.at) / 2);
  product = dot(chord.at, chord.rate);
  squaredSpeed = dot(chord.rate, chord.rate);
}

bool SolarDiscs::isCentral() const { return separation.angle < std::abs(inner); }

double SolarDiscs::coveredDiameter() const { return (outer - separation.angle) / (outer + inner); }

double SolarDiscs::magnitude() const {
  return isCentral() ? (outer - inner) / (outer + inner) : coveredDiameter();
}

double SolarDiscs::obscuration() const {
  if (!isEclipse()) return 0;
  if (isTotal()) return 1;
  // The radii with which the two contacts fit together: at either the covered part has no jump.
  const double sun = (outer + inner) / 2, moon = (outer - inner) / 2;
  const double covered =
      isCentral() ? moon * moon : sharedArea(sun, moon, separation.angle) / std::numbers::pi;
  return std::min(covered / (sun * sun), 1.0);
}

SolarDiscs solarDiscs(const Motion& toSun, const Motion& toMoon) {
  const double sunDistance = length(toSun.at), moonDistance = length(toMoon.at);
  const double sun = arcsine(sunRadius / sunDistance);
  return {Separation(toMoon, toSun), sun + arcsine(outerMoonRadius / moonDistance),
          sun - arcsine(innerMoonRadius / moonDistance)};
}

EclipseKind EarthShadow::kind() const {
  if (separation.angle < umbra - moon) return EclipseKind::total;
  return separation.angle < umbra + moon ? EclipseKind::partial : EclipseKind::penumbral;
}

double EarthShadow::magnitude(EclipseKind kind) const {
  const double shadow = kind == EclipseKind::penumbral ? penumbra : umbra;
  return (shadow + moon - separation.angle) / (2 * moon);
}

EarthShadow earthShadow(const Motion& sun, const Motion& moon) {
  const double sunDistance = length(sun.at), moonDistance = length(moon.at);
  const double shadow =
      danjonEnlargement * arcsine(earthRadius / moonDistance) + arcsine(earthRadius / sunDistance);
  const double sunSemidiameter = arcsine(sunRadius / sunDistance);
  return {Separation(moon, Motion{} - sun), shadow - sunSemidiameter, shadow + sunSemidiameter,
          arcsine(outerMoonRadius / moonDistance)};
}

}  // namespace almanac
}  // namespace velmora
