#include <app/answers/SeenEclipses.h>

#include <algorithm>

#include <app/answers/Days.h>
#include <app/text/ValueTexts.h>
#include <velmora/platform/time/Clock.h>
#include <velmora/service/AlmanacRecords.h>
#include <velmora/service/EclipseInfo.h>

namespace velmora::app {
namespace {

/// No eclipse lasts longer from its greatest moment to its end.
constexpr std::chrono::hours longestHalf{6};

std::chrono::year yearOf(const Query& query) {
  return query.request.year ? *query.request.year : dateAt(Clock::now(), query.place.zone).year();
}

}  // namespace

std::vector<SeenEclipse> eclipsesBetween(Instant from, Instant to, const Place& place) {
  std::vector<SeenEclipse> seen;
  for (const almanac::Eclipse& eclipse : almanac::eclipses(from, to))
    seen.push_back({eclipse, almanac::seenFrom(eclipse, place.observer())});
  return seen;
}

std::vector<SeenEclipse> eclipsesSeenIn(const almanac::Interval& interval, const Place& place) {
  auto eclipses = eclipsesBetween(interval.start - longestHalf, interval.end + longestHalf, place);
  std::erase_if(eclipses, [&](const SeenEclipse& eclipse) { return !isSeenWithin(eclipse, interval); });
  return eclipses;
}

bool isSeenWithin(const SeenEclipse& eclipse, const almanac::Interval& interval) {
  return eclipse.local && almanac::isSeenWithin(*eclipse.local, interval.start, interval.end);
}

std::vector<SeenEclipse> eclipsesSeenBetween(Instant from, Instant to, const Place& place) {
  auto eclipses = eclipsesBetween(from - longestHalf, to + longestHalf, place);
  std::erase_if(eclipses, [&](const SeenEclipse& eclipse) {
    return !eclipse.isVisible() || bestMoment(eclipse) < from || bestMoment(eclipse) >= to;
  });
  return eclipses;
}

std::vector<SeenEclipse> eclipsesOfYear(const Query& query) {
  using namespace std::chrono;
  const year number = yearOf(query);
  const TimeZone& zone = query.place.zone;
  return eclipsesBetween(instantOn(number / January / 1, hours(0), zone),
                         instantOn((number + years(1)) / January / 1, hours(0), zone), query.place);
}

std::optional<SeenEclipse> visibleEclipse(CivilDate day, const Query& query) {
  const auto seen = eclipsesSeenIn(intervalOf({day}, query), query.place);
  return seen.empty() ? std::nullopt : std::optional(seen.front());
}

std::optional<SeenEclipse> eclipseOf(CivilDate day, const Query& query) {
  if (auto visible = visibleEclipse(day, query)) return visible;
  const almanac::Interval interval = intervalOf({day}, query);
  const auto greatest = eclipsesBetween(interval.start, interval.end, query.place);
  return greatest.empty() ? std::nullopt : std::optional(greatest.front());
}

std::optional<SeenEclipse> nextVisibleEclipse(Instant after, const Place& place) {
  constexpr std::chrono::days stride{366};
  // One whose greatest moment is over may still begin at the place.
  for (Instant from = after - longestHalf; from < ephemeris::endInstant(); from += stride) {
    for (const SeenEclipse& eclipse : eclipsesBetween(from, from + stride, place)) {
      if (eclipse.isVisible() && eclipse.local->visibleFrom > after) return eclipse;
    }
  }
  return std::nullopt;
}

std::string eclipseKey(const almanac::Eclipse& eclipse) {
  return AlmanacRecords::eclipseCode(eclipse.body, eclipse.kind);
}

std::string eclipseTitle(const almanac::Eclipse& eclipse) {
  return titleOfEclipse(eclipseKey(eclipse)).value_or("");
}

Instant bestMoment(const SeenEclipse& eclipse) {
  return eclipse.isVisible() ? eclipse.local->best.at : eclipse.eclipse.maximum;
}

}  // namespace velmora::app
