#include "TimeScales.h"

#include <array>

namespace almanac {
namespace {

using namespace std::chrono;
using Seconds = duration<double>;
using Instant = sys_time<Seconds>;

struct LeapSeconds {
  sys_days since;
  Seconds taiMinusUtc;
};

// IERS Bulletin C, newest first; the last entry stands for all that lies before the next.
constexpr std::array leapSeconds{
    LeapSeconds{2017y / January / 1, 37s}, LeapSeconds{2015y / July / 1, 36s},
    LeapSeconds{2012y / July / 1, 35s},    LeapSeconds{2009y / January / 1, 34s},
    LeapSeconds{2006y / January / 1, 33s}, LeapSeconds{1999y / January / 1, 32s},
};
constexpr Seconds ttMinusTai(32.184);
constexpr JulianDateTT julianDateOf1970 = 2440587.5;

Instant utcFromTai(Instant tai) {
  for (const LeapSeconds& leap : leapSeconds) {
    if (tai - leap.taiMinusUtc >= leap.since) return tai - leap.taiMinusUtc;
  }
  return tai - leapSeconds.back().taiMinusUtc;
}

}  // namespace

UtcMinute nearestUtcMinute(JulianDateTT date) {
  const Instant tt(days(1) * (date - julianDateOf1970));
  return round<minutes>(utcFromTai(tt - ttMinusTai));
}

CalendarFields calendarFields(UtcMinute minute) {
  const auto day = floor<days>(minute);
  const year_month_day date(day);
  const hh_mm_ss clock(minute - day);
  return {static_cast<int>(date.year()), static_cast<int>(static_cast<unsigned>(date.month())),
          static_cast<int>(static_cast<unsigned>(date.day())), static_cast<int>(clock.hours().count()),
          static_cast<int>(clock.minutes().count())};
}

bool isCovered(UtcMinute minute) {
  const int year = calendarFields(minute).year;
  return firstYear <= year && year <= lastYear;
}

}  // namespace almanac
