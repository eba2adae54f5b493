#include <velmora/service/ShortTimeText.h>

#include <array>

#include <velmora/foundation/VelmoraCalendar.h>

namespace [[gnu::visibility("hidden")]] velmora {
namespace {

constexpr std::size_t minutesPerDay = 1440;

/// The texts made so far in one locale; empty where not made.
struct KeptTexts {
  Locale locale = Locale::current();
  std::array<std::string, minutesPerDay> texts;
};

std::string makeText(std::int64_t minuteOfDay) {
  DateFormatter formatter = VelmoraCalendar::calendarDateFormatter();
  formatter.setTimeZone(TimeZone::fixed(0));
  formatter.setTimeStyle(DateFormatter::Style::shortStyle);
  return formatter.stringFromDate(Instant(std::chrono::minutes(minuteOfDay)));
}

}  // namespace

std::string shortTimeText(std::int64_t minuteOfDay) {
  thread_local KeptTexts kept;
  if (!(kept.locale == Locale::current())) kept = KeptTexts();
  std::string& text = kept.texts.at(static_cast<std::size_t>(minuteOfDay));
  if (text.empty()) text = makeText(minuteOfDay);
  return text;
}

std::string shortTimeText(Instant instant, const Calendar& calendar) {
  const DateComponents local = calendar.components(instant);
  return shortTimeText(local.hour * 60 + local.minute);
}

}  // namespace velmora
