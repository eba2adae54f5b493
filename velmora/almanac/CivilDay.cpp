#include <velmora/almanac/CivilDay.h>

namespace velmora::almanac {
namespace {

using std::chrono::local_days, std::chrono::year_month_day;

/// The first instant at which clocks in the zone show the date or a later one.
Instant startOf(const TimeZone& zone, local_days date) {
  const LocalLookup midnight = zone.lookup(LocalTime(date));
  return midnight.kind == LocalLookup::Kind::skipped ? midnight.change : midnight.before;
}

}  // namespace

std::vector<Interval> civilDays(const TimeZone& zone, year_month_day first, year_month_day last) {
  std::vector<Interval> found;
  Instant start = startOf(zone, local_days(first));
  for (local_days date(first); date <= local_days(last);) {
    const Instant end = startOf(zone, date += std::chrono::days(1));
    if (start < end) found.push_back({start, end});
    start = end;
  }
  return found;
}

std::optional<Interval> civilDay(const TimeZone& zone, year_month_day date) {
  if (!date.ok()) return std::nullopt;
  const auto found = civilDays(zone, date, date);
  return found.empty() ? std::nullopt : std::optional(found.front());
}

}  // namespace velmora::almanac
