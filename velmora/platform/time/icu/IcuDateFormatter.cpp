#include <unicode/gregocal.h>
#include <unicode/simpletz.h>
#include <unicode/smpdtfmt.h>

#include <algorithm>
#include <cmath>
#include <memory>

#include <velmora/platform/time/DateFormatter.h>
#include <velmora/platform/time/icu/DatePatterns.h>
#include <velmora/platform/time/icu/IcuSupport.h>
#include <velmora/platform/time/icu/ObjectCache.h>

namespace velmora {
namespace {

constexpr double millisecondsPerSecond = 1000.0;
constexpr UDate beforeEveryDate = -8.64e15;  // the switch from the Julian calendar, put out of reach

using Format = std::unique_ptr<icu::SimpleDateFormat>;

/// A formatter on the proleptic Gregorian calendar at GMT; none if ICU's data is missing.
Format makeFormat(const Locale& locale, const icu::UnicodeString& pattern) {
  UErrorCode status = U_ZERO_ERROR;
  const icu::Locale where = icuLocale(locale);
  auto format = std::make_unique<icu::SimpleDateFormat>(pattern, where, status);
  auto calendar = std::make_unique<icu::GregorianCalendar>(*icu::TimeZone::getGMT(), where, status);
  calendar->setGregorianChange(beforeEveryDate, status);
  if (U_FAILURE(status)) return nullptr;
  format->adoptCalendar(calendar.release());
  return format;
}

Format makeReader(const Locale& locale, std::string_view pattern) {
  Format format = makeFormat(locale, toIcu(readingPattern(pattern)));
  if (!format) return nullptr;
  UErrorCode status = U_ZERO_ERROR;
  format->setLenient(false);
  format->setBooleanAttribute(UDAT_PARSE_PARTIAL_LITERAL_MATCH, false, status);
  format->setBooleanAttribute(UDAT_PARSE_MULTIPLE_PATTERNS_FOR_MATCH, false, status);
  return format;
}

icu::SimpleDateFormat* writer(const Locale& locale, const std::string& pattern) {
  thread_local ObjectCache<Format> writers;
  return writers.get(cacheKey(locale) + pattern, [&] { return makeFormat(locale, toIcu(pattern)); }).get();
}

icu::SimpleDateFormat* reader(const Locale& locale, const std::string& pattern) {
  thread_local ObjectCache<Format> readers;
  return readers.get(cacheKey(locale) + pattern, [&] { return makeReader(locale, pattern); }).get();
}

/// Gives the formatter the offset from GMT as a fixed zone, if it has another.
void useOffset(icu::SimpleDateFormat& format, std::int64_t secondsFromGMT) {
  constexpr std::int64_t farthest = 2'000'000;  // what ICU's count of milliseconds can hold
  const auto offset = static_cast<std::int32_t>(std::clamp(secondsFromGMT, -farthest, farthest) * 1000);
  if (format.getTimeZone().getRawOffset() == offset) return;
  format.adoptTimeZone(new icu::SimpleTimeZone(offset, icu::UnicodeString()));
}

/// What a clock at GMT shows when the text is read by the pattern; none if the text does not follow it.
std::optional<LocalTime> clockReading(const icu::SimpleDateFormat& format, std::string_view text) {
  const icu::UnicodeString whole = toIcu(text).trim();
  icu::ParsePosition position(0);
  const UDate read = format.parse(whole, position);
  if (position.getIndex() == 0 || position.getIndex() != whole.length()) return std::nullopt;
  return LocalTime(Seconds(read / millisecondsPerSecond));
}

}  // namespace

DateFormatter::DateFormatter() : _locale(Locale::current()), _timeZone(TimeZone::defaultZone()) {}

std::string DateFormatter::effectivePattern() const {
  return _pattern.empty() ? patternOfStyles(_locale, _dateStyle, _timeStyle) : _pattern;
}

std::string DateFormatter::stringFromDate(Instant date) const {
  const std::string pattern = effectivePattern();
  if (pattern.empty() || !std::isfinite(unixSeconds(date))) return "";
  icu::SimpleDateFormat* const format = writer(_locale, pattern);
  if (format == nullptr) return "";

  useOffset(*format, _timeZone.secondsFromGMT(date));
  // ICU takes what is smaller than its smallest normal number before a midnight for no time of day.
  const UDate milliseconds = std::floor(unixSeconds(date) * millisecondsPerSecond);
  icu::UnicodeString text;
  return fromIcu(format->format(milliseconds, text));
}

std::optional<Instant> DateFormatter::dateFromString(std::string_view text) const {
  const icu::SimpleDateFormat* const format = reader(_locale, effectivePattern());
  if (format == nullptr) return std::nullopt;
  const auto reading = clockReading(*format, text);
  if (!reading) return std::nullopt;
  return _timeZone.lookup(*reading).before;
}

std::string DateFormatter::localizedStringFromDate(Instant date, Style dateStyle, Style timeStyle) {
  DateFormatter formatter;
  formatter.setDateStyle(dateStyle);
  formatter.setTimeStyle(timeStyle);
  return formatter.stringFromDate(date);
}

}  // namespace velmora
