#pragma once

#include <string>
#include <vector>

#include "Ephemeris.h"

namespace almanac {

struct EclipseEvent {
  EclipseKind kind;
  UtcMinute time;
};

/// All eclipses of the Moon and the Sun in the years covered, each at its greatest, in order of time.
std::vector<EclipseEvent> allEclipses(const Ephemeris& ephemeris);

/// The catalogue: a line "MM/dd/yyyy HH:mm,CODE" in UTC for every eclipse.
std::string eclipseCatalogue(const std::vector<EclipseEvent>& events);

}  // namespace almanac
