#pragma once

#include <velmora/ephemeris/Sines.h>

namespace [[gnu::visibility("hidden")]] velmora {
namespace almanac {

/// At this true altitude and below, degrees, nothing is refracted.
inline constexpr double lowestRefracted = -1.0;

/// As `refraction`, of one altitude or of several side by side.
template <class Number>
Number refractionOf(const Number& trueAltitude) {
  const Number zero{}, lowest = zero + lowestRefracted;
  const Number argument = trueAltitude + (zero + 10.3) / (trueAltitude + 5.11);  // degrees
  const auto angle = ephemeris::cosineAndSine(argument * (1.0 / 360));
  const Number refraction = (zero + 1.02 / 60) * angle.re / angle.im;
  // In the zenith the formula as printed is −0.0014′.
  using ephemeris::selectLess;
  return selectLess(lowest, trueAltitude, selectLess(zero, refraction, refraction, zero), zero);
}

/// The apparent altitude of a true one, degrees.
double apparentAltitude(double trueAltitude);

/// The true altitude whose apparent one is given, degrees. Of the altitudes that refraction jumps over, where
/// it begins, it is −1°.
double trueAltitude(double apparentAltitude);

}  // namespace almanac
}  // namespace velmora
