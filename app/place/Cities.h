#pragma once

#include <string>
#include <vector>

#include <velmora/cities/CityTable.h>
#include <velmora/platform/time/TimeZone.h>

namespace velmora::app {

/// The city that is spelled so in the library's table. Throws BadInput with the choices if there are several,
/// with the nearest names if there is none; Failure if there is no table.
City cityNamed(const std::string& spelling);

/// The city as a message names it and as `cityNamed` finds it: "Portland, Maine, US".
std::string fullName(const City& city);

/// What a shell offers for a city, or a time zone, that begins so. Cities by names that `cityNamed` takes,
/// the most populous first; where only other names of cities begin so, the most populous one alone, since a
/// shell puts what it is offered in the beginning's place. None if there is no table.
std::vector<std::string> citiesBeginning(const std::string& beginning);
std::vector<std::string> zonesBeginning(const std::string& beginning);

/// The time zone of that identifier, of today or of old. Throws BadInput with the nearest ones if there is
/// none; Failure if only the system's zone database lacks it.
TimeZone zoneNamed(const std::string& identifier);

}  // namespace velmora::app
