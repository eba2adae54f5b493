#include <velmora/posters/CalendarMonth.h>

#include <algorithm>

namespace [[gnu::visibility("hidden")]] velmora {
namespace {

using std::chrono::sys_days;
using std::chrono::year_month_day;

constexpr unsigned daysInWeek = 7;

}  // namespace

std::optional<Instant> CalendarDay::event(almanac::Body body, almanac::EventKind kind) const {
  const auto found = std::find_if(sky.events.begin(), sky.events.end(), [&](const almanac::Event& event) {
    return event.body == body && event.kind == kind;
  });
  return found == sky.events.end() ? std::nullopt : std::optional(found->at);
}

std::optional<CalendarMonth> CalendarMonth::of(const PosterPlace& place, std::chrono::year_month month,
                                               unsigned firstWeekday) {
  CalendarMonth calendar{month, firstWeekday, {}};
  const year_month_day first = month / 1, last = calendar.lastDay();
  const auto moons = MoonDays::of(place, first, last);
  const auto skies =
      almanac::days(place.place, place.zone, first, last, {.twilight = false, .transits = false});
  if (!moons || skies.size() != moons->days.size()) return std::nullopt;
  for (std::size_t i = 0; i < skies.size(); ++i) calendar.days.push_back({moons->days[i], skies[i]});
  return calendar;
}

std::size_t CalendarMonth::weekdayOf(year_month_day date) const {
  return (std::chrono::weekday(sys_days(date)).c_encoding() + daysInWeek - firstWeekday) % daysInWeek;
}

std::size_t CalendarMonth::weekOf(year_month_day date) const {
  return (weekdayOf(month / 1) + static_cast<unsigned>(date.day()) - 1) / daysInWeek;
}

year_month_day CalendarMonth::startOf(std::size_t week) const {
  const auto ahead = static_cast<int>(week * daysInWeek) - static_cast<int>(weekdayOf(month / 1));
  return sys_days(month / 1) + std::chrono::days(ahead);
}

int isoWeek(year_month_day date) {
  const auto afterMonday = static_cast<int>(std::chrono::weekday(sys_days(date)).iso_encoding()) - 1;
  const sys_days thursday = sys_days(date) + std::chrono::days(3 - afterMonday);
  const auto before = thursday - sys_days(year_month_day(thursday).year() / 1 / 1);
  return static_cast<int>(before / std::chrono::weeks(1)) + 1;
}

}  // namespace velmora
