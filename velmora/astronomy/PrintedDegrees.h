#pragma once

#include <velmora/astronomy/SunAndMoonSeries.h>

namespace [[gnu::visibility("hidden")]] velmora {

// What the printed formulas do to angles on their way from the series to the sky; not for other folders.
//
// The series give degrees by one constant, the sky takes them back to radians by another that is a little
// smaller. The formulas here have the outcome without the way through degrees. As the loss is so small, its
// first order is exact and a few figures of the angle itself are enough.

inline constexpr double printedRadiansPerDegree = 0.0174532925;
inline constexpr double printedRadiansPerCircle = 360 * printedRadiansPerDegree;

/// The share of an angle that gets lost, 1.1e-9.
inline constexpr double lostShare = 1 - printedRadiansPerCircle / seriesTwoPi;

/// The arcsine of at most 0.71 to 0.002 radians, of at most 0.5 to 0.0005.
template <class Number>
constexpr Number roughArcsine(const Number& sine) {
  const Number square = sine * sine;
  return sine * (1 + square * (1.0 / 6 + square * 0.1));
}

/// The declination of which z is the sine and rho the cosine, less its lost share.
template <class Number>
constexpr Angle<Number> declinationAfterDegrees(const Number& z, const Number& rho) {
  const Number lost = lostShare * roughArcsine(z);
  return {rho + lost * z, z - lost * rho};
}

}  // namespace velmora
