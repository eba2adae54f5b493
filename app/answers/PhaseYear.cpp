#include <app/answers/PhaseYear.h>

#include <algorithm>
#include <iterator>

#include <app/answers/Days.h>
#include <app/answers/ShippedData.h>
#include <app/text/Errors.h>
#include <app/text/ValueTexts.h>
#include <velmora/platform/time/Calendar.h>
#include <velmora/platform/time/Clock.h>

namespace velmora::app {
namespace {

using std::chrono::hours;
using std::chrono::local_days;

constexpr bool use24HourClock = true;  // for record texts that are not shown

/// Where an argument says no more than the offset of a place without a named zone, which no place here is.
constexpr Instant anyInstant{};

std::int64_t zeroBased(std::chrono::month month) { return static_cast<unsigned>(month) - 1; }

Instant startOf(CivilDate date, const TimeZone& zone) { return instantOn(date, hours(0), zone); }

CivilDate dayAfter(CivilDate date) { return CivilDate(local_days(date) + std::chrono::days(1)); }

bool isEarlier(const PhaseEvent& a, const PhaseEvent& b) { return a.instant < b.instant; }

}  // namespace

void checkCovered(const std::string& label, CivilDate date) {
  if (date.year() < firstTableYear || date.year() > lastTableYear)
    throw BadInput(label + " " + dateText(date) +
                   " lies outside the phase tables; accepted: 2000-01-01 to 2040-12-31 at the place");
}

CivilDate coveredToday(const Query& query) {
  const CivilDate today = dateAt(Clock::now(), query.place.zone);
  checkCovered("today's date", today);
  return today;
}

CivilDate coveredDay(const Query& query) {
  if (!query.request.date) return coveredToday(query);
  const CivilDate day = dayOf(query);
  checkCovered("date", day);
  return day;
}

std::chrono::year coveredYear(const Query& query) {
  return query.request.year ? *query.request.year : coveredToday(query).year();
}

PhaseYear::PhaseYear(std::chrono::year year, const Place& place)
    : _year(year), _place(place), _table(wholeTable(year)) {}

PhaseEvents PhaseYear::events(std::chrono::month month) const {
  checkNeighbour(_year / month);
  Calendar calendar(_place.zone);
  PhaseEvents events;
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

PhaseEvents phaseEventsBetween(Instant from, Instant to, const Place& place) {
  const auto first = std::max(dateAt(from, place.zone).year(), firstTableYear);
  const auto last = std::min(dateAt(to, place.zone).year(), lastTableYear);
  PhaseEvents found;
  for (auto year = first; year <= last; ++year) {
    const PhaseYear table(year, place);
    for (unsigned month = 1; month <= 12; ++month) {
      const PhaseEvents events = table.events(std::chrono::month(month));
      std::copy_if(events.begin(), events.end(), std::back_inserter(found),
                   [&](const PhaseEvent& event) { return event.instant >= from && event.instant < to; });
    }
  }
  return found;
}

PhaseEvents phaseEventsOfRange(const Query& query) {
  const auto days = daysOf(query);
  if (days.empty()) return {};
  checkCovered("from", days.front());
  checkCovered("to", days.back());
  const TimeZone& zone = query.place.zone;
  return phaseEventsBetween(startOf(days.front(), zone), startOf(dayAfter(days.back()), zone), query.place);
}

}  // namespace velmora::app
