#include <velmora/posters/PosterTexts.h>

#include <array>
#include <cmath>
#include <map>
#include <tuple>

#include <velmora/platform/resources/Words.h>
#include <velmora/platform/time/DateFormatter.h>
#include <velmora/platform/time/NumberFormatter.h>

namespace [[gnu::visibility("hidden")]] velmora {
namespace {

constexpr double minute = 60;

/// The locale's pattern for the fields: looked up once, as it takes longer than writing a text by it.
const std::string& patternOf(std::string_view fields, const Locale& locale) {
  thread_local std::map<std::tuple<std::string, bool, std::string>, std::string> patterns;
  std::string& pattern = patterns[{locale.identifier(), locale.uses24HourClock(), std::string(fields)}];
  if (pattern.empty()) pattern = DateFormatter::dateFormatFromTemplate(fields, locale);
  return pattern;
}

std::string written(Instant instant, std::string_view fields, const Locale& locale, const TimeZone& zone) {
  DateFormatter formatter;
  formatter.setLocale(locale);
  formatter.setTimeZone(zone);
  formatter.setDateFormat(patternOf(fields, locale));
  return formatter.stringFromDate(instant);
}

using MinutesOfDay = std::array<std::string, 24 * 60>;

/// The texts of the day's minutes, each written when it is first asked for: a calendar has few that no other
/// of its days has.
MinutesOfDay& minutesOfDay(const Locale& locale) {
  thread_local std::map<std::pair<std::string, bool>, MinutesOfDay> texts;
  return texts[{locale.identifier(), locale.uses24HourClock()}];
}

/// That of the words, with the clock of the user's own.
Locale localeOfTexts() {
  const bool isWhole = Locale::current().uses24HourClock();
  return localeOfWords().withHourCycle(isWhole ? Locale::HourCycle::h24 : Locale::HourCycle::h12);
}

}  // namespace

PosterTexts::PosterTexts(TimeZone zone) : _zone(std::move(zone)), _locale(localeOfTexts()) {}

std::string PosterTexts::time(Instant instant) const {
  const double minutes = std::floor(unixSeconds(instant) / minute + 0.5);
  const auto clock = _zone.localTime(instantFromUnixSeconds(minutes * minute)).time_since_epoch();
  const auto ofDay =
      std::chrono::floor<std::chrono::minutes>(clock - std::chrono::floor<std::chrono::days>(clock));
  std::string& text = minutesOfDay(_locale).at(static_cast<std::size_t>(ofDay.count()));
  if (text.empty()) text = written(Instant(ofDay), "jmm", _locale, TimeZone::fixed(0));
  return text;
}

std::string PosterTexts::date(Instant instant, std::string_view fields) const {
  return written(instant, fields, _locale, _zone);
}

std::string PosterTexts::hour(int hour) const {
  return written(Instant(std::chrono::hours(hour)), "j", _locale, TimeZone::fixed(0));
}

std::string PosterTexts::number(std::int64_t number) const {
  NumberFormatter formatter;
  formatter.setLocale(_locale);
  return formatter.stringFromNumber(number);
}

std::string PosterTexts::percent(double share) const {
  return words("%1%", {number(std::llround(100 * share))});
}

std::string PosterTexts::duration(Seconds length) const {
  const auto minutes = std::llround(length.count() / minute);
  return words("%1h %2m", {number(minutes / 60), number(minutes % 60)});
}

std::string PosterTexts::degrees(double angle) const { return number(std::llround(angle)) + "°"; }

}  // namespace velmora
