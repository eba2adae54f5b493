#include <algorithm>
#include <cmath>

#include <velmora/platform/time/DateFormatter.h>
#include <velmora/platform/time/intl/IntlSupport.h>

// In names.js, patterns.js, writing.js and reading.js.
extern "C" {
char* velmora_intl_short_names(const char* locale, int areMonths);
char* velmora_intl_template_pattern(const char* locale, int hourCycle, const char* letters);
char* velmora_intl_style_pattern(const char* locale, int overridingCycle, int dateStyle, int timeStyle);
char* velmora_intl_date_text(const char* locale, const char* pattern, double milliseconds, double offset);
double velmora_intl_read_date(const char* locale, const char* pattern, const char* text);
}

namespace velmora {
namespace {

constexpr double millisecondsPerSecond = 1000.0;

bool overridesItsHabit(const Locale& locale) {
  return locale.hourCycle() && locale.uses24HourClock() != Locale(locale.identifier()).uses24HourClock();
}

std::vector<std::string> shortNames(const Locale& locale, bool areMonths) {
  const std::string lines =
      takeText(velmora_intl_short_names(locale.identifier().c_str(), areMonths ? 1 : 0));
  std::vector<std::string> names;
  for (std::size_t start = 0; start <= lines.size();) {
    const std::size_t end = std::min(lines.find('\n', start), lines.size());
    names.push_back(lines.substr(start, end - start));
    start = end + 1;
  }
  return names;
}

}  // namespace

DateFormatter::DateFormatter() : _locale(Locale::current()), _timeZone(TimeZone::defaultZone()) {}

std::string DateFormatter::effectivePattern() const {
  if (!_pattern.empty() || (_dateStyle == Style::none && _timeStyle == Style::none)) return _pattern;
  const int overridingCycle = overridesItsHabit(_locale) ? hourCycleNumber(_locale) : 0;
  return takeText(velmora_intl_style_pattern(_locale.identifier().c_str(), overridingCycle,
                                             static_cast<int>(_dateStyle), static_cast<int>(_timeStyle)));
}

std::string DateFormatter::stringFromDate(Instant date) const {
  const std::string pattern = effectivePattern();
  if (pattern.empty() || !std::isfinite(unixSeconds(date))) return "";
  const auto offset = static_cast<double>(_timeZone.secondsFromGMT(date));
  const double milliseconds =
      std::floor(unixSeconds(date) * millisecondsPerSecond) + offset * millisecondsPerSecond;
  return takeText(
      velmora_intl_date_text(_locale.identifier().c_str(), pattern.c_str(), milliseconds, offset));
}

std::optional<Instant> DateFormatter::dateFromString(std::string_view text) const {
  const double read = velmora_intl_read_date(_locale.identifier().c_str(), effectivePattern().c_str(),
                                             std::string(text).c_str());
  if (std::isnan(read)) return std::nullopt;
  return _timeZone.lookup(LocalTime(Seconds(read / millisecondsPerSecond))).before;
}

std::string DateFormatter::localizedStringFromDate(Instant date, Style dateStyle, Style timeStyle) {
  DateFormatter formatter;
  formatter.setDateStyle(dateStyle);
  formatter.setTimeStyle(timeStyle);
  return formatter.stringFromDate(date);
}

std::string DateFormatter::dateFormatFromTemplate(std::string_view templateLetters, const Locale& locale) {
  return takeText(velmora_intl_template_pattern(locale.identifier().c_str(), hourCycleNumber(locale),
                                                std::string(templateLetters).c_str()));
}

std::vector<std::string> DateFormatter::shortWeekdaySymbols(const Locale& locale) {
  return shortNames(locale, false);
}

std::vector<std::string> DateFormatter::shortMonthSymbols(const Locale& locale) {
  return shortNames(locale, true);
}

}  // namespace velmora
