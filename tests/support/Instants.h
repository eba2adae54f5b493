#pragma once

#include <cstdint>

#include <velmora/platform/time/Calendar.h>
#include <velmora/platform/time/Instant.h>

namespace velmora::testing {

inline Instant utc(std::int64_t year, std::int64_t month, std::int64_t day, std::int64_t hour = 0,
                   std::int64_t minute = 0) {
  return Calendar(TimeZone::fixed(0))
      .date({.year = year, .month = month, .day = day, .hour = hour, .minute = minute});
}

}  // namespace velmora::testing
