#include <app/text/ClockText.h>

#include <app/text/ValueTexts.h>
#include <velmora/platform/time/NumberText.h>

namespace velmora::app {
namespace {

using std::chrono::days;

constexpr int minutesPerHour = 60;
constexpr int hoursPerHalf = 12;

std::string twoDigits(std::int64_t value) { return integerText(value, 2); }

std::string clock(int hour, const std::string& behind, bool use24HourClock) {
  if (use24HourClock) return twoDigits(hour) + behind;
  const int ofHalf = hour % hoursPerHalf == 0 ? hoursPerHalf : hour % hoursPerHalf;
  return twoDigits(ofHalf) + behind + (hour < hoursPerHalf ? " AM" : " PM");
}

using LocalMinute = std::chrono::local_time<std::chrono::minutes>;

LocalMinute minuteOf(LocalTime local) {
  const auto nearest = std::chrono::round<std::chrono::minutes>(local);
  const bool isNextDay = std::chrono::floor<days>(nearest) != std::chrono::floor<days>(local);
  return isNextDay ? std::chrono::floor<std::chrono::minutes>(local) : nearest;
}

}  // namespace

Instant nearestMinute(Instant instant, const TimeZone& zone) {
  const LocalTime local = zone.localTime(instant);
  return instant + (minuteOf(local) - local);
}

Reading readingAt(Instant instant, const TimeZone& zone) {
  const LocalMinute minute = minuteOf(zone.localTime(instant));
  const auto day = std::chrono::floor<days>(minute);
  return {CivilDate(day), static_cast<int>((minute - day).count())};
}

std::string clockText(int minutes, bool use24HourClock) {
  return clock(minutes / minutesPerHour, ":" + twoDigits(minutes % minutesPerHour), use24HourClock);
}

std::string clockTextToTheSecond(Instant instant, const TimeZone& zone, bool use24HourClock) {
  const auto second = std::chrono::round<std::chrono::seconds>(zone.localTime(instant));
  const std::chrono::hh_mm_ss time(second - std::chrono::floor<days>(second));
  return clock(static_cast<int>(time.hours().count()),
               ":" + twoDigits(time.minutes().count()) + ":" + twoDigits(time.seconds().count()),
               use24HourClock);
}

std::string localText(Instant instant, const TimeZone& zone, bool use24HourClock) {
  const Reading reading = readingAt(instant, zone);
  return dateText(reading.date) + " " + clockText(reading.minutes, use24HourClock);
}

std::string lengthText(int minutes) {
  return std::to_string(minutes / minutesPerHour) + "h " + twoDigits(minutes % minutesPerHour) + "m";
}

}  // namespace velmora::app
