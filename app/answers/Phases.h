#pragma once

#include <optional>
#include <string>
#include <vector>

#include <app/answers/Query.h>
#include <app/text/TextTable.h>
#include <velmora/almanac/Phases.h>

namespace velmora::app {

/// The principal phase's number in the library: 0 full, 1 first quarter, 2 last quarter, 3 new.
std::int64_t phaseNumber(almanac::PrincipalPhase phase);

/// Its date at the place, number, name, time and instant.
Json phaseJson(const almanac::PhaseEvent& event, const Query& query);

/// "🌕", as seen from the place.
std::string phaseGlyphAt(std::int64_t phase, const Place& place);

/// Day and time at the place: "Fri 2024-06-21 18:08".
std::string momentText(Instant instant, const Query& query);

/// The time of day at the place.
std::string clockAt(Instant instant, const Query& query);

/// A day of the month: "Fri  1".
std::string dayOfMonthText(CivilDate date);

/// The Moon of a civil day.
struct MoonDay {
  CivilDate date;
  std::int64_t phase;            ///< 0..7, of the day's principal phase or between two
  std::optional<Instant> event;  ///< the day's principal phase
  std::optional<std::int64_t>
      age;  ///< days from the last new moon, whose own is 1; none before the first known
};

/// The Moon of each of the days, which are in order; none for days that the almanac does not know.
std::vector<MoonDay> moonDays(const std::vector<CivilDate>& dates, const TimeZone& zone);

}  // namespace velmora::app
