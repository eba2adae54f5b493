#include <velmora/posters/MoonDays.h>

#include <algorithm>

#include <velmora/almanac/Events.h>

namespace [[gnu::visibility("hidden")]] velmora {
namespace {

using std::chrono::local_days;
using std::chrono::year_month_day;

year_month_day dateOf(Instant at, const TimeZone& zone) {
  return year_month_day(std::chrono::floor<std::chrono::days>(zone.localTime(at)));
}

/// From the first instant of the one day to the end of the other, whichever days the clocks skip.
almanac::Interval intervalOf(const TimeZone& zone, year_month_day first, year_month_day last) {
  return {zone.lookup(LocalTime(local_days(first))).before,
          zone.lookup(LocalTime(local_days(last) + std::chrono::days(1))).before};
}

/// The record of the date among those in time order; the end where there is none.
template <class Days>
auto findDay(Days& days, year_month_day date) {
  const auto found =
      std::lower_bound(days.begin(), days.end(), date,
                       [](const MoonDay& day, year_month_day wanted) { return day.date < wanted; });
  return found != days.end() && found->date == date ? found : days.end();
}

/// Of one near the end of a day most may be seen on the day beside it.
void addEclipses(MoonDays& moons, const almanac::Interval& interval, const PosterPlace& place) {
  constexpr std::chrono::hours longestHalf{12};
  for (const auto& eclipse : almanac::eclipses(interval.start - longestHalf, interval.end + longestHalf)) {
    const auto seen = almanac::seenFrom(eclipse, place.place);
    if (!seen || !seen->isVisible) continue;
    const auto day = findDay(moons.days, dateOf(seen->best.at, place.zone));
    if (day != moons.days.end()) day->eclipse = seen;
  }
}

}  // namespace

std::optional<MoonDays> MoonDays::of(const PosterPlace& place, year_month_day first, year_month_day last) {
  MoonDays moons;
  for (auto date = local_days(first); date <= local_days(last); date += std::chrono::days(1)) {
    if (!almanac::civilDay(place.zone, year_month_day(date))) continue;
    const Instant at = place.zone.lookup(LocalTime(date) + evening).before;
    const auto moon = almanac::illumination(place.place, at);
    if (!moon) return std::nullopt;
    moons.days.push_back({year_month_day(date), at, *moon, std::nullopt, std::nullopt});
  }
  const almanac::Interval interval = intervalOf(place.zone, first, last);
  for (const almanac::PhaseEvent& phase : almanac::phases(interval.start, interval.end)) {
    const auto day = findDay(moons.days, dateOf(phase.at, place.zone));
    if (day != moons.days.end()) day->phase = phase;
  }
  addEclipses(moons, interval, place);
  return moons;
}

std::optional<MoonDays> MoonDays::of(const PosterPlace& place, std::chrono::year year) {
  return of(place, year / 1 / 1, year / 12 / 31);
}

const MoonDay* MoonDays::find(year_month_day date) const {
  const auto found = findDay(days, date);
  return found == days.end() ? nullptr : &*found;
}

}  // namespace velmora
