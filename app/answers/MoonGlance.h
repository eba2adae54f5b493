#pragma once

#include <optional>
#include <string>

#include <app/answers/Phases.h>
#include <app/answers/SeenEclipses.h>
#include <velmora/almanac/Positions.h>

namespace velmora::app {

/// What there is to say of the Moon on a day at a place.
struct MoonGlance {
  MoonDay day;
  almanac::Illumination light;               ///< at the present
  std::optional<Instant> newMoon, fullMoon;  ///< the next from the present on; none after 2100
  std::optional<SeenEclipse> eclipse;        ///< the one that is seen on the day
};

/// Throws BadInput for a day that the almanac does not know.
MoonGlance moonGlance(const Query& query);

/// As members of one object: `phase`, `phaseName`, `fullFactor` and `moonAge` as the library's tables have
/// them, `illumination`, `nextNewMoon`, `nextFullMoon` and `eclipse`, null where there is none. Throws
/// Failure if a table cannot be read.
Json moonGlanceJson(const MoonGlance& glance, const Place& place);

/// The drawn disc as seen from the place, and beside it what is said of it.
std::string moonGlanceText(const MoonGlance& glance, const Query& query);

}  // namespace velmora::app
