#pragma once

#include <chrono>

namespace velmora::app {

/// A day on the calendar, of no zone.
using CivilDate = std::chrono::year_month_day;
/// A reading of a clock, in minutes after 00:00.
using ClockTime = std::chrono::minutes;

/// The years that dates may lie in.
constexpr std::chrono::year firstYear{1900}, lastYear{2100};
/// The years of the phase tables and of the eclipse catalogue.
constexpr std::chrono::year firstTableYear{2000}, lastTableYear{2040};

}  // namespace velmora::app
