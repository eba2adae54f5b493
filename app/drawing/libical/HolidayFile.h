#pragma once

#include <chrono>
#include <string>
#include <vector>

#include <velmora/platform/time/TimeZone.h>
#include <velmora/posters/CalendarPoster.h>

namespace velmora::app {

/// The days of the year that the calendar (iCalendar, RFC 5545) names, in order: those of its events of whole
/// days, and of events at a time of day those that they lie on where they are, at the zone where they have
/// universal time. Recurrences, exceptions, moved and cancelled events are followed; of a longer event the
/// first 366 days. `source` names the file in messages. Throws BadInput where the text is damaged or has
/// events that recur within a day, by another calendar or beyond what is followed: two million days to look
/// at in all.
std::vector<CalendarNote> holidaysIn(const std::string& text, const std::string& source,
                                     std::chrono::year year, const TimeZone& zone);

/// Those of the file. Throws BadInput where it cannot be read or is larger than 1 MB, too.
std::vector<CalendarNote> holidaysOf(const std::string& file, std::chrono::year year, const TimeZone& zone);

}  // namespace velmora::app
