#pragma once

#include <cstdint>

#include <velmora/platform/time/Instant.h>
#include <velmora/platform/time/TimeZone.h>

namespace velmora {

/// A calendar other than the Gregorian, of which the month views show the day number. A cheap value.
class AlternateCalendar {
 public:
  /// The calendars known.
  enum class Kind { hebrew, islamicUmmAlQura, buddhist, japanese, chinese, indian };

  /// The calendar of that kind whose days begin at midnight in the zone.
  AlternateCalendar(Kind kind, TimeZone timeZone) : _kind(kind), _timeZone(std::move(timeZone)) {}

  /// The day of the month that the instant has in this calendar and zone, 1 or more.
  std::int64_t day(Instant instant) const;

 private:
  Kind _kind;
  TimeZone _timeZone;
};

}  // namespace velmora
