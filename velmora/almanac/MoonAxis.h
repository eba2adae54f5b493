#pragma once

#include <optional>

#include <velmora/almanac/Place.h>
#include <velmora/platform/time/Instant.h>

namespace velmora::almanac {

/// How far the Moon's north pole is turned from straight up as its disc is seen from the place with the
/// zenith up, counterclockwise, degrees [0, 360); none for what is not valid or not covered. By Cassini's
/// laws: the Moon's equator is inclined by 1.54242° to the ecliptic and descends where the Moon's mean path
/// ascends; its small libration about them, up to 0.04°, is left out. Meeus, "Astronomical Algorithms",
/// chapter 53.
std::optional<double> moonAxisTilt(const Place& place, Instant at);

}  // namespace velmora::almanac
