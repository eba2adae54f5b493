#include <app/text/ClockText.h>

#include <charconv>

#include <app/text/ValueTexts.h>
#include <velmora/platform/time/NumberText.h>

namespace velmora::app {
namespace {

constexpr int minutesPerHour = 60;
constexpr int minutesPerDay = 24 * minutesPerHour;

int number(std::string_view digits) {
  int value = 0;
  std::from_chars(digits.data(), digits.data() + digits.size(), value);
  return value;
}

std::string twoDigits(int value) { return integerText(value, 2); }

}  // namespace

std::optional<DayEvent> dayEvent(std::string_view recordText) {
  if (recordText.starts_with("--") || recordText.size() < 5) return std::nullopt;
  const int minutes = number(recordText.substr(0, 2)) * minutesPerHour + number(recordText.substr(3, 2));
  return DayEvent{minutes % minutesPerDay, recordText.ends_with("**") || minutes == minutesPerDay};
}

std::string clockText(int minutes, bool use24HourClock) {
  const int hour = minutes / minutesPerHour;
  const std::string minute = ":" + twoDigits(minutes % minutesPerHour);
  if (use24HourClock) return twoDigits(hour) + minute;
  const int hourOfHalf = hour % 12 == 0 ? 12 : hour % 12;
  return twoDigits(hourOfHalf) + minute + (hour < 12 ? " AM" : " PM");
}

std::string localText(Instant instant, const TimeZone& zone, bool use24HourClock) {
  const auto minute = std::chrono::round<std::chrono::minutes>(zone.localTime(instant));
  const auto day = std::chrono::floor<std::chrono::days>(minute);
  return dateText(CivilDate(day)) + " " + clockText(static_cast<int>((minute - day).count()), use24HourClock);
}

std::string lengthText(int minutes) {
  return std::to_string(minutes / minutesPerHour) + "h " + twoDigits(minutes % minutesPerHour) + "m";
}

}  // namespace velmora::app
