#pragma once

#include <cstdint>
#include <optional>

#include <velmora/platform/time/Instant.h>
#include <velmora/platform/time/TimeZone.h>

namespace velmora {

/// A date and a time of day on the Gregorian calendar, of no zone. When it is turned into an instant,
/// components out of their range carry over: day 0 is the last day of the month before, hour 24 the next
/// day's first.
struct DateComponents {
  /// Components, as far as given.
  std::int64_t year = 0;
  std::int64_t month = 1;    ///< 1 = January
  std::int64_t day = 1;      ///< of the month
  std::int64_t hour = 0;     ///< 0..23
  std::int64_t minute = 0;   ///< 0..59
  std::int64_t second = 0;   ///< 0..59
  std::int64_t weekday = 0;  ///< 1 = Sunday .. 7 = Saturday; read from an instant, ignored when making one

  friend bool operator==(const DateComponents&, const DateComponents&) = default;
};

/// How an hour that is set on a day is matched where the clocks of that day jump over it.
enum class TimeMatching {
  nextTime,  ///< a skipped time becomes the first instant that exists after it
  strict,    ///< a skipped time is none
};

/// The proleptic Gregorian calendar in a time zone: a cheap value. Years before 1 are counted ... −1, 0, 1.
class Calendar {
 public:
  /// A calendar in the process's default zone.
  Calendar() : _timeZone(TimeZone::defaultZone()) {}
  explicit Calendar(TimeZone timeZone) : _timeZone(std::move(timeZone)) {}

  /// The user's current calendar: Gregorian whatever the locale's own calendar is, in the default zone.
  static Calendar currentCalendar() { return Calendar(); }

  /// The zone whose clocks it reads.
  const TimeZone& timeZone() const { return _timeZone; }
  void setTimeZone(TimeZone timeZone) { _timeZone = std::move(timeZone); }

  /// The date, time of day and weekday that the instant has in the calendar's zone.
  DateComponents components(Instant instant) const;

  /// The instant of the given date and time in the calendar's zone. Of a time that occurs twice the first;
  /// a time that the clocks skip is read with the offset in force before the change. The weekday is ignored.
  Instant date(const DateComponents& components) const;

  /// The first instant of the instant's day: 00:00, or the first time that exists where midnight is skipped.
  Instant startOfDay(Instant instant) const;

  /// That time of day on the instant's day; of a time that occurs twice the first. None for a time outside
  /// 0:00:00..23:59:59, and for a skipped time where the matching is strict.
  std::optional<Instant> dateBySettingTime(std::int64_t hour, std::int64_t minute, std::int64_t second,
                                           Instant day, TimeMatching matching = TimeMatching::nextTime) const;

  /// The instant that many days later (negative: earlier) at the same time on the clock, of a time that
  /// occurs twice the first. Moved by 0 it is the instant itself.
  Instant dateByAddingDays(std::int64_t days, Instant instant) const;

  /// The instant that many months later (negative: earlier), on the same day of the month, or on the month's
  /// last day where it is shorter, at the same time on the clock as above.
  Instant dateByAddingMonths(std::int64_t months, Instant instant) const;

  /// Whether both instants fall on one day of the calendar's zone.
  bool isSameDay(Instant a, Instant b) const;

 private:
  TimeZone _timeZone;
};

}  // namespace velmora
