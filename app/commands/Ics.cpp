#include <app/commands/Commands.h>

#include <algorithm>
#include <array>

#include <app/answers/Days.h>
#include <app/answers/Eclipses.h>
#include <app/answers/PhaseYear.h>
#include <app/text/Errors.h>
#include <app/text/ICalendar.h>
#include <app/text/PhaseText.h>
#include <velmora/phases/Phase.h>
#include <velmora/platform/time/Clock.h>

namespace velmora::app {
namespace {

/// The codes of the principal phases by their numbers.
constexpr std::array<const char*, 4> phaseCodes = {"FM", "FQ", "LQ", "NM"};

CalendarEvent phaseEvent(const PhaseEvent& event) {
  return {phaseCodes.at(static_cast<std::size_t>(event.phase)), event.instant, phaseName(event.phase),
          std::nullopt};
}

CalendarEvent eclipseEvent(const EclipseInfo& eclipse, const Place& place) {
  return {eclipse.key, eclipse.datetime, eclipseTitle(eclipse),
          place.location.name.value_or(place.location.locationText)};
}

std::vector<CalendarEvent> eventsOf(const Query& query) {
  if (!query.request.from && !query.request.to)
    throw BadInput("from and to are missing: give both, as YYYY-MM-DD");
  std::vector<CalendarEvent> events;
  for (const PhaseEvent& event : phaseEventsOfRange(query)) {
    if (event.phase != kUnknownPhase) events.push_back(phaseEvent(event));
  }
  for (const CivilDate day : daysOf(query)) {
    if (const auto eclipse = visibleEclipse(day, query.place))
      events.push_back(eclipseEvent(*eclipse, query.place));
  }
  std::stable_sort(events.begin(), events.end(),
                   [](const CalendarEvent& a, const CalendarEvent& b) { return a.instant < b.instant; });
  return events;
}

std::string text(const Query& query) { return iCalendar(eventsOf(query), Clock::now()); }

Json json(const Query& query) { return {{"calendar", text(query)}}; }

}  // namespace

const Answer icsAnswer{json, text};

}  // namespace velmora::app
