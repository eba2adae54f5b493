#pragma once

#include <vector>

#include <app/answers/Query.h>
#include <velmora/phases/MoonPhaseCalc.h>

namespace velmora::app {

/// Throws BadInput for a day at the place that the tables do not cover; `label` says what the day is.
void checkCovered(const std::string& label, CivilDate date);

/// Today at the place. Throws BadInput if the tables do not cover it.
CivilDate coveredToday(const Query& query);

/// The day or the year that the request asks for, else the present one at the place. Throws BadInput for one
/// that the tables do not cover.
CivilDate coveredDay(const Query& query);
std::chrono::year coveredYear(const Query& query);

/// Longer than any lunation: within it each phase comes at least once.
constexpr std::chrono::days longestLunation{30};

/// A new moon, first quarter, full moon or last quarter.
struct PhaseEvent {
  Instant instant;
  CivilDate date;  ///< at the place
  std::int64_t phase;
  float fullFactor;
};

using PhaseEvents = std::vector<PhaseEvent>;

/// What a year's table says of its months as seen from a place.
class PhaseYear {
 public:
  /// Throws Failure if the table cannot be read or is damaged; what asks for a January or a December does
  /// so of the neighbouring year's.
  PhaseYear(std::chrono::year year, const Place& place);

  /// The events whose day at the place lies in the month, by their instants.
  PhaseEvents events(std::chrono::month month) const;

  /// The phase of each day of the month.
  MoonPhaseCalc::PhaseCalendar days(std::chrono::month month) const;

  /// The picture number of each day of the month.
  MoonPhaseCalc::ImageCalendar images(std::chrono::month month) const;

 private:
  std::int64_t year() const { return static_cast<int>(_year); }

  std::chrono::year _year;
  const Place& _place;
  std::shared_ptr<const YearTable> _table;
};

/// The events with `from` ≤ instant < `to`, by their instants, as far as the tables go.
PhaseEvents phaseEventsBetween(Instant from, Instant to, const Place& place);

/// The events of the days that the request asks for: from 00:00 of the first at the place to the end of the
/// last. Throws BadInput as `daysOf` does and for days outside the tables.
PhaseEvents phaseEventsOfRange(const Query& query);

}  // namespace velmora::app
