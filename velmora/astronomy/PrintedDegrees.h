#pragma once

#include <velmora/astronomy/SunAndMoonSeries.h>

namespace [[gnu::visibility("hidden")]] velmora {

// The rounding of the printed formulas between the series and the altitude; not for other folders.
//
// The series convert radians to degrees with one constant, the altitude converts degrees to radians with
// another, which is a little smaller. The functions here compute the same result without converting. The
// difference is so small that its first-order term is exact in double precision, and an angle that is known
// to a few digits is enough for it.

inline constexpr double printedRadiansPerDegree = 0.0174532925;
inline constexpr double printedRadiansPerCircle = 360 * printedRadiansPerDegree;

/// The relative difference between the two constants, 1.1e-9.
inline constexpr double lostShare = 1 - printedRadiansPerCircle / seriesTwoPi;

/// The arcsine of at most 0.71 to 0.002 radians, of at most 0.5 to 0.0005.
template <class Number>
constexpr Number roughArcsine(const Number& sine) {
  const Number square = sine * sine;
  return sine * (1 + square * (1.0 / 6 + square * 0.1));
}

/// The declination of which z is the sine and rho the cosine, reduced by that share.
template <class Number>
constexpr Angle<Number> declinationAfterDegrees(const Number& z, const Number& rho) {
  const Number lost = lostShare * roughArcsine(z);
  return {rho + lost * z, z - lost * rho};
}

}  // namespace velmora
