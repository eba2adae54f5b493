#pragma once

#include <optional>

#include <app/answers/Illumination.h>
#include <app/answers/PhaseYear.h>
#include <app/text/TextTable.h>
#include <velmora/phases/PhaseItem.h>

namespace velmora::app {

/// Of a month's event the properties by their names; the time is that of the true instant at the place.
Json phaseEventJson(const PhaseEvent& event, const Query& query);

/// The same with day, month and year in front, a list of any events.
Json datedPhaseEventsJson(const PhaseEvents& events, const Query& query);

/// "🌕", as seen from the place.
std::string phaseGlyphAt(std::int64_t phase, const Place& place);

/// What people read of a day, as far as its record says it. The first days of the tables, before their first
/// new moon, have no age, and their phase is then that of how the Moon is lit.
struct ShownPhase {
  std::int64_t phase;
  std::optional<std::int64_t> age;
};
ShownPhase shownPhase(const PhaseItem& record, const Illumination& illumination);

/// The time of day at the place.
std::string phaseClock(Instant instant, const Query& query);

/// Day and time at the place: "Fri 2024-06-21 18:08".
std::string phaseTime(const PhaseEvent& event, const Query& query);

/// A day of the month: "Fri  1".
std::string phaseDay(CivilDate date);

}  // namespace velmora::app
