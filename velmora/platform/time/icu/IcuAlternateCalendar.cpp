#include <unicode/calendar.h>

#include <array>
#include <cmath>
#include <memory>

#include <velmora/platform/time/AlternateCalendar.h>

namespace velmora {
namespace {

constexpr double secondsPerDay = 86400.0;
constexpr double millisecondsPerDay = secondsPerDay * 1000.0;

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
  const auto index = static_cast<std::size_t>(kind);
  if (!calendars[index]) calendars[index] = makeCalendar(calendarNames[index]);
  return *calendars[index];
}

}  // namespace

std::int64_t AlternateCalendar::day(Instant instant) const {
  const double seconds = _timeZone.localTime(instant).time_since_epoch().count();
  const double noonOfDay = (std::floor(seconds / secondsPerDay) + 0.5) * millisecondsPerDay;
  UErrorCode status = U_ZERO_ERROR;
  icu::Calendar& calendar = calendarOf(_kind);
  calendar.setTime(noonOfDay, status);
  return calendar.get(UCAL_DATE, status);
}

}  // namespace velmora
