#include <app/text/LocalDate.h>

#include <algorithm>

#include <app/text/DisplayWidth.h>
#include <velmora/platform/resources/Words.h>
#include <velmora/platform/time/DateFormatter.h>

namespace velmora::app {
namespace {

struct Form {
  const char* english;  ///< a pattern, the same in every English
  const char* letters;  ///< of the template for other languages
};

Form formOf(DateForm form) {
  switch (form) {
    case DateForm::weekday:
      return {"EEE", "EEE"};
    case DateForm::month:
      return {"MMMM", "LLLL"};
    case DateForm::monthAndYear:
      return {"MMMM yyyy", "yMMMM"};
    case DateForm::whole:
      return {"EEEE d MMMM yyyy", "yMMMMEEEEd"};
  }
  return {};
}

/// With the digits of the numbers around it, unless the identifier says otherwise.
Locale withPlainDigits(const Locale& locale) {
  const std::string& identifier = locale.identifier();
  const bool isPlainName =
      identifier.find('@') == std::string::npos && identifier.find("-u-") == std::string::npos;
  return isPlainName ? Locale(identifier + "@numbers=latn") : locale;
}

std::string written(CivilDate date, DateForm form) {
  const Locale locale = withPlainDigits(localeOfWords());
  const Form patterns = formOf(form);
  DateFormatter formatter;
  formatter.setLocale(locale);
  formatter.setTimeZone(TimeZone::fixed(0));
  formatter.setDateFormat(locale.languageCode() == "en"
                              ? patterns.english
                              : DateFormatter::dateFormatFromTemplate(patterns.letters, locale));
  return formatter.stringFromDate(Instant(std::chrono::sys_days(date)));
}

/// How many columns of a terminal the widest weekday takes.
std::size_t widthOfWeekdays(CivilDate date) {
  std::size_t width = 0;
  for (int i = 0; i < 7; ++i) {
    const CivilDate day(std::chrono::sys_days(date) + std::chrono::days(i));
    width = std::max(width, displayWidth(written(day, DateForm::weekday)));
  }
  return width;
}

}  // namespace

std::string localDate(CivilDate date, DateForm form) {
  const std::string text = written(date, form);
  if (form != DateForm::weekday) return text;
  return text + std::string(widthOfWeekdays(date) - displayWidth(text), ' ');
}

}  // namespace velmora::app
