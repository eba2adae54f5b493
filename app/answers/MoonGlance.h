#pragma once

#include <memory>
#include <optional>
#include <string>

#include <app/answers/Illumination.h>
#include <app/answers/PhaseYear.h>
#include <velmora/phases/PhaseItem.h>
#include <velmora/service/EclipseInfo.h>

namespace velmora::app {

/// What there is to say of the Moon on a day at a place.
struct MoonGlance {
  PhaseItem day;
  Illumination illumination;                    ///< at the present
  std::optional<PhaseEvent> newMoon, fullMoon;  ///< the next from the present on; none where the tables end
  std::shared_ptr<const EclipseInfo> eclipse;   ///< the visible one of the day
};

/// Throws BadInput for a day that the tables do not cover, Failure if a table cannot be read.
MoonGlance moonGlance(const Query& query);

/// As members of one object: the day's record, `phaseName`, `illumination`, `nextNewMoon`, `nextFullMoon` and
/// `eclipse`, the last three null without one.
Json moonGlanceJson(const MoonGlance& glance);

/// The drawn disc as seen from the place, and beside it what is said of it.
std::string moonGlanceText(const MoonGlance& glance, const Query& query);

}  // namespace velmora::app
