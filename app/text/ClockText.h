#pragma once

#include <optional>
#include <string>
#include <string_view>

#include <velmora/platform/time/Instant.h>
#include <velmora/platform/time/TimeZone.h>

namespace velmora::app {

/// A rise, a set or the like on the local day that it is listed under, or on the next.
struct DayEvent {
  int minutes = 0;  ///< after 00:00 of its own day, 0..1439
  bool isNextDay = false;

  friend bool operator==(const DayEvent&, const DayEvent&) = default;
};

/// The event that a rise/set record's text in the 24-hour form names; none for "--" and "--:--". Only that
/// form tells midnight from noon: a time rounded up to the day's end is "24:00" there and "12:00 PM" in the
/// other.
std::optional<DayEvent> dayEvent(std::string_view recordText);

/// A time of day as people write it: "00:15" or "12:15 AM".
std::string clockText(int minutes, bool use24HourClock);

/// The day and the time, to the minute, that the zone's clocks show: "2024-06-20 00:15".
std::string localText(Instant instant, const TimeZone& zone, bool use24HourClock);

/// A length of time: "18h 05m".
std::string lengthText(int minutes);

}  // namespace velmora::app
