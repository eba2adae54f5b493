#include <velmora/posters/MoonYear.h>

#include <algorithm>

#include <velmora/almanac/Events.h>

namespace [[gnu::visibility("hidden")]] velmora {
namespace {

using std::chrono::local_days;
using std::chrono::year_month_day;

year_month_day dateOf(Instant at, const TimeZone& zone) {
  return year_month_day(std::chrono::floor<std::chrono::days>(zone.localTime(at)));
}

std::optional<almanac::Interval> intervalOf(const TimeZone& zone, std::chrono::year year) {
  const auto first = almanac::civilDay(zone, year / 1 / 1), last = almanac::civilDay(zone, year / 12 / 31);
  if (!first || !last) return std::nullopt;
  return almanac::Interval{first->start, last->end};
}

/// The record of the date among those in time order; the end where there is none.
template <class Days>
auto findDay(Days& days, year_month_day date) {
  const auto found =
      std::lower_bound(days.begin(), days.end(), date,
                       [](const MoonDay& day, year_month_day wanted) { return day.date < wanted; });
  return found != days.end() && found->date == date ? found : days.end();
}

void addEclipses(MoonYear& year, const almanac::Interval& interval, const PosterPlace& place) {
  for (const almanac::Eclipse& eclipse : almanac::eclipses(interval.start, interval.end)) {
    const auto seen = almanac::seenFrom(eclipse, place.place);
    if (!seen || !seen->isVisible) continue;
    const auto day = findDay(year.days, dateOf(seen->best.at, place.zone));
    if (day != year.days.end()) day->eclipse = seen;
  }
}

}  // namespace

std::optional<MoonYear> MoonYear::of(const PosterPlace& place, std::chrono::year year) {
  const auto interval = intervalOf(place.zone, year);
  if (!interval) return std::nullopt;
  MoonYear moons;
  const local_days end = local_days((year + std::chrono::years(1)) / 1 / 1);
  for (local_days date = local_days(year / 1 / 1); date < end; date += std::chrono::days(1)) {
    if (!almanac::civilDay(place.zone, year_month_day(date))) continue;
    const auto moon = almanac::illumination(place.place, place.zone.lookup(LocalTime(date) + evening).before);
    if (!moon) return std::nullopt;
    moons.days.push_back({year_month_day(date), *moon, std::nullopt, std::nullopt});
  }
  for (const almanac::PhaseEvent& phase : almanac::phases(interval->start, interval->end)) {
    const auto day = findDay(moons.days, dateOf(phase.at, place.zone));
    if (day != moons.days.end()) day->phase = phase;
  }
  addEclipses(moons, *interval, place);
  return moons;
}

const MoonDay* MoonYear::find(year_month_day date) const {
  const auto found = findDay(days, date);
  return found == days.end() ? nullptr : &*found;
}

}  // namespace velmora
