#include <velmora/ephemeris/TimeScales.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <cstddef>

namespace velmora::ephemeris {
namespace {

using namespace std::chrono;

// The first days of one leap second more. IERS, Bulletin C.
constexpr std::array leapDays = {
    sys_days(1972y / July / 1),    sys_days(1973y / January / 1), sys_days(1974y / January / 1),
    sys_days(1975y / January / 1), sys_days(1976y / January / 1), sys_days(1977y / January / 1),
    sys_days(1978y / January / 1), sys_days(1979y / January / 1), sys_days(1980y / January / 1),
    sys_days(1981y / July / 1),    sys_days(1982y / July / 1),    sys_days(1983y / July / 1),
    sys_days(1985y / July / 1),    sys_days(1988y / January / 1), sys_days(1990y / January / 1),
    sys_days(1991y / January / 1), sys_days(1992y / July / 1),    sys_days(1993y / July / 1),
    sys_days(1994y / July / 1),    sys_days(1996y / January / 1), sys_days(1997y / July / 1),
    sys_days(1999y / January / 1), sys_days(2006y / January / 1), sys_days(2009y / January / 1),
    sys_days(2012y / July / 1),    sys_days(2015y / July / 1),    sys_days(2017y / January / 1)};
constexpr Instant leapSecondsBegin = sys_days(1972y / January / 1);
constexpr double terrestrialMinusUtcIn1972 = 42.184;

// TT − UT1 at the beginnings of the years from 1900 on. The Astronomical Almanac, section K; to 1955 after
// Stephenson and Morrison, Phil. Trans. R. Soc. A 313 (1984) 47, and McCarthy and Babcock, Physics of the
// Earth and Planetary Interiors 44 (1986) 281. The last entry stands for UT1 = UTC.
constexpr int firstYear = 1900;
constexpr std::array terrestrialMinusRotation = {
    -2.72, -1.54, -0.02, 1.24,  2.64,  3.86,  5.37,  6.14,  7.75,  9.13,   //
    10.46, 11.53, 13.36, 14.65, 16.01, 17.20, 18.24, 19.06, 20.25, 20.95,  //
    21.16, 22.25, 22.41, 23.03, 23.49, 23.62, 23.86, 24.49, 24.34, 24.08,  //
    24.02, 24.00, 23.87, 23.95, 23.86, 23.93, 23.73, 23.92, 23.96, 24.02,  //
    24.33, 24.83, 25.30, 25.70, 26.24, 26.77, 27.28, 27.78, 28.25, 28.71,  //
    29.15, 29.57, 29.97, 30.36, 30.72, 31.07, 31.35, 31.68, 32.18, 32.68,  //
    33.15, 33.59, 34.00, 34.47, 35.03, 35.73, 36.54, 37.43, 38.29, 39.20,  //
    40.18, 41.17, 42.23, 43.37, 44.49, 45.48, 46.46, 47.52, 48.53, 49.59,  //
    50.54, 51.38, 52.17, 52.96, 53.79, 54.34, 54.87, 55.32, 55.82, 56.30,  //
    56.86, 57.57, 58.31, 59.12, 59.98, 60.78, 61.63, 62.29, 62.97, 63.47,  //
    63.83, 64.09, 64.30, 64.47, 64.57, 64.69, 64.85, 65.15, 65.46, 65.78,  //
    66.07, 66.32, 66.60, 66.91, 67.28, 67.64, 68.10, 68.59, 68.97, 69.22,  //
    69.36, 69.36, 69.29, 69.20, 69.18, 69.14, 69.184};

constexpr int endYear = firstYear + static_cast<int>(terrestrialMinusRotation.size()) - 1;

constexpr sys_days beginningOf(int number) { return year(number) / January / 1; }

/// TT − UT1, even between the entries; the nearest one outside.
double terrestrialMinusRotationAt(Instant instant) {
  if (instant < beginningOf(firstYear)) return terrestrialMinusRotation.front();
  if (instant >= beginningOf(endYear)) return terrestrialMinusRotation.back();
  const int year = static_cast<int>(year_month_day(floor<days>(instant)).year());
  const auto index = static_cast<std::size_t>(year - firstYear);
  const double share = (instant - beginningOf(year)) / Seconds(beginningOf(year + 1) - beginningOf(year));
  return terrestrialMinusRotation[index] +
         share * (terrestrialMinusRotation[index + 1] - terrestrialMinusRotation[index]);
}

}  // namespace

double terrestrialMinusUniversal(Instant instant) {
  if (instant < leapSecondsBegin) return terrestrialMinusRotationAt(instant);
  const auto leaps = std::upper_bound(leapDays.begin(), leapDays.end(), instant) - leapDays.begin();
  return terrestrialMinusUtcIn1972 + static_cast<double>(leaps);
}

double universalMinusCoordinated(Instant instant) {
  if (!(leapSecondsBegin <= instant && instant < beginningOf(endYear))) return 0.0;
  return terrestrialMinusUniversal(instant) - terrestrialMinusRotationAt(instant);
}

}  // namespace velmora::ephemeris
