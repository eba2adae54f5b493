#pragma once

#include <optional>
#include <string>
#include <string_view>

#include <app/text/CivilTime.h>
#include <velmora/platform/time/Instant.h>

namespace velmora::app {

/// A decimal number such as "-33.9" or "1e1", read from the whole text whatever the C locale is.
std::optional<double> numberFromText(std::string_view text);

/// "2024-06-20": a date that exists, in any year of four digits.
std::optional<CivilDate> dateFromText(std::string_view text);

/// "2024-06": a month of any year of four digits.
std::optional<std::chrono::year_month> monthFromText(std::string_view text);

/// "09:30", from 00:00 to 23:59.
std::optional<ClockTime> timeFromText(std::string_view text);

/// An instant in the ISO 8601 form "2024-06-20T12:00:00Z"; the seconds may be left out or have a fraction,
/// and an offset such as "+03:00" may stand in place of Z.
std::optional<Instant> instantFromText(std::string_view text);

/// "2024-06-20".
std::string dateText(CivilDate date);

/// The instant in universal time, to the nearest second: "2024-06-20T12:00:00Z".
std::string instantText(Instant instant);

}  // namespace velmora::app
