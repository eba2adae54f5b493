#include <app/text/ClockText.h>

#include <app/text/ValueTexts.h>
#include <velmora/platform/resources/Words.h>
#include <velmora/platform/time/DateFormatter.h>
#include <velmora/platform/time/NumberText.h>

namespace velmora::app {
namespace {

constexpr int minutesPerHour = 60;
constexpr int hoursPerHalf = 12;

std::string twoDigits(std::int64_t value) { return integerText(value, 2); }

/// The halves of the day in the language of the words around them, and on which side of a time they stand.
struct Halves {
  Locale locale = localeOfWords();
  std::string morning = written("a", 6), afternoon = written("a", 18);
  bool comeFirst = written(DateFormatter::dateFormatFromTemplate("hm", locale), 6).starts_with(morning);

 private:
  std::string written(const std::string& pattern, int hour) const {
    DateFormatter formatter;
    formatter.setLocale(locale);
    formatter.setTimeZone(TimeZone::fixed(0));
    formatter.setDateFormat(pattern);
    return formatter.stringFromDate(Instant(std::chrono::hours(hour)));
  }
};

std::string withHalf(const std::string& time, bool isMorning) {
  thread_local Halves halves;
  if (!(halves.locale == localeOfWords())) halves = Halves();
  const std::string& half = isMorning ? halves.morning : halves.afternoon;
  return halves.comeFirst ? half + " " + time : time + " " + half;
}

std::string clock(int hour, const std::string& behind, bool use24HourClock) {
  if (use24HourClock) return twoDigits(hour) + behind;
  const int ofHalf = hour % hoursPerHalf == 0 ? hoursPerHalf : hour % hoursPerHalf;
  return withHalf(twoDigits(ofHalf) + behind, hour < hoursPerHalf);
}

using LocalMinute = std::chrono::local_time<std::chrono::minutes>;

LocalMinute minuteOf(LocalTime local) {
  const auto nearest = std::chrono::round<std::chrono::minutes>(local);
  const bool isNextDay =
      std::chrono::floor<std::chrono::days>(nearest) != std::chrono::floor<std::chrono::days>(local);
  return isNextDay ? std::chrono::floor<std::chrono::minutes>(local) : nearest;
}

}  // namespace

Instant nearestMinute(Instant instant, const TimeZone& zone) {
  const LocalTime local = zone.localTime(instant);
  return instant + (minuteOf(local) - local);
}

Reading readingAt(Instant instant, const TimeZone& zone) {
  const LocalMinute minute = minuteOf(zone.localTime(instant));
  const auto day = std::chrono::floor<std::chrono::days>(minute);
  return {CivilDate(day), static_cast<int>((minute - day).count())};
}

std::string clockText(int minutes, bool use24HourClock) {
  return clock(minutes / minutesPerHour, ":" + twoDigits(minutes % minutesPerHour), use24HourClock);
}

std::string clockTextToTheSecond(Instant instant, const TimeZone& zone, bool use24HourClock) {
  const auto second = std::chrono::round<std::chrono::seconds>(zone.localTime(instant));
  const std::chrono::hh_mm_ss time(second - std::chrono::floor<std::chrono::days>(second));
  return clock(static_cast<int>(time.hours().count()),
               ":" + twoDigits(time.minutes().count()) + ":" + twoDigits(time.seconds().count()),
               use24HourClock);
}

std::string localText(Instant instant, const TimeZone& zone, bool use24HourClock) {
  const Reading reading = readingAt(instant, zone);
  return dateText(reading.date) + " " + clockText(reading.minutes, use24HourClock);
}

std::string lengthText(int minutes) {
  return words("%1h %2m", {std::to_string(minutes / minutesPerHour), twoDigits(minutes % minutesPerHour)});
}

}  // namespace velmora::app
