#pragma once

#include <vector>

#include <app/answers/Query.h>
#include <app/place/CivilDays.h>

namespace velmora::app {

/// The days that the request asks for: a range without the days that the place's clocks skipped, or one day,
/// which must exist. Throws BadInput for a range that is incomplete, runs backwards or is longer than 41
/// years.
std::vector<CivilDate> daysOf(const Query& query);

/// The one day that the request asks for, today if it names none. Throws BadInput if the place's clocks
/// skipped it.
CivilDate dayOf(const Query& query);

/// The instant that the request asks for: its time of day, else the given one, on its day.
Instant instantOf(const Query& query, ClockTime usual);

/// The moment that the Sun's series and its elevation search begin at, by the rule of the engine: the instant
/// less the offset (seconds), read from the place's clocks as universal time. Within hours of a clock change
/// it is off by the change.
Instant universalReading(Instant instant, std::int64_t offset, const Place& place);

/// The instant that the request asks for: now, or where it names a day without a time, noon of that day.
Instant presentOf(const Query& query);

}  // namespace velmora::app
