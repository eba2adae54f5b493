#include <app/answers/PhaseYear.h>

#include <algorithm>

#include <app/answers/ShippedData.h>
#include <app/place/CivilDays.h>
#include <app/text/Errors.h>
#include <app/text/ValueTexts.h>
#include <velmora/platform/time/Calendar.h>
#include <velmora/platform/time/Clock.h>

namespace velmora::app {
namespace {

constexpr bool use24HourClock = true;  // for record texts that are not shown

/// For an argument that only matters for places without a named zone, of which there are none here.
constexpr Instant anyInstant{};

std::int64_t zeroBased(std::chrono::month month) { return static_cast<unsigned>(month) - 1; }

bool hasTable(std::chrono::year year) { return year >= firstTableYear && year <= lastTableYear; }

bool isEarlier(const RecordedPhase& a, const RecordedPhase& b) { return a.instant < b.instant; }

}  // namespace

bool isCovered(CivilDate date) { return hasTable(date.year()); }

void checkCovered(const std::string& label, CivilDate date) {
  if (!isCovered(date))
    throw BadInput(label + " " + dateText(date) +
                   " lies outside the phase tables; accepted: 2000-01-01 to 2040-12-31 at the place");
}

CivilDate coveredToday(const Query& query) {
  const CivilDate today = dateAt(Clock::now(), query.place.zone);
  checkCovered("today's date", today);
  return today;
}

std::chrono::year coveredYear(const Query& query) {
  if (!query.request.year) return coveredToday(query).year();
  const std::chrono::year year = *query.request.year;
  if (!hasTable(year))
    throw BadInput("year " + std::to_string(static_cast<int>(year)) +
                   " lies outside the phase tables; accepted: 2000 to 2040");
  return year;
}

std::chrono::year_month coveredMonth(const Query& query) {
  if (!query.request.month) {
    const CivilDate today = coveredToday(query);
    return {today.year(), today.month()};
  }
  const std::chrono::year_month month = *query.request.month;
  if (!hasTable(month.year()))
    throw BadInput("month " + dateText(month / 1).substr(0, std::string("YYYY-MM").size()) +
                   " lies outside the phase tables; accepted: 2000-01 to 2040-12");
  return month;
}

PhaseYear::PhaseYear(std::chrono::year year, const Place& place)
    : _year(year), _place(place), _table(wholeTable(year)) {}

std::vector<RecordedPhase> PhaseYear::events(std::chrono::month month) const {
  checkNeighbour(_year / month);
  Calendar calendar(_place.zone);
  std::vector<RecordedPhase> events;
  for (const auto& item : MoonPhaseCalc::GetMoonPhaseDataForMonth(
           *_table, year(), zeroBased(month), calendar, _place.zone.secondsFromGMT(anyInstant), year(),
           zeroBased(month), _place.location, use24HourClock)) {
    events.push_back({item->localDate, dateAt(item->localDate, _place.zone), item->phase, item->fullFactor});
  }
  std::sort(events.begin(), events.end(), isEarlier);
  return events;
}

MoonPhaseCalc::PhaseCalendar PhaseYear::days(std::chrono::month month) const {
  checkNeighbour(_year / month);
  return MoonPhaseCalc::GetPhaseCalendar(*_table, zeroBased(month), year(), anyInstant, _place.location,
                                         use24HourClock);
}

MoonPhaseCalc::ImageCalendar PhaseYear::images(std::chrono::month month) const {
  checkNeighbour(_year / month);
  return MoonPhaseCalc::GetImageCalendar(*_table, zeroBased(month), year(), anyInstant, _place.location,
                                         use24HourClock);
}

}  // namespace velmora::app
