#pragma once

#include <chrono>

namespace velmora {

/// A length of time in seconds, fractions included.
using Seconds = std::chrono::duration<double>;

/// A moment, the same everywhere on Earth: seconds since 1970-01-01T00:00:00Z, without leap seconds.
/// A day on a calendar is another type (std::chrono::year_month_day); only a TimeZone joins the two.
using Instant = std::chrono::sys_time<Seconds>;

/// A reading of a clock and a calendar on the wall, in whichever zone they hang.
using LocalTime = std::chrono::local_time<Seconds>;

/// The instant that lies the given number of seconds after 1970-01-01T00:00:00Z.
constexpr Instant instantFromUnixSeconds(double seconds) { return Instant(Seconds(seconds)); }

/// The number of seconds from 1970-01-01T00:00:00Z to the instant.
constexpr double unixSeconds(Instant instant) { return instant.time_since_epoch().count(); }

}  // namespace velmora
