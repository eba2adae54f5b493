#include <unicode/calendar.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <memory>
#include <string>

#include <velmora/platform/time/AlternateCalendar.h>
#include <velmora/platform/time/icu/ObjectCache.h>

namespace velmora {
namespace {

constexpr double secondsPerDay = 86'400.0;
constexpr double millisecondsPerDay = 86'400'000.0;

// In the order of AlternateCalendar::Kind.
constexpr std::array calendarNames = {"hebrew",   "islamic-umalqura", "buddhist",
                                      "japanese", "chinese",          "indian"};

std::unique_ptr<icu::Calendar> makeCalendar(const char* name) {
  UErrorCode status = U_ZERO_ERROR;
  icu::Locale locale("en");
  locale.setKeywordValue("calendar", name, status);
  return std::unique_ptr<icu::Calendar>(
      icu::Calendar::createInstance(*icu::TimeZone::getGMT(), locale, status));
}

icu::Calendar& calendarOf(AlternateCalendar::Kind kind) {
  thread_local std::array<std::unique_ptr<icu::Calendar>, calendarNames.size()> calendars;
  auto& calendar = calendars[static_cast<std::size_t>(kind)];
  if (!calendar) calendar = makeCalendar(calendarNames[static_cast<std::size_t>(kind)]);
  return *calendar;
}

/// The local date as a day count; dates beyond every calendar stay at the edge.
std::int64_t daysSince1970(LocalTime local) {
  constexpr double farthest = 1e8;
  const double days = std::floor(local.time_since_epoch().count() / secondsPerDay);
  return static_cast<std::int64_t>(days >= -farthest ? std::min(days, farthest) : -farthest);
}

std::int64_t computeDay(AlternateCalendar::Kind kind, std::int64_t dayCount) {
  UErrorCode status = U_ZERO_ERROR;
  icu::Calendar& calendar = calendarOf(kind);
  calendar.setTime((static_cast<double>(dayCount) + 0.5) * millisecondsPerDay,
                   status);  // noon, away from both midnights
  return calendar.get(UCAL_DATE, status);
}

}  // namespace

std::int64_t AlternateCalendar::day(Instant instant) const {
  thread_local ObjectCache<std::int64_t> days;  // a Chinese day takes ICU a tenth of a millisecond
  const std::int64_t dayCount = daysSince1970(_timeZone.localTime(instant));
  return days.get(std::to_string(static_cast<int>(_kind)) + ':' + std::to_string(dayCount),
                  [&] { return computeDay(_kind, dayCount); });
}

}  // namespace velmora
