#include <algorithm>

#include <app/answers/Days.h>
#include <app/answers/Phases.h>
#include <app/answers/SeenEclipses.h>
#include <app/commands/Commands.h>
#include <app/text/ClockText.h>
#include <app/text/ICalendar.h>
#include <app/text/PhaseText.h>
#include <velmora/platform/time/Clock.h>
#include <velmora/platform/time/NumberText.h>

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

std::string nameOf(const Place& place) { return place.location.name.value_or(place.location.locationText); }

/// "41.8500_-87.6500".
std::string keyOf(const Place& place) {
  return decimalText(place.location.latitude, 4) + "_" + decimalText(place.location.longitude, 4);
}

CalendarEvent phaseEvent(const almanac::PhaseEvent& event) {
  return {.kind = codeOf(event.phase), .instant = event.at, .summary = phaseName(phaseNumber(event.phase))};
}

CalendarEvent eclipseEvent(const SeenEclipse& seen, const Query& query) {
  return {.kind = eclipseKey(seen.eclipse),
          .instant = bestMoment(seen),
          .summary = eclipseTitle(seen.eclipse),
          .location = nameOf(query.place),
          .description = describedInLines(seen, query),
          .place = keyOf(query.place)};
}

/// The whole day on which it falls at the place, which depends on the place; the time goes into the text.
CalendarEvent asDay(CalendarEvent event, const Query& query) {
  const TimeZone& zone = query.place.zone;
  event.day = dateAt(event.instant, zone);
  event.place = keyOf(query.place);
  if (!event.description) event.description = localText(event.instant, zone, query.use24HourClock);
  return event;
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
  if (query.request.allDay) {
    for (CalendarEvent& event : events) event = asDay(event, query);
  }
  return events;
}

std::string text(const Query& query) {
  return iCalendar("Velmora, " + nameOf(query.place), eventsOf(query), Clock::now());
}

Json json(const Query& query) { return {{"calendar", text(query)}}; }

}  // namespace

const Answer icsAnswer{jsonLineOf<json>, text};

}  // namespace velmora::app
