#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include <velmora/platform/time/Instant.h>
#include <velmora/platform/time/Locale.h>
#include <velmora/platform/time/TimeZone.h>

namespace velmora {

/// Writes and reads Gregorian dates by a Unicode pattern ("yyyy-MM-dd HH:mm") or by the locale's own styles.
/// A cheap value; the formatting objects behind it are made once and shared by all formatters that are alike.
class DateFormatter {
 public:
  /// How much is written.
  enum class Style { none, shortStyle, mediumStyle };

  /// A formatter in the current locale and the process's default zone, with no date and no time style.
  DateFormatter();

  /// Sets the Unicode date pattern, which then stands before any style.
  void setDateFormat(std::string pattern) { _pattern = std::move(pattern); }
  void setDateStyle(Style style) { _dateStyle = style; }
  void setTimeStyle(Style style) { _timeStyle = style; }
  void setLocale(Locale locale) { _locale = std::move(locale); }
  void setTimeZone(TimeZone timeZone) { _timeZone = std::move(timeZone); }

  /// What texts are written with.
  const std::string& dateFormat() const { return _pattern; }
  const Locale& locale() const { return _locale; }
  const TimeZone& timeZone() const { return _timeZone; }

  /// The text of the instant in the formatter's zone and locale; empty without a pattern and without styles.
  std::string stringFromDate(Instant date) const;

  /// The instant that the text names in the formatter's zone. Reading is strict: the whole text must follow
  /// the pattern, though a number may have fewer digits than pattern letters, and blanks around the text and
  /// in front of its numbers do not count. None if it does not, or if there is no such date. Fields that the
  /// pattern lacks are those of 1970-01-01 00:00. A time that occurs twice is the first; a skipped one is
  /// read with the offset before the change. Pattern letters for a zone are for writing only.
  std::optional<Instant> dateFromString(std::string_view text) const;

  /// The text of the instant in the current locale and the default zone.
  static std::string localizedStringFromDate(Instant date, Style dateStyle, Style timeStyle);

  /// The locale's own pattern for the fields of a template ("H", "h a", "j").
  static std::string dateFormatFromTemplate(std::string_view templateLetters, const Locale& locale);

  /// The locale's short names of the weekdays, Sunday first.
  static std::vector<std::string> shortWeekdaySymbols(const Locale& locale);
  /// The locale's short names of the months, January first.
  static std::vector<std::string> shortMonthSymbols(const Locale& locale);

 private:
  /// The pattern that was set, else that of the styles; empty without both.
  std::string effectivePattern() const;

  std::string _pattern;
  Style _dateStyle = Style::none;
  Style _timeStyle = Style::none;
  Locale _locale;
  TimeZone _timeZone;
};

}  // namespace velmora
