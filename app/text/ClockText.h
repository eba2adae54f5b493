#pragma once

#include <string>

#include <app/text/CivilTime.h>
#include <velmora/platform/time/Instant.h>
#include <velmora/platform/time/TimeZone.h>

namespace velmora::app {

/// What a calendar and a clock show.
struct Reading {
  CivilDate date;
  int minutes = 0;  ///< after 00:00, 0..1439

  friend bool operator==(const Reading&, const Reading&) = default;
};

/// The instant to the nearest minute of the zone's clocks; in a day's last half minute the minute that has
/// begun, so that what happens on a day is not written under the next.
Instant nearestMinute(Instant instant, const TimeZone& zone);

/// What calendar and clock show at that minute.
Reading readingAt(Instant instant, const TimeZone& zone);

/// A time of day as people write it: "00:15" or "12:15 AM".
std::string clockText(int minutes, bool use24HourClock);

/// The time of day, to the second, that the zone's clocks show: "00:15:09" or "12:15:09 AM".
std::string clockTextToTheSecond(Instant instant, const TimeZone& zone, bool use24HourClock);

/// The day and the time, to the minute, that the zone's clocks show: "2024-06-20 00:15".
std::string localText(Instant instant, const TimeZone& zone, bool use24HourClock);

/// A length of time: "18h 05m".
std::string lengthText(int minutes);

}  // namespace velmora::app
