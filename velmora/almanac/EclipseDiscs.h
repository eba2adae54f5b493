#pragma once

#include <velmora/almanac/Eclipses.h>
#include <velmora/almanac/Vectors.h>

namespace [[gnu::visibility("hidden")]] velmora {
namespace almanac {

/// Two centres that pass each other in the sky: radians and seconds.
struct Separation {
  double angle;
  double product;       ///< of the angle and its rate: 0 where they are nearest to each other
  double squaredSpeed;  ///< of one centre past the other

  Separation(const Motion& a, const Motion& b);
};

/// The Sun and the Moon before each other as seen from a point. Angles in radians.
struct SolarDiscs {
  Separation separation;  ///< of the centres
  double outer;           ///< the separation at which the discs touch from outside
  double inner;  ///< that at which they touch from inside, less than zero where the Moon's is the larger one

  bool isEclipse() const { return separation.angle < outer; }
  bool isCentral() const;  ///< one disc lies within the other
  bool isTotal() const { return isCentral() && inner < 0; }

  /// From the Sun's limb to the Moon's that lies over it, in diameters of the Sun: more than 1 deep in a
  /// total eclipse. Meeus, "Elements of Solar Eclipses 1951-2200", local circumstances, as the following.
  double coveredDiameter() const;
  /// Where one disc lies within the other the ratio of the Moon's diameter to the Sun's, else the covered
  /// part of the Sun's diameter.
  double magnitude() const;
  double obscuration() const;  ///< covered part of the Sun's area, 0..1
};

/// As seen from where the two vectors, kilometres, begin.
SolarDiscs solarDiscs(const Motion& toSun, const Motion& toMoon);

/// The Moon and the Earth's shadow as seen from the centre of the Earth. Angles in radians. The shadow's
/// radii are by Danjon's rule: the Moon's parallax is enlarged by 1.01 for the air. Espenak and Meeus, "Five
/// Millennium Canon of Lunar Eclipses", section 1.
struct EarthShadow {
  Separation separation;         ///< of the Moon's centre from the shadow's
  double umbra, penumbra, moon;  ///< radii

  EclipseKind kind() const;  ///< total, partial or penumbral; the last also where the Moon misses the shadow
  /// The part of the Moon's diameter within the umbra, more than 1 where it lies deeper and less than 0 where
  /// it stays outside; for a penumbral eclipse within the penumbra.
  double magnitude(EclipseKind kind) const;
};

EarthShadow earthShadow(const Motion& sun, const Motion& moon);

}  // namespace almanac
}  // namespace velmora
