#include <app/text/EnglishDate.h>

#include <velmora/platform/time/DateFormatter.h>

namespace velmora::app {

std::string englishDate(CivilDate date, const std::string& pattern) {
  DateFormatter formatter;
  formatter.setLocale(Locale("en_US"));
  formatter.setTimeZone(TimeZone::fixed(0));
  formatter.setDateFormat(pattern);
  return formatter.stringFromDate(Instant(std::chrono::sys_days(date)));
}

}  // namespace velmora::app
