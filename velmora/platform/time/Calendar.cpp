#include <velmora/platform/time/Calendar.h>

#include <algorithm>
#include <cmath>

namespace velmora {
namespace {

using std::chrono::days;
using std::chrono::floor;
using std::chrono::local_days;
using std::chrono::year;
using std::chrono::year_month_day;
using LocalSecond = std::chrono::local_seconds;

// Years that std::chrono's calendar can hold; a reading beyond them stays at the edge.
const LocalTime earliestReading = local_days(year::min() / 1 / 1);
const LocalTime latestReading = local_days(year::max() / 12 / 31);
constexpr double lastSecondOfDay = 86'399;

LocalTime clamped(LocalTime reading) {
  return reading >= earliestReading ? std::min(reading, latestReading) : earliestReading;
}

std::int64_t clampedCount(std::int64_t value, std::int64_t limit) { return std::clamp(value, -limit, limit); }

/// Day 1 of a month that may lie outside 1..12, as a day count.
local_days firstOfMonth(std::int64_t yearNumber, std::int64_t monthNumber) {
  constexpr std::int64_t farthestYear = 32'000;
  const std::int64_t months =
      clampedCount(yearNumber, farthestYear) * 12 + clampedCount(monthNumber, farthestYear * 12) - 1;
  const std::int64_t inRange = clampedCount(months, farthestYear * 12);
  const std::int64_t wholeYear = (inRange >= 0 ? inRange : inRange - 11) / 12;
  const auto month = static_cast<unsigned>(inRange - wholeYear * 12 + 1);
  return local_days(year(static_cast<int>(wholeYear)) / static_cast<int>(month) / 1);
}

LocalTime reading(const DateComponents& c) {
  constexpr std::int64_t farthest = 1'000'000'000'000;  // seconds, minutes, hours: beyond it they stay there
  constexpr std::int64_t farthestDay = 12'000'000;
  const local_days day = firstOfMonth(c.year, c.month) + days(clampedCount(c.day, farthestDay) - 1);
  const std::int64_t seconds = clampedCount(c.hour, farthest) * 3600 + clampedCount(c.minute, farthest) * 60 +
                               clampedCount(c.second, farthest);
  return clamped(LocalTime(day) + Seconds(static_cast<double>(seconds)));
}

/// The instant at which clocks show the reading: the first of two, the offset before the change for none.
Instant firstInstant(const TimeZone& zone, LocalTime local) { return zone.lookup(local).before; }

}  // namespace

DateComponents Calendar::components(Instant instant) const {
  const LocalTime local = clamped(_timeZone.localTime(instant));
  const local_days day = floor<days>(local);
  const year_month_day date(day);
  // The difference may round up to a whole day.
  const double sinceMidnight = std::min((local - LocalTime(day)).count(), lastSecondOfDay);
  const auto secondOfDay = static_cast<std::int64_t>(sinceMidnight);
  return {
      .year = static_cast<int>(date.year()),
      .month = static_cast<unsigned>(date.month()),
      .day = static_cast<unsigned>(date.day()),
      .hour = secondOfDay / 3600,
      .minute = secondOfDay / 60 % 60,
      .second = secondOfDay % 60,
      .weekday = std::chrono::weekday(day).c_encoding() + 1,
  };
}

Instant Calendar::date(const DateComponents& components) const {
  return firstInstant(_timeZone, reading(components));
}

Instant Calendar::startOfDay(Instant instant) const { return *dateBySettingTime(0, 0, 0, instant); }

std::optional<Instant> Calendar::dateBySettingTime(std::int64_t hour, std::int64_t minute,
                                                   std::int64_t second, Instant day,
                                                   TimeMatching matching) const {
  const auto within = [](std::int64_t value, std::int64_t end) { return value >= 0 && value < end; };
  if (!within(hour, 24) || !within(minute, 60) || !within(second, 60)) return std::nullopt;

  const local_days localDay = floor<days>(clamped(_timeZone.localTime(day)));
  const auto secondOfDay = static_cast<double>(hour * 3600 + minute * 60 + second);
  const LocalLookup found = _timeZone.lookup(LocalTime(localDay) + Seconds(secondOfDay));
  if (found.kind != LocalLookup::Kind::skipped) return found.before;
  if (matching == TimeMatching::strict) return std::nullopt;
  return found.change;
}

Instant Calendar::dateByAddingDays(std::int64_t count, Instant instant) const {
  if (count == 0) return instant;
  const Seconds moved = Seconds(days(clampedCount(count, 24'000'000)));
  return firstInstant(_timeZone, clamped(_timeZone.localTime(instant) + moved));
}

Instant Calendar::dateByAddingMonths(std::int64_t count, Instant instant) const {
  if (count == 0) return instant;
  const LocalTime local = clamped(_timeZone.localTime(instant));
  const local_days day = floor<days>(local);
  const year_month_day date(day);
  const std::int64_t month = static_cast<unsigned>(date.month()) + clampedCount(count, 1'000'000);
  const year_month_day first(firstOfMonth(static_cast<int>(date.year()), month));
  const auto last = (first.year() / first.month() / std::chrono::last).day();
  const local_days moved = local_days(first.year() / first.month() / std::min(date.day(), last));
  return firstInstant(_timeZone, LocalTime(moved) + (local - LocalTime(day)));
}

bool Calendar::isSameDay(Instant a, Instant b) const {
  return floor<days>(clamped(_timeZone.localTime(a))) == floor<days>(clamped(_timeZone.localTime(b)));
}

}  // namespace velmora
