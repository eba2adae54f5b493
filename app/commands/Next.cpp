#include <app/commands/Commands.h>

#include <algorithm>

#include <app/answers/Days.h>
#include <app/answers/PhaseListing.h>
#include <app/text/PhaseText.h>
#include <velmora/platform/time/Clock.h>

namespace velmora::app {
namespace {

using std::chrono::local_days;

PhaseEvents answer(const Query& query) {
  coveredToday(query);
  const Instant now = Clock::now();
  PhaseEvents next;
  for (const PhaseEvent& event : phaseEventsBetween(now, now + longestLunation, query.place)) {
    const bool isKnown = std::any_of(next.begin(), next.end(),
                                     [&](const PhaseEvent& known) { return known.phase == event.phase; });
    if (event.instant > now && !isKnown) next.push_back(event);
  }
  return next;
}

Json json(const Query& query) { return datedPhaseEventsJson(answer(query), query); }

std::string waitText(const PhaseEvent& event, const Query& query) {
  const auto wait = (local_days(event.date) - local_days(dayOf(query))).count();
  if (wait == 0) return "today";
  return wait == 1 ? "tomorrow" : "in " + std::to_string(wait) + " days";
}

std::string text(const Query& query) {
  TextTable table({"", "Time", "When", "Phase"});
  const PhaseEvents events = answer(query);
  for (const PhaseEvent& event : events) {
    table.add({phaseGlyphAt(event.phase, query.place), phaseTime(event, query), waitText(event, query),
               phaseName(event.phase)});
  }
  constexpr std::size_t all = 4;
  return query.place.heading() + "\n" + (events.empty() ? "" : table.text(query.boldHeadings)) +
         (events.size() < all ? "The tables end with 2040.\n" : "");
}

}  // namespace

const Answer nextAnswer{json, text};

}  // namespace velmora::app
