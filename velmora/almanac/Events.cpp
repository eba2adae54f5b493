#include <velmora/almanac/Events.h>

#include <algorithm>
#include <cmath>

#include <velmora/almanac/CivilDay.h>
#include <velmora/almanac/Course.h>
#include <velmora/almanac/DayRecord.h>
#include <velmora/almanac/EventFinder.h>
#include <velmora/almanac/Refraction.h>

namespace velmora::almanac {
namespace {

using ephemeris::Paths;
using std::chrono::local_days;

bool isCovered(Interval interval) {
  return ephemeris::firstInstant() <= interval.start && interval.start < interval.end &&
         interval.end <= ephemeris::endInstant();
}

/// Whether a civil day of that date may be covered, in some zone.
bool mayBeCovered(std::chrono::year_month_day date) {
  constexpr Seconds farthestOffset(86400.0);
  const Instant midnight(LocalTime(local_days(date)).time_since_epoch());
  return date.ok() && ephemeris::firstInstant() - farthestOffset <= midnight &&
         midnight <= ephemeris::endInstant() + farthestOffset;
}

bool isValid(const Convention& convention) {
  constexpr double farthest = 2;  // degrees
  return std::abs(convention.horizonRefraction) <= farthest &&
         std::abs(convention.sunSemidiameter) <= farthest;
}

/// What `choice` asks for, and what daylight and darkness are counted by.
EventFinder::Wanted wantedBy(const EventChoice& choice) {
  return {.sun = true,
          .moon = true,
          .civil = choice.twilight,
          .nautical = choice.twilight,
          .astronomical = true,
          .sunTransit = choice.transits,
          .moonTransit = choice.transits};
}

bool isTwilight(EventKind kind) {
  return kind != EventKind::rise && kind != EventKind::set && kind != EventKind::transit;
}

EventFinder::Wanted wantedBy(Body body, EventKind kind) {
  const bool isSun = body == Body::sun;
  const bool isHorizon = kind == EventKind::rise || kind == EventKind::set;
  const bool isTransit = kind == EventKind::transit;
  return {
      .sun = isSun && isHorizon,
      .moon = !isSun && isHorizon,
      .civil = isSun && (kind == EventKind::civilDawn || kind == EventKind::civilDusk),
      .nautical = isSun && (kind == EventKind::nauticalDawn || kind == EventKind::nauticalDusk),
      .astronomical = isSun && (kind == EventKind::astronomicalDawn || kind == EventKind::astronomicalDusk),
      .sunTransit = isSun && isTransit,
      .moonTransit = !isSun && isTransit,
  };
}

/// The paths over a covered interval.
Paths pathsOver(Interval interval) { return *Paths::over(interval.start, interval.end); }

/// Calls `use` with one sky after the other, over all of the interval.
template <class Use>
void forEachSky(const Paths& paths, Interval interval, Use use) {
  auto [first, count] = ephemeris::blocksOf(interval.start, interval.end);
  for (; count > 0; first += Sky::maximumBlocks, count -= Sky::maximumBlocks) {
    use(Sky(paths, {first, std::min(count, Sky::maximumBlocks)}, interval.start, interval.end));
  }
}

/// Days that follow one another without a gap, all of them in `all`.
std::vector<Day> daysIn(const Paths& paths, Interval all, std::span<const Interval> intervals,
                        const Place& place, const EventChoice& choice, const Convention& convention) {
  const EventFinder finder(place, convention, wantedBy(choice));
  constexpr std::size_t usualEvents = 16;  // of a day
  Findings findings;
  findings.events.reserve(usualEvents * intervals.size());
  forEachSky(paths, all, [&](const Sky& sky) { finder.add(sky, findings); });
  DayRecord record(findings, choice);
  std::vector<Day> days;
  days.reserve(intervals.size());
  for (const Interval& interval : intervals) days.push_back(record.day(interval));
  return days;
}

Day dayIn(const Paths& paths, Interval interval, const Place& place, const EventChoice& choice,
          const Convention& convention) {
  return std::move(daysIn(paths, interval, {&interval, 1}, place, choice, convention).front());
}

}  // namespace

std::optional<Day> day(const Paths& paths, const Place& place, Instant start, Instant end,
                       const EventChoice& choice, const Convention& convention) {
  const Interval interval{start, end};
  if (!isValid(place) || !isValid(convention) || !isCovered(interval)) return std::nullopt;
  if (start < paths.from() || paths.to() < end) return std::nullopt;
  return dayIn(paths, interval, place, choice, convention);
}

std::optional<Day> day(const Place& place, Instant start, Instant end, const EventChoice& choice,
                       const Convention& convention) {
  const Interval interval{start, end};
  if (!isValid(place) || !isValid(convention) || !isCovered(interval)) return std::nullopt;
  return dayIn(pathsOver(interval), interval, place, choice, convention);
}

std::optional<Day> day(const Place& place, const TimeZone& zone, std::chrono::year_month_day date,
                       const EventChoice& choice, const Convention& convention) {
  const auto interval = civilDay(zone, date);
  if (!interval) return std::nullopt;
  return day(place, interval->start, interval->end, choice, convention);
}

std::vector<Day> days(const Place& place, const TimeZone& zone, std::chrono::year_month_day first,
                      std::chrono::year_month_day last, const EventChoice& choice,
                      const Convention& convention) {
  if (!isValid(place) || !isValid(convention) || !mayBeCovered(first) || !mayBeCovered(last)) return {};
  const std::vector<Interval> intervals = civilDays(zone, first, last);
  if (intervals.empty()) return {};
  const Interval all{intervals.front().start, intervals.back().end};
  if (!isCovered(all)) return {};
  return daysIn(pathsOver(all), all, intervals, place, choice, convention);
}

bool forEachPlace(std::span<const Place> places, Instant start, Instant end, const DayVisitor& use,
                  const Executor& run, const EventChoice& choice, const Convention& convention) {
  constexpr std::size_t placesOfPart = 256;
  const Interval interval{start, end};
  if (!isValid(convention) || !isCovered(interval)) return false;
  const Paths paths = pathsOver(interval);
  std::vector<Sky> skies;
  forEachSky(paths, interval, [&](const Sky& sky) { skies.push_back(sky); });
  const auto part = [&](std::size_t number) {
    const std::size_t first = number * placesOfPart;
    for (std::size_t k = first; k < std::min(first + placesOfPart, places.size()); ++k) {
      if (!isValid(places[k])) continue;
      const EventFinder finder(places[k], convention, wantedBy(choice));
      Findings findings;
      for (const Sky& sky : skies) finder.add(sky, findings);
      use(k, DayRecord(findings, choice).day(interval));
    }
  };
  const std::size_t parts = (places.size() + placesOfPart - 1) / placesOfPart;
  if (run) {
    run(parts, part);
  } else {
    for (std::size_t number = 0; number < parts; ++number) part(number);
  }
  return true;
}

std::vector<Crossing> crossings(const Place& place, Body body, double altitude, Instant from, Instant to) {
  const Interval interval{from, to};
  constexpr double zenith = 90;
  if (!isValid(place) || !(std::abs(altitude) <= zenith) || !isCovered(interval)) return {};
  const Observer observer(place);
  const Level level(-trueAltitude(altitude));
  std::vector<Crossing> found;
  forEachSky(pathsOver(interval), interval, [&](const Sky& sky) {
    std::vector<Passage> passages;
    const Course course(sky, body, observer);  // the passages point to it
    course.addPassages(level, 0, sky.firstSample(), sky.lastSample(), passages);
    find(passages);
    for (const Passage& passage : passages) {
      const Instant at = sky.timeOf(passage.sample) + Seconds(passage.seconds);
      if (from <= at && at < to) found.push_back({at, azimuthOf(passage.local), passage.isRising});
    }
  });
  return found;
}

std::optional<Event> next(const Place& place, Body body, EventKind kind, Instant after,
                          const Convention& convention) {
  if (!isValid(place) || !isValid(convention) || !ephemeris::covers(after)) return std::nullopt;
  if (body == Body::moon && isTwilight(kind)) return std::nullopt;
  constexpr Seconds firstStretch(2 * 86400.0), longestWait(366 * 86400.0);
  const EventFinder finder(place, convention, wantedBy(body, kind));
  const Instant end = std::min(after + longestWait, ephemeris::endInstant());
  std::optional<Event> found;
  Interval stretch{after, std::min(after + firstStretch, end)};
  while (!found && stretch.start < stretch.end) {
    forEachSky(pathsOver(stretch), stretch, [&](const Sky& sky) {
      Findings findings;
      if (!found) finder.add(sky, findings);
      for (const Event& event : findings.events) {
        if (!found && event.kind == kind && after < event.at && event.at < end) found = event;
      }
    });
    stretch = {stretch.end, std::min(stretch.end + 4 * (stretch.end - stretch.start), end)};
  }
  return found;
}

}  // namespace velmora::almanac
