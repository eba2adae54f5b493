#pragma once

#include <cstdint>

#include <velmora/service/MoonPhaseData.h>

namespace [[gnu::visibility("hidden")]] velmora {

/// The device's present day, in the process's zone, when it lies in the selected month; else 0.
std::int64_t todayInSelectedMonth(const MoonPhaseData& service);

}  // namespace velmora
