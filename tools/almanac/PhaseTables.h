#pragma once

#include <string>
#include <vector>

#include "Ephemeris.h"

namespace almanac {

/// The Moon's principal phases, in the order in which they follow one another.
enum class Phase { newMoon, firstQuarter, fullMoon, lastQuarter };

struct PhaseEvent {
  Phase phase;
  UtcMinute time;
};

/// All principal phases of the years covered, in order of time: the instants at which the Moon stands 0, 90,
/// 180 and 270 degrees east of the Sun.
std::vector<PhaseEvent> principalPhases(const Ephemeris& ephemeris);

/// The table of one year as an XML property list: a dictionary from the month's number, "1" to "12", to its
/// events as texts "d HH:mm CODE" in UTC; two blanks after a day of one digit keep the times in a column.
std::string phaseTable(int year, const std::vector<PhaseEvent>& events);

}  // namespace almanac
