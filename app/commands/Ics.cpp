#include <algorithm>

#include <app/answers/Days.h>
#include <app/answers/Phases.h>
#include <app/answers/SeenEclipses.h>
#include <app/commands/Commands.h>
#include <app/text/ICalendar.h>
#include <app/text/PhaseText.h>
#include <velmora/platform/time/Clock.h>

namespace velmora::app {
namespace {

const char* codeOf(almanac::PrincipalPhase phase) {
  switch (phase) {
    case almanac::PrincipalPhase::newMoon:
      return "NM";
    case almanac::PrincipalPhase::firstQuarter:
      return "FQ";
    case almanac::PrincipalPhase::fullMoon:
      return "FM";
    case almanac::PrincipalPhase::lastQuarter:
      return "LQ";
  }
  return "";
}

CalendarEvent phaseEvent(const almanac::PhaseEvent& event) {
  return {.kind = codeOf(event.phase), .instant = event.at, .summary = phaseName(phaseNumber(event.phase))};
}

CalendarEvent eclipseEvent(const SeenEclipse& seen, const Query& query) {
  const GeoLocationData& location = query.place.location;
  return {.kind = eclipseKey(seen.eclipse),
          .instant = bestMoment(seen),
          .summary = eclipseTitle(seen.eclipse),
          .location = location.name.value_or(location.locationText),
          .description = describedInLines(seen, query)};
}

std::vector<CalendarEvent> eventsOf(const Query& query) {
  checkRangeIsGiven(query);
  const almanac::Interval range = rangeOf(query);
  std::vector<CalendarEvent> events;
  for (const almanac::PhaseEvent& event : almanac::phases(range.start, range.end))
    events.push_back(phaseEvent(event));
  for (const SeenEclipse& seen : eclipsesSeenBetween(range.start, range.end, query.place))
    events.push_back(eclipseEvent(seen, query));
  std::stable_sort(events.begin(), events.end(),
                   [](const CalendarEvent& a, const CalendarEvent& b) { return a.instant < b.instant; });
  return events;
}

std::string text(const Query& query) { return iCalendar(eventsOf(query), Clock::now()); }

Json json(const Query& query) { return {{"calendar", text(query)}}; }

}  // namespace

const Answer icsAnswer{jsonLineOf<json>, text};

}  // namespace velmora::app
