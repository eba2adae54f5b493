#pragma once

#include <string>
#include <vector>

#include <app/answers/Query.h>
#include <app/place/CivilDays.h>
#include <velmora/almanac/Events.h>

namespace velmora::app {

/// The days that the request asks for: a range without the days that the place's clocks skipped, or one day,
/// which must exist. Throws BadInput for a range that is incomplete, runs backwards or is longer than 41
/// years.
std::vector<CivilDate> daysOf(const Query& query);

/// The one day that the request asks for, today if it names none. Throws BadInput if the place's clocks
/// skipped it.
CivilDate dayOf(const Query& query);

/// The instant that the request asks for: now, or where it names a day without a time, noon of that day.
Instant presentOf(const Query& query);

/// From the first instant of the first of these days, which exist, to the end of the last. Throws BadInput
/// where the almanac does not know all of it: at the edge of its years, which are those of universal time.
almanac::Interval intervalOf(const std::vector<CivilDate>& days, const Query& query);

/// The interval of the days that the request asks for; one without an instant where it has no day.
almanac::Interval rangeOf(const Query& query);

/// Throws BadInput without a range.
void checkRangeIsGiven(const Query& query);

/// A line for people below instants of which some are later than what is known of the Earth's rotation; empty
/// if none is.
std::string noteOnTimeToCome(Instant last);

}  // namespace velmora::app
