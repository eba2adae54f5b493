#include <velmora/platform/time/icu/DatePatterns.h>

#include <unicode/smpdtfmt.h>

#include <algorithm>
#include <memory>

#include <velmora/platform/time/icu/IcuSupport.h>
#include <velmora/platform/time/icu/ObjectCache.h>

namespace [[gnu::visibility("hidden")]] velmora {
namespace {

using Style = DateFormatter::Style;

icu::DateFormat::EStyle icuStyle(Style style) {
  switch (style) {
    case Style::shortStyle:
      return icu::DateFormat::kShort;
    case Style::mediumStyle:
      return icu::DateFormat::kMedium;
    case Style::none:
      break;
  }
  return icu::DateFormat::kNone;
}

/// The pattern of the styles by the habit of the locale.
icu::UnicodeString habitualPattern(const icu::Locale& locale, Style dateStyle, Style timeStyle) {
  icu::UnicodeString pattern;
  const std::unique_ptr<icu::DateFormat> format(
      icu::DateFormat::createDateTimeInstance(icuStyle(dateStyle), icuStyle(timeStyle), locale));
  if (const auto* simple = dynamic_cast<const icu::SimpleDateFormat*>(format.get())) {
    simple->toPattern(pattern);
  }
  return pattern;
}

icu::UnicodeString bestPattern(const Locale& locale, const icu::UnicodeString& fields) {
  UErrorCode status = U_ZERO_ERROR;
  icu::DateTimePatternGenerator* generator = patternGenerator(locale);
  return generator == nullptr ? icu::UnicodeString() : generator->getBestPattern(fields, status);
}

bool overridesItsHabit(const Locale& locale) {
  return locale.hourCycle() && locale.uses24HourClock() != Locale(locale.identifier()).uses24HourClock();
}

icu::UnicodeString makePatternOfStyles(const Locale& locale, Style dateStyle, Style timeStyle) {
  const icu::Locale where = icuLocale(locale);
  icu::UnicodeString pattern = habitualPattern(where, dateStyle, timeStyle);
  if (timeStyle != Style::none && overridesItsHabit(locale)) {
    const char* const fields = timeStyle == Style::shortStyle ? "jmm" : "jmmss";
    pattern.findAndReplace(habitualPattern(where, Style::none, timeStyle), bestPattern(locale, fields));
  }
  return pattern;
}

bool isPatternLetter(char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); }

bool isTwoDigitField(std::string_view run) {
  return run.size() == 2 && std::string_view("MdHhKkms").find(run.front()) != std::string_view::npos;
}

}  // namespace

std::string patternOfStyles(const Locale& locale, Style dateStyle, Style timeStyle) {
  if (dateStyle == Style::none && timeStyle == Style::none) return "";
  thread_local ObjectCache<std::string> patterns;
  const auto letter = [](Style style) { return static_cast<char>('0' + static_cast<int>(style)); };
  return patterns.get(cacheKey(locale) + letter(dateStyle) + letter(timeStyle),
                      [&] { return fromIcu(makePatternOfStyles(locale, dateStyle, timeStyle)); });
}

std::string readingPattern(std::string_view pattern) {
  std::string result;
  bool isQuoted = false;
  bool isAfterField = false;
  for (std::size_t start = 0; start < pattern.size();) {
    const char c = pattern[start];
    const std::size_t end = std::min(pattern.find_first_not_of(c, start), pattern.size());
    const std::string_view run = pattern.substr(start, end - start);
    const bool isField = !isQuoted && isPatternLetter(c);
    const bool touchesField = isAfterField || (end < pattern.size() && isPatternLetter(pattern[end]));
    result += isField && !touchesField && isTwoDigitField(run) ? run.substr(1) : run;
    if (c == '\'' && run.size() % 2 == 1) isQuoted = !isQuoted;
    isAfterField = isField;
    start = end;
  }
  return result;
}

std::string DateFormatter::dateFormatFromTemplate(std::string_view templateLetters, const Locale& locale) {
  return fromIcu(bestPattern(locale, toIcu(templateLetters)));
}

}  // namespace velmora
