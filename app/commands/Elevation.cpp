#include <app/commands/Commands.h>

#include <algorithm>
#include <cmath>

#include <app/answers/Days.h>
#include <app/answers/Positions.h>
#include <app/text/Errors.h>
#include <velmora/astronomy/RiseAndSetCalc.h>
#include <velmora/platform/time/NumberText.h>

namespace velmora::app {
namespace {

constexpr double hoursPerDay = 24;
constexpr double secondsPerHour = 3600;
constexpr const char* limitsOfTheSearch =
    "The search looks into the hours of rise and set; higher or lower elevations\n"
    "are found only where a whole hour happens to fall on them.\n";
constexpr double rounding = 1e-9;      // hours; readings that differ by less are the same
constexpr double hitTolerance = 0.05;  // degrees; how near to the elevation a sample counts as an event

struct Search {
  double elevation;
  Instant start;
  std::int64_t offset;
};

Search searchOf(const Query& query) {
  if (!query.request.degrees) throw BadInput("the elevation is missing; accepted: -90 to 90 degrees");
  const Instant start = instantOf(query, std::chrono::hours(0));
  return {*query.request.degrees, start, query.place.zone.secondsFromGMT(start)};
}

std::vector<PositionData> eventsOf(const Search& search, const Query& query) {
  const auto events = query.request.body == Body::sun ? RiseAndSetCalc::EventsMatchingSunElevation
                                                      : RiseAndSetCalc::EventsMatchingMoonElevation;
  return events(search.elevation, search.start, query.place.location, search.offset,
                query.request.intermediate);
}

/// The offset that the records' hours carry: the Sun's is cut to whole hours.
double hoursAhead(const Search& search, Body body) {
  const double hours = static_cast<double>(search.offset) / secondsPerHour;
  return body == Body::sun ? std::trunc(hours) : hours;
}

bool startIsAnEvent(const Search& search, const Query& query) {
  const TimedPosition first = positionAt(search.start, query.request.body, query.place);
  return std::abs(first.position.altitude - search.elevation) <= hitTolerance;
}

/// The records' hours are those of a clock; that they stand in order tells which lie past the clock's
/// midnight, and that a record at the start's own hour is a whole day later unless the start itself is an
/// event.
std::vector<TimedPosition> answer(const Query& query) {
  const Search search = searchOf(query);
  const auto begin =
      std::chrono::floor<std::chrono::minutes>(universalReading(search.start, search.offset, query.place));
  const Seconds timeOfDay = begin - std::chrono::floor<std::chrono::days>(begin);
  const double beginHour = timeOfDay.count() / secondsPerHour + hoursAhead(search, query.request.body);

  std::vector<TimedPosition> samples;
  double earliest = startIsAnEvent(search, query) ? -rounding : rounding;
  for (const PositionData& position : eventsOf(search, query)) {
    double elapsed = position.hour - beginHour;
    while (elapsed < earliest) elapsed += hoursPerDay;
    while (elapsed >= earliest + hoursPerDay) elapsed -= hoursPerDay;
    samples.push_back({begin + Seconds(elapsed * secondsPerHour), position});
    earliest = elapsed - rounding;
  }
  return samples;
}

Json json(const Query& query) {
  Json samples = Json::array();
  for (const TimedPosition& sample : answer(query)) samples.push_back(positionJson(sample));
  return samples;
}

/// Whether both crossings of a usual day are there, up and down.
bool hasBothCrossings(const std::vector<TimedPosition>& samples, double elevation) {
  return std::count_if(samples.begin(), samples.end(), [elevation](const TimedPosition& sample) {
           return std::abs(sample.position.altitude - elevation) <= hitTolerance;
         }) >= 2;
}

std::string text(const Query& query) {
  const auto samples = answer(query);
  const std::string title =
      bodyTitle(query.request.body) + " at an elevation of " + Json(*query.request.degrees).dump() + "°\n\n";
  const std::string found = samples.empty() ? "None found.\n" : positionTable(samples, query);
  return query.place.heading() + title + found +
         (hasBothCrossings(samples, *query.request.degrees) ? "" : std::string("\n") + limitsOfTheSearch);
}

}  // namespace

const Answer elevationAnswer{json, text};

}  // namespace velmora::app
