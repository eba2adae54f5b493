#include <velmora/almanac/Events.h>

namespace velmora::almanac {
namespace {

using std::chrono::local_days;

/// The first instant at which clocks in the zone show the date or a later one.
Instant startOf(const TimeZone& zone, local_days date) {
  const LocalLookup midnight = zone.lookup(LocalTime(date));
  return midnight.kind == LocalLookup::Kind::skipped ? midnight.change : midnight.before;
}

}  // namespace

std::optional<Interval> civilDay(const TimeZone& zone, std::chrono::year_month_day date) {
  if (!date.ok()) return std::nullopt;
  const Interval day{startOf(zone, local_days(date)), startOf(zone, local_days(date) + std::chrono::days(1))};
  if (day.start >= day.end) return std::nullopt;
  return day;
}

}  // namespace velmora::almanac
