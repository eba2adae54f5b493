#pragma once

#include <velmora/ephemeris/Ephemeris.h>

namespace [[gnu::visibility("hidden")]] velmora {
namespace ephemeris {

// Terrestrial time in the ephemeris and the almanac; not for other folders.

inline constexpr double secondsPerDay = 86400.0;
inline constexpr double secondsPerCentury = 36525.0 * secondsPerDay;

/// J2000, 2000-01-01T12:00 of Terrestrial Time, on a clock that counts as an Instant does.
inline constexpr double secondsAtJ2000 = 946728000.0;

/// Seconds of Terrestrial Time from J2000 to the instant.
inline double terrestrialSeconds(Instant instant) {
  return unixSeconds(instant) - secondsAtJ2000 + terrestrialMinusUniversal(instant);
}

/// Julian centuries of Terrestrial Time from J2000 to the instant.
inline double terrestrialCenturies(Instant instant) {
  return terrestrialSeconds(instant) / secondsPerCentury;
}

}  // namespace ephemeris
}  // namespace velmora
