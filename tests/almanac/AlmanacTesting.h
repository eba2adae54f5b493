#pragma once

#include <chrono>
#include <sstream>
#include <string>

#include <velmora/platform/time/Instant.h>

namespace velmora::testing {

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
