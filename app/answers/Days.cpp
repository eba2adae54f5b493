#include <app/answers/Days.h>

#include <app/text/Errors.h>
#include <app/text/ValueTexts.h>
#include <velmora/platform/resources/Words.h>
#include <velmora/platform/time/Clock.h>

namespace velmora::app {
namespace {

using std::chrono::local_days;
using std::chrono::years;

constexpr years longestRange{41};
constexpr Instant endOfKnownRotation = std::chrono::sys_days(std::chrono::January / 1 / 2031);

void checkRange(CivilDate from, CivilDate to) {
  if (to < from)
    throw BadInput("the range from " + dateText(from) + " to " + dateText(to) +
                   " runs backwards; from must not be after to");
  if (to >= from + longestRange)
    throw BadInput("the range from " + dateText(from) + " to " + dateText(to) +
                   " is too long; accepted are at most 41 years");
}

[[noreturn]] void refuseUncovered(CivilDate date) {
  throw BadInput("the day " + dateText(date) +
                 " is not wholly known at the place; accepted: what lies from 1900 to 2100 in UTC");
}

}  // namespace

std::vector<CivilDate> daysOf(const Query& query) {
  const auto& from = query.request.from;
  const auto& to = query.request.to;
  if (!from && !to) return {dayOf(query)};
  if (query.request.date) throw BadInput("date and from, to exclude each other: give one of the two");
  if (!from || !to) throw BadInput("from and to come together: give both");
  checkRange(*from, *to);

  std::vector<CivilDate> list;
  for (local_days day(*from); day <= local_days(*to); day += std::chrono::days(1)) {
    if (exists(CivilDate(day), query.place.zone)) list.emplace_back(day);
  }
  return list;
}

CivilDate dayOf(const Query& query) {
  const TimeZone& zone = query.place.zone;
  if (!query.request.date) return dateAt(Clock::now(), zone);
  const CivilDate date = *query.request.date;
  if (!exists(date, zone))
    throw BadInput("date " + dateText(date) + " does not exist in " + zone.name() +
                   ", where the calendar skipped it; give the day before or after");
  return date;
}

Instant presentOf(const Query& query) {
  if (!query.request.date && !query.request.time) return Clock::now();
  constexpr std::chrono::hours noon{12};
  return instantOn(dayOf(query), query.request.time.value_or(noon), query.place.zone);
}

almanac::Interval intervalOf(const std::vector<CivilDate>& days, const Query& query) {
  if (days.empty()) return {};
  const auto first = almanac::civilDay(query.place.zone, days.front());
  const auto last = almanac::civilDay(query.place.zone, days.back());
  if (!first || first->start < ephemeris::firstInstant()) refuseUncovered(days.front());
  if (!last || last->end > ephemeris::endInstant()) refuseUncovered(days.back());
  return {first->start, last->end};
}

almanac::Interval rangeOf(const Query& query) { return intervalOf(daysOf(query), query); }

void checkRangeIsGiven(const Query& query) {
  if (!query.request.from && !query.request.to)
    throw BadInput("from and to are missing: give both, as YYYY-MM-DD");
}

std::string noteOnTimeToCome(Instant last) {
  if (last < endOfKnownRotation) return "";
  return words(
             "Of years after 2030 the leap seconds are not known: times may shift, by 2100 up to 2 "
             "minutes.") +
         "\n";
}

}  // namespace velmora::app
