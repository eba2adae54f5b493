#include <app/commands/Commands.h>

#include <app/answers/PhaseListing.h>
#include <app/text/Errors.h>
#include <app/text/PhaseText.h>

namespace velmora::app {
namespace {

PhaseEvents answer(const Query& query) {
  const Request& request = query.request;
  if (!request.from && !request.to) throw BadInput("from and to are missing: give both, as YYYY-MM-DD");
  PhaseEvents events = phaseEventsOfRange(query);
  if (request.phase)
    std::erase_if(events, [&](const PhaseEvent& event) { return event.phase != *request.phase; });
  return events;
}

Json json(const Query& query) { return datedPhaseEventsJson(answer(query), query); }

std::string text(const Query& query) {
  TextTable table({"", "Time", "Phase"});
  const PhaseEvents events = answer(query);
  for (const PhaseEvent& event : events) {
    table.add({phaseGlyphAt(event.phase, query.place), phaseTime(event, query), phaseName(event.phase)});
  }
  return query.place.heading() + "\n" +
         (events.empty() ? "None in this range.\n" : table.text(query.boldHeadings));
}

}  // namespace

const Answer phasesAnswer{json, text};

}  // namespace velmora::app
