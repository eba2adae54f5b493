#pragma once

#include <string>

#include <velmora/cities/CityTable.h>
#include <velmora/platform/time/TimeZone.h>

namespace velmora::app {

/// The city that is spelled so in the library's table. Throws BadInput with the choices if there are several,
/// with the nearest names if there is none; Failure if there is no table.
City cityNamed(const std::string& spelling);

/// The city as a message names it and as `cityNamed` finds it: "Portland, Maine, US".
std::string fullName(const City& city);

/// The time zone of that identifier, of today or of old. Throws BadInput with the nearest ones if there is
/// none; Failure if only the system's zone database lacks it.
TimeZone zoneNamed(const std::string& identifier);

}  // namespace velmora::app
