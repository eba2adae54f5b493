#pragma once

#include <chrono>
#include <sstream>
#include <string>

#include <velmora/almanac/Place.h>
#include <velmora/ephemeris/Ephemeris.h>
#include <velmora/platform/time/Instant.h>
#include <velmora/platform/time/TimeZone.h>

namespace velmora::testing {

inline constexpr almanac::Place london{51.508333, -0.125278};

/// What the ephemeris serves: from the first instant until before the end.
inline const Instant firstServed = ephemeris::firstInstant(), endServed = ephemeris::endInstant();

inline TimeZone zoneNamed(const char* name) { return *TimeZone::named(name); }

/// "2024-03-20T08:15", of a table.
inline Instant instantOf(const std::string& text) {
  std::istringstream in(text);
  int year = 0;
  unsigned month = 0, day = 0;
  int hour = 0, minute = 0;
  char mark = 0;
  in >> year >> mark >> month >> mark >> day >> mark >> hour >> mark >> minute;
  const std::chrono::sys_days date =
      std::chrono::year_month_day(std::chrono::year(year), std::chrono::month(month), std::chrono::day(day));
  return Instant(date) + std::chrono::hours(hour) + std::chrono::minutes(minute);
}

}  // namespace velmora::testing
