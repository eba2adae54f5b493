#pragma once

#include <app/text/CivilTime.h>
#include <velmora/platform/time/TimeZone.h>

namespace velmora::app {

/// The day that the zone's calendars show at the instant.
CivilDate dateAt(Instant instant, const TimeZone& zone);

/// Whether the zone's clocks ever showed that day; Apia's went from 29 to 31 December 2011.
bool exists(CivilDate date, const TimeZone& zone);

/// The instant of a time of day on a day in the zone: the first where it occurs twice, and one that the
/// clocks skip is read with the offset before the change.
Instant instantOn(CivilDate date, ClockTime time, const TimeZone& zone);

}  // namespace velmora::app
