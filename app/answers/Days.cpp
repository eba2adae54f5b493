#include <app/answers/Days.h>

#include <app/text/Errors.h>
#include <app/text/ValueTexts.h>
#include <velmora/platform/time/Clock.h>

namespace velmora::app {
namespace {

using std::chrono::days;
using std::chrono::local_days;
using std::chrono::years;

constexpr years longestRange{41};

void checkRange(CivilDate from, CivilDate to) {
  if (to < from)
    throw BadInput("the range from " + dateText(from) + " to " + dateText(to) +
                   " runs backwards; from must not be after to");
  if (to >= from + longestRange)
    throw BadInput("the range from " + dateText(from) + " to " + dateText(to) +
                   " is too long; accepted are at most 41 years");
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
  for (local_days day(*from); day <= local_days(*to); day += days(1)) {
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

Instant instantOf(const Query& query, ClockTime usual) {
  return instantOn(dayOf(query), query.request.time.value_or(usual), query.place.zone);
}

Instant universalReading(Instant instant, std::int64_t offset, const Place& place) {
  return Instant(place.zone.localTime(instant - Seconds(static_cast<double>(offset))).time_since_epoch());
}

Instant presentOf(const Query& query) {
  if (!query.request.date && !query.request.time) return Clock::now();
  return instantOf(query, std::chrono::hours(12));
}

}  // namespace velmora::app
