#pragma once

#include <chrono>

namespace almanac {

/// A Julian date in Terrestrial Time, in days.
using JulianDateTT = double;

/// An instant in UTC, to the minute.
using UtcMinute = std::chrono::sys_time<std::chrono::minutes>;

/// What a calendar and a clock show at a minute.
struct CalendarFields {
  int year;
  int month;  ///< 1 = January
  int day;
  int hour;
  int minute;
};

/// The years that the tables and the catalogue cover, both included.
constexpr int firstYear = 2000;
constexpr int lastYear = 2040;

/// Julian dates shortly before the first and shortly after the last instant of the years covered.
constexpr JulianDateTT beforeFirstYear = 2451543.5;  // 1999-12-31
constexpr JulianDateTT afterLastYear = 2466521.5;    // 2041-01-02

/// The nearest minute of UTC: TT − 32.184 s − the leap seconds in force, which are 32 in 2000 and 37 from
/// 2017 on. Later leap seconds are not foreseen, and an extrapolated rotation of the Earth never comes in.
UtcMinute nearestUtcMinute(JulianDateTT date);

CalendarFields calendarFields(UtcMinute minute);

/// Whether the minute lies in the years covered.
bool isCovered(UtcMinute minute);

}  // namespace almanac
