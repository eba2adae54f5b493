// Any texts are a locale, a zone, a pattern and a date, one a line after the eight bytes of an instant: what
// is written is UTF-8, what is read is an instant, and a full date is read back as it was written. Without a
// date the pattern is a template.

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <sstream>
#include <string>

#include <velmora/platform/system/FileReading.h>
#include <velmora/platform/time/AlternateCalendar.h>
#include <velmora/platform/time/Calendar.h>
#include <velmora/platform/time/DateFormatter.h>
#include <velmora/platform/time/NumberFormatter.h>

namespace velmora {
namespace {

using Style = DateFormatter::Style;

void require(bool condition) {
  if (!condition) std::abort();
}

std::string line(std::istream& text) {
  std::string result;
  std::getline(text, result);
  return result;
}

void checkReadBack(DateFormatter formatter, Instant date) {
  constexpr double year1 = -62'135'596'800, year9999 = 253'402'300'799;
  if (!(unixSeconds(date) >= year1 && unixSeconds(date) <= year9999)) return;
  formatter.setTimeZone(TimeZone::fixed(0));
  formatter.setDateFormat("yyyy-MM-dd HH:mm:ss");
  const auto read = formatter.dateFromString(formatter.stringFromDate(date));
  require(read && std::abs(unixSeconds(*read) - unixSeconds(date)) <= 1);
}

void checkOwnPatterns(DateFormatter formatter, Instant date, const std::string& letters) {
  require(isUtf8(DateFormatter::dateFormatFromTemplate(letters, formatter.locale())));
  formatter.setDateFormat("");
  formatter.setDateStyle(Style::mediumStyle);
  formatter.setTimeStyle(Style::shortStyle);
  formatter.setLocale(formatter.locale().withHourCycle(Locale::HourCycle::h24));
  require(isUtf8(formatter.stringFromDate(date)));
}

void checkReading(const DateFormatter& formatter, const std::string& text) {
  const auto read = formatter.dateFromString(text);
  require(!read || std::isfinite(unixSeconds(*read)));
}

void checkNumbers(const Locale& locale, double number) {
  NumberFormatter formatter;
  formatter.setLocale(locale);
  formatter.setStyle(NumberFormatter::Style::decimal);
  const std::string text = formatter.stringFromNumber(number);
  require(!text.empty() && isUtf8(text));
}

void checkCalendar(const TimeZone& zone, Instant date) {
  const int day = static_cast<int>(AlternateCalendar(AlternateCalendar::Kind::hebrew, zone).day(date));
  require(day >= 1 && day <= 30);
  const DateComponents components = Calendar(zone).components(date);
  require(components.month >= 1 && components.month <= 12 && components.day >= 1 && components.day <= 31);
  require(components.weekday >= 1 && components.weekday <= 7 && components.hour >= 0 && components.hour < 24);
}

}  // namespace
}  // namespace velmora

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace velmora;
  double seconds = 0;
  if (size < sizeof seconds) return 0;
  std::memcpy(&seconds, data, sizeof seconds);
  const Instant date = instantFromUnixSeconds(seconds);
  std::istringstream text(
      std::string(reinterpret_cast<const char*>(data) + sizeof seconds, size - sizeof seconds));
  const Locale locale(line(text));
  const auto zone = TimeZone::named(line(text)).value_or(TimeZone::fixed(0));
  const std::string pattern = line(text);

  DateFormatter formatter;
  formatter.setLocale(locale);
  formatter.setTimeZone(zone);
  formatter.setDateFormat(pattern);
  require(isUtf8(formatter.stringFromDate(date)));
  if (const std::string dateText = line(text); dateText.empty()) {
    checkOwnPatterns(formatter, date, pattern);
  } else {
    checkReading(formatter, dateText);
  }
  checkReadBack(formatter, date);
  checkNumbers(locale, seconds);
  checkCalendar(zone, date);
  require(isUtf8(locale.languageCode()));
  return 0;
}
