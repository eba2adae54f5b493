#include <app/answers/Phases.h>

#include <app/answers/Days.h>
#include <app/commands/Commands.h>
#include <app/text/Csv.h>
#include <app/text/PhaseText.h>
#include <velmora/platform/resources/Words.h>

namespace velmora::app {
namespace {

std::vector<almanac::PhaseEvent> answer(const Query& query) {
  checkRangeIsGiven(query);
  const almanac::Interval range = rangeOf(query);
  auto events = almanac::phases(range.start, range.end);
  if (const auto wanted = query.request.phase)
    std::erase_if(events, [&](const auto& event) { return phaseNumber(event.phase) != *wanted; });
  return events;
}

Json json(const Query& query) {
  Json list = Json::array();
  for (const almanac::PhaseEvent& event : answer(query)) list.push_back(phaseJson(event, query));
  return list;
}

std::string csv(const Query& query) {
  return csvTable({"day", "month", "year", "phase", "phaseName", "localDate"}, json(query));
}

std::string text(const Query& query) {
  const auto events = answer(query);
  if (events.empty()) return query.place.heading() + "\n" + words("None in this range.") + "\n";
  TextTable table({"", words("Time"), words("Phase")});
  for (const almanac::PhaseEvent& event : events) {
    const std::int64_t phase = phaseNumber(event.phase);
    table.add({phaseGlyphAt(phase, query.place), momentText(event.at, query), phaseName(phase)});
  }
  return query.place.heading() + "\n" + table.text(query.boldHeadings) + noteOnTimeToCome(events.back().at);
}

}  // namespace

const Answer phasesAnswer{jsonLineOf<json>, text, csv};

}  // namespace velmora::app
