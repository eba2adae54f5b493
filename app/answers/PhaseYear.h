#pragma once

#include <vector>

#include <app/answers/Query.h>
#include <velmora/phases/MoonPhaseCalc.h>

namespace velmora::app {

/// Throws BadInput for a day at the place that the tables do not cover; `label` says what the day is.
void checkCovered(const std::string& label, CivilDate date);

/// Today at the place. Throws BadInput if the tables do not cover it.
CivilDate coveredToday(const Query& query);

/// Whether the tables have the day.
bool isCovered(CivilDate date);

/// The year that the request asks for, else the present one at the place. Throws BadInput for one that the
/// tables do not cover.
std::chrono::year coveredYear(const Query& query);

/// The month that the request asks for, likewise.
std::chrono::year_month coveredMonth(const Query& query);

/// A new moon, first quarter, full moon or last quarter as the tables have it, to the minute.
struct RecordedPhase {
  Instant instant;
  CivilDate date;  ///< at the place
  std::int64_t phase;
  float fullFactor;
};

/// What a year's table says of its months as seen from a place.
class PhaseYear {
 public:
  /// Throws Failure if the table cannot be read or is damaged; what asks for a January or a December does
  /// so of the neighbouring year's.
  PhaseYear(std::chrono::year year, const Place& place);

  /// The events whose day at the place lies in the month, by their instants.
  std::vector<RecordedPhase> events(std::chrono::month month) const;

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

}  // namespace velmora::app
