#pragma once

#include <chrono>

#include <velmora/c/velmora.h>
#include <velmora/platform/time/TimeZone.h>

struct velmora_zone {
  velmora::TimeZone zone;
};

namespace [[gnu::visibility("hidden")]] velmora {
namespace c {

// Zones and days; not for other folders.

const TimeZone& zoneOf(const velmora_zone* zone);

/// The day; refuses one that no calendar has, and one outside the years that are covered.
std::chrono::year_month_day dateOf(velmora_date date, const char* name);

}  // namespace c
}  // namespace velmora
