#pragma once

#include <cstdint>
#include <string>

#include <velmora/platform/time/Calendar.h>

namespace [[gnu::visibility("hidden")]] velmora {

/// The time of a minute of the day, 0 to 1439, in the user's own short time style. Texts are kept as long as
/// the locale stays the same: a month needs some hundred and fifty of them.
std::string shortTimeText(std::int64_t minuteOfDay);

/// The same of what clocks in the calendar's zone show at the instant.
std::string shortTimeText(Instant instant, const Calendar& calendar);

}  // namespace velmora
