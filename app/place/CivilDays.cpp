#include <app/place/CivilDays.h>

namespace velmora::app {

using std::chrono::local_days;

CivilDate dateAt(Instant instant, const TimeZone& zone) {
  return CivilDate(std::chrono::floor<std::chrono::days>(zone.localTime(instant)));
}

bool exists(CivilDate date, const TimeZone& zone) {
  const LocalLookup midnight = zone.lookup(LocalTime(local_days(date)));
  return midnight.kind != LocalLookup::Kind::skipped || dateAt(midnight.change, zone) == date;
}

Instant instantOn(CivilDate date, ClockTime time, const TimeZone& zone) {
  return zone.lookup(LocalTime(local_days(date)) + time).before;
}

}  // namespace velmora::app
