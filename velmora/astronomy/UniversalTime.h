#pragma once

#include <cstdint>

#include <velmora/platform/time/Instant.h>

namespace [[gnu::visibility("hidden")]] velmora {

// What the files of the engine share of time scales; not for other folders.

inline constexpr double mjdOfJ2000 = 51544.5;  ///< 2000 January 1, 12h
inline constexpr double daysPerCentury = 36525.0;

/// Julian centuries from 2000 January 1, 12h to the Modified Julian Date.
template <class Number>
constexpr Number centuriesSinceJ2000(const Number& mjd) {
  return (mjd - mjdOfJ2000) / daysPerCentury;
}

/// Greenwich mean sidereal time at a Modified Julian Date of universal time, in degrees, [0, 360).
/// Meeus, Astronomical Algorithms, 2nd ed., formula 12.4.
double greenwichMeanSiderealDegrees(double mjd);

/// The instant moved so that clocks of a zone with that offset show the universal date and time of `date`.
/// Kept: where clocks change between the two instants the reading is off by the change.
constexpr Instant movedToUniversalReading(Instant date, std::int64_t secondsFromGMT) {
  return date - Seconds(static_cast<double>(secondsFromGMT));
}

}  // namespace velmora
