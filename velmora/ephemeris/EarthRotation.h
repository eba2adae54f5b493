#pragma once

#include <velmora/ephemeris/Ephemeris.h>

namespace [[gnu::visibility("hidden")]] velmora {
namespace ephemeris {

/// Mean sidereal time at Greenwich in turns, counted from a day near J2000 on. For the ephemeris and
/// the almanac.
double siderealTurns(Instant instant);

}  // namespace ephemeris
}  // namespace velmora
