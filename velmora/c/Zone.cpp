#include <velmora/c/Zone.h>

#include <velmora/almanac/Events.h>
#include <velmora/c/Answering.h>

namespace [[gnu::visibility("hidden")]] velmora {
namespace c {

const TimeZone& zoneOf(const velmora_zone* zone) { return given(zone, "zone").zone; }

std::chrono::year_month_day dateOf(velmora_date date, const char* name) {
  const bool isCounted = date.month >= 1 && date.month <= 12 && date.day >= 1 && date.day <= 31 &&
                         date.year >= -9999 && date.year <= 9999;
  const std::chrono::year_month_day day(std::chrono::year(date.year),
                                        std::chrono::month(static_cast<unsigned>(date.month)),
                                        std::chrono::day(static_cast<unsigned>(date.day)));
  if (!isCounted || !day.ok()) {
    endWith(VELMORA_BAD_ARGUMENT, {name, " is no day of the calendar"});
  }
  if (date.year < 1900 || date.year > 2100) {
    endWith(VELMORA_OUT_OF_YEARS, {name, " lies outside the years 1900 to 2100"});
  }
  return day;
}

}  // namespace c
}  // namespace velmora

using namespace velmora;
using namespace velmora::c;

extern "C" {

velmora_status velmora_zone_open(const char* name, velmora_zone** zone) {
  return answering([&] {
    velmora_zone*& opened = given(zone, "zone");
    const auto found = TimeZone::named(&given(name, "name"));
    if (!found) endWith(VELMORA_BAD_ARGUMENT, {"there is no zone of the name ", name});
    opened = new velmora_zone{*found};
    return VELMORA_OK;
  });
}

void velmora_zone_close(velmora_zone* zone) { delete zone; }

velmora_status velmora_zone_offset(const velmora_zone* zone, double at, int32_t* seconds) {
  return answering([&] {
    const TimeZone& taken = zoneOf(zone);
    given(seconds, "seconds") = static_cast<std::int32_t>(taken.secondsFromGMT(coveredInstant(at, "at")));
    return VELMORA_OK;
  });
}

velmora_status velmora_civil_day(const velmora_zone* zone, velmora_date date, double* start, double* end) {
  return answering([&] {
    double& from = given(start, "start");
    double& to = given(end, "end");
    const auto interval = almanac::civilDay(zoneOf(zone), dateOf(date, "date"));
    if (!interval) endWith(VELMORA_NONE, {"the zone's clocks skipped that day"});
    from = secondsOf(interval->start);
    to = secondsOf(interval->end);
    return VELMORA_OK;
  });
}

}  // extern "C"
