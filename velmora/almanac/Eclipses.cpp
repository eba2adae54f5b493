#include <velmora/almanac/Eclipses.h>

#include <algorithm>
#include <cmath>
#include <cstdint>

#include <velmora/almanac/CoveredPart.h>
#include <velmora/almanac/EclipseDiscs.h>
#include <velmora/almanac/EclipseSky.h>
#include <velmora/almanac/Lunation.h>
#include <velmora/almanac/Trigonometry.h>

namespace velmora::almanac {
namespace {

constexpr double earthRadius = 6378.137;                    // km, of the equator
constexpr double polarScale = 1 / (1 - 1 / 298.257223563);  // makes the ellipsoid of WGS84 a sphere

Vector scaled(const Vector& v) { return {v.x, v.y, v.z * polarScale}; }
Vector unscaled(const Vector& v) { return {v.x, v.y, v.z / polarScale}; }

/// The axis of the Moon's shadow and the Earth in scaled coordinates, in which it is a sphere.
class ShadowOnEarth {
 public:
  ShadowOnEarth(const EclipseSky& sky, double seconds)
      : _sun(sky.sun(seconds).at), _moon(sky.moon(seconds).at) {
    const Vector sun = scaled(_sun), moon = scaled(_moon);
    const Vector toSun = sun - moon;
    _direction = (1 / length(toSun)) * toSun;
    _nearest = moon - dot(moon, _direction) * _direction;
  }

  /// Whether the axis meets the Earth.
  bool isOnEarth() const { return length(_nearest) < earthRadius; }

  /// The discs as seen from where the axis meets the day side, or, where it misses, from the limb nearest to
  /// it.
  SolarDiscs discs() const {
    const double squaredHeight = earthRadius * earthRadius - dot(_nearest, _nearest);
    const Vector place = unscaled(isOnEarth() ? _nearest + std::sqrt(squaredHeight) * _direction
                                              : (earthRadius / length(_nearest)) * _nearest);
    return solarDiscs({_sun - place, {}}, {_moon - place, {}});
  }

 private:
  Vector _sun, _moon;  // not scaled
  Vector _direction, _nearest;
};

/// When the axis begins (side −1) or ceases (side 1) to meet the Earth; `seconds` is a moment at which it
/// does.
double endOfCentralLine(const EclipseSky& sky, double seconds, double side) {
  double inside = seconds, outside = seconds + side * 4 * 3600;
  while (std::abs(outside - inside) > 1) {
    const double middle = (inside + outside) / 2;
    (ShadowOnEarth(sky, middle).isOnEarth() ? inside : outside) = middle;
  }
  return inside;
}

EclipseKind solarKind(const EclipseSky& sky, double seconds, const SolarDiscs& discs) {
  if (!discs.isCentral()) return EclipseKind::partial;
  const auto kind = [](bool isTotal) { return isTotal ? EclipseKind::total : EclipseKind::annular; };
  if (!ShadowOnEarth(sky, seconds).isOnEarth()) return kind(discs.isTotal());
  for (const double side : {-1.0, 1.0}) {
    const ShadowOnEarth atEnd(sky, endOfCentralLine(sky, seconds, side));
    if (atEnd.discs().isTotal() != discs.isTotal()) return EclipseKind::hybrid;
  }
  return kind(discs.isTotal());
}

/// From one lunation to the next the number of the series grows by 38, and after 223 lunations it is the
/// same: so that it follows from the lunation. van Gent, "A Catalogue of Eclipse Cycles".
int saros(Quarter quarter, Body body) {
  constexpr int lunationsOfSeries = 223;
  constexpr int lowest = 60;  // the series of 1900 to 2100 lie between this number and 222 more
  const std::int64_t lunation = quarter >= 0 ? quarter / 4 : (quarter - 3) / 4;
  const int ofJanuary2000 = body == Body::sun ? 112 : 124;  // Moon: 21 January; Sun: none, but it would be
  const std::int64_t number = (ofJanuary2000 + 38 * lunation - lowest) % lunationsOfSeries;
  return static_cast<int>((number + lunationsOfSeries) % lunationsOfSeries) + lowest;
}

bool setSolar(Eclipse& eclipse, const EclipseSky& sky, double seconds) {
  const ShadowOnEarth shadow(sky, seconds);
  const SolarDiscs discs = shadow.discs();
  if (!discs.isEclipse()) return false;
  eclipse.kind = solarKind(sky, seconds, discs);
  eclipse.magnitude = shadow.isOnEarth() ? discs.magnitude() : discs.coveredDiameter();
  return true;
}

bool setLunar(Eclipse& eclipse, const EclipseSky& sky, double seconds) {
  const EarthShadow shadow = earthShadow(sky.sun(seconds), sky.moon(seconds));
  eclipse.kind = shadow.kind();
  eclipse.magnitude = shadow.magnitude(eclipse.kind);
  return eclipse.magnitude > 0;
}

/// At the new or full moon; none where the shadow misses.
std::optional<Eclipse> eclipseAt(Quarter quarter) {
  const RoughPhase phase = roughPhase(quarter);
  constexpr double farthestFromNode = 0.37;  // sine; Meeus, "Astronomical Algorithms", chapter 54: 0.36
  if (std::abs(sine(phase.latitudeArgument)) > farthestFromNode) return std::nullopt;
  const auto sky = EclipseSky::around(phase.at);
  if (!sky) return std::nullopt;

  Eclipse eclipse;
  eclipse.body = quarter % 4 == 0 ? Body::sun : Body::moon;
  const double seconds = sky->greatest(eclipse.body);
  const bool isEclipse =
      eclipse.body == Body::sun ? setSolar(eclipse, *sky, seconds) : setLunar(eclipse, *sky, seconds);
  if (!isEclipse) return std::nullopt;
  const Vector across = sky->offset(eclipse.body, seconds).at;
  eclipse.gamma = std::copysign(length(across) / earthRadius, across.z);
  eclipse.maximum = sky->instant(seconds);
  eclipse.saros = saros(quarter, eclipse.body);
  return eclipse;
}

}  // namespace

std::vector<Eclipse> eclipses(Instant from, Instant to) {
  std::vector<Eclipse> found;
  const auto part = coveredPart(from, to);
  if (!part) return found;
  const auto [begin, end] = *part;
  const Quarter last = meanQuarterBefore(end) + 2;
  for (Quarter quarter = (meanQuarterBefore(begin) - 1) & ~Quarter{1}; quarter <= last; quarter += 2) {
    const auto eclipse = eclipseAt(quarter);
    if (eclipse && begin <= eclipse->maximum && eclipse->maximum < end) found.push_back(*eclipse);
  }
  return found;
}

}  // namespace velmora::almanac
