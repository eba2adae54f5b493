#pragma once

#include <chrono>
#include <vector>

#include <velmora/almanac/Events.h>

namespace [[gnu::visibility("hidden")]] velmora {
namespace almanac {

/// The civil days in the zone from `first` to `last`, both included, without those that its clocks skip.
std::vector<Interval> civilDays(const TimeZone& zone, std::chrono::year_month_day first,
                                std::chrono::year_month_day last);

}  // namespace almanac
}  // namespace velmora
