#pragma once

#include <velmora/platform/time/Calendar.h>

namespace [[gnu::visibility("hidden")]] velmora {

/// The offset from GMT in seconds that the zone has at 09:00 of the instant's day in the calendar. Clocks
/// change in the small hours, so it is the day's usual one. Where 09:00 is skipped the start of the day
/// counts.
inline std::int64_t morningOffset(const TimeZone& zone, Instant date, const Calendar& calendar) {
  constexpr std::int64_t morningHour = 9;
  const Instant start = calendar.startOfDay(date);
  const auto morning = calendar.dateBySettingTime(morningHour, 0, 0, start, TimeMatching::strict);
  return zone.secondsFromGMT(morning.value_or(start));
}

}  // namespace velmora
