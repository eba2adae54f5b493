#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

#include <velmora/platform/time/AlternateCalendar.h>
#include <velmora/platform/time/intl/IntlSupport.h>

// In numbers.js.
extern "C" int velmora_intl_alternate_day(const char* calendar, double dayCount);

namespace velmora {
namespace {

constexpr double secondsPerDay = 86'400.0;

// In the order of AlternateCalendar::Kind.
constexpr std::array calendarNames = {"hebrew",   "islamic-umalqura", "buddhist",
                                      "japanese", "chinese",          "indian"};

/// The local date as a day count; dates beyond every calendar stay at the edge.
double daysSince1970(LocalTime local) {
  constexpr double farthest = 1e8 - 1;
  const double days = std::floor(local.time_since_epoch().count() / secondsPerDay);
  return days >= -farthest ? std::min(days, farthest) : -farthest;
}

}  // namespace

std::int64_t AlternateCalendar::day(Instant instant) const {
  return velmora_intl_alternate_day(calendarNames[static_cast<std::size_t>(_kind)],
                                    daysSince1970(_timeZone.localTime(instant)));
}

}  // namespace velmora
