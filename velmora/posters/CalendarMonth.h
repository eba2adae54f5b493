#pragma once

#include <chrono>
#include <optional>
#include <vector>

#include <velmora/almanac/Events.h>
#include <velmora/posters/MoonDays.h>

namespace [[gnu::visibility("hidden")]] velmora {

/// What a page tells of a day.
struct CalendarDay {
  MoonDay moon;
  almanac::Day sky;  ///< rise and set of Sun and Moon

  /// The first such event of the day.
  std::optional<Instant> event(almanac::Body body, almanac::EventKind kind) const;
};

/// The days of a month at a place, without those that its clocks skipped, in weeks.
struct CalendarMonth {
  std::chrono::year_month month;
  unsigned firstWeekday = 1;  ///< of the weeks, 0 is Sunday
  std::vector<CalendarDay> days;

  /// None where the almanac does not cover all of it.
  static std::optional<CalendarMonth> of(const PosterPlace& place, std::chrono::year_month month,
                                         unsigned firstWeekday);

  /// Whether its weeks are those of ISO 8601.
  bool hasIsoWeeks() const { return firstWeekday == 1; }

  /// How many weeks it touches.
  std::size_t weekCount() const { return weekOf(std::chrono::year_month_day(lastDay())) + 1; }
  /// The week of the date, counted from 0, and how many days it comes after the first weekday.
  std::size_t weekOf(std::chrono::year_month_day date) const;
  std::size_t weekdayOf(std::chrono::year_month_day date) const;

  /// The first date of a week, which may lie in the month before.
  std::chrono::year_month_day startOf(std::size_t week) const;

 private:
  std::chrono::year_month_day_last lastDay() const { return month / std::chrono::last; }
};

/// The number of the week that the date lies in by ISO 8601: weeks begin on Monday, and the year's first one
/// holds its first Thursday.
int isoWeek(std::chrono::year_month_day date);

}  // namespace velmora
