#pragma once

#include <optional>
#include <string>
#include <vector>

#include <app/answers/Query.h>
#include <velmora/almanac/Eclipses.h>
#include <velmora/almanac/Events.h>

namespace velmora::app {

/// An eclipse of the whole Earth, and what it is from the place, above its horizon or below.
struct SeenEclipse {
  almanac::Eclipse eclipse;
  std::optional<almanac::LocalEclipse> local;  ///< none where the Moon's shadow does not touch the place

  bool isVisible() const { return local && local->isVisible; }
};

/// Those whose greatest moment lies in [from, to), as far as the almanac knows them.
std::vector<SeenEclipse> eclipsesBetween(Instant from, Instant to, const Place& place);

/// Those of which something is seen in the interval, and whether it is of one.
std::vector<SeenEclipse> eclipsesSeenIn(const almanac::Interval& interval, const Place& place);
bool isSeenWithin(const SeenEclipse& eclipse, const almanac::Interval& interval);

/// Those of which the most that is seen lies in [from, to).
std::vector<SeenEclipse> eclipsesSeenBetween(Instant from, Instant to, const Place& place);

/// The eclipses whose day at the place lies in the year that the request asks for.
std::vector<SeenEclipse> eclipsesOfYear(const Query& query);

/// The first eclipse of which something can be seen on the day; none if there is none.
std::optional<SeenEclipse> visibleEclipse(CivilDate day, const Query& query);

/// The same, else the first eclipse whose greatest moment lies on the day.
std::optional<SeenEclipse> eclipseOf(CivilDate day, const Query& query);

/// The first eclipse of which something can be seen that begins after the instant; none if there is none.
std::optional<SeenEclipse> nextVisibleEclipse(Instant after, const Place& place);

/// The record's properties by their names, `isVisible` and `local`; null without an eclipse.
Json eclipseJson(const std::optional<SeenEclipse>& eclipse);

/// The same as a row of a table, and its columns.
Json eclipseRow(const SeenEclipse& eclipse);
const std::vector<std::string>& eclipseColumns();

/// "TSE"; the codes of docs/json.md.
std::string eclipseKey(const almanac::Eclipse& eclipse);

/// "Total Solar Eclipse" in the user's language.
std::string eclipseTitle(const almanac::Eclipse& eclipse);

/// What is seen of it from the place, in a few words: "partial 36%, partly before sunrise", or that it is not
/// seen.
std::string seenText(const SeenEclipse& eclipse);

/// The most that is seen: its time at the place.
Instant bestMoment(const SeenEclipse& eclipse);

/// Its moments at the place: a line each with time, elevation and direction.
std::string momentsText(const almanac::LocalEclipse& local, const Query& query);

/// What is seen of it from the place, in sentences of one line each.
std::string describedInLines(const SeenEclipse& eclipse, const Query& query);

}  // namespace velmora::app
