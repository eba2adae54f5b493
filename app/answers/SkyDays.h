#pragma once

#include <string>
#include <vector>

#include <app/answers/Query.h>
#include <velmora/almanac/Events.h>

namespace velmora::app {

/// A civil day at the place and what happens in its sky.
struct SkyDay {
  CivilDate date;
  almanac::Day sky;
};

/// The days that the request asks for, with the events of `choice` besides rise and set. Throws BadInput as
/// `daysOf` and `intervalOf` do.
std::vector<SkyDay> skyDaysOf(const Query& query, const almanac::EventChoice& choice);

/// The times of a day's events of that kind, in order: "00:10", "23:58".
std::vector<std::string> eventTimes(const SkyDay& day, almanac::Body body, almanac::EventKind kind,
                                    const Query& query);

/// The same in one text: "00:10, 23:58"; "none" without one.
std::string eventTimesText(const SkyDay& day, almanac::Body body, almanac::EventKind kind,
                           const Query& query);

/// "up all day", "down all day".
std::string allDayText(almanac::AllDay where);

/// How long the Sun is up within the day: "18h 05m".
std::string daylightText(const SkyDay& day);

/// "sunrise", "moonTransit" and the like are one of these: "rise", "civilDawn".
std::string_view eventName(almanac::EventKind kind);

/// "moon", "sun".
std::string_view bodyName(almanac::Body body);

/// "Moon", "Sun".
std::string bodyTitle(almanac::Body body);

}  // namespace velmora::app
