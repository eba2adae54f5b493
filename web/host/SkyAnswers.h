#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <string>

#include <velmora/almanac/Positions.h>
#include <web/host/Session.h>

namespace velmora::web {

/// What the page's panels say, as JSON whose fields web/src/velmora.ts describes. Instants are milliseconds.
/// None where the almanac has no answer.
std::optional<std::string> skyOfDay(Date day);
std::optional<std::string> momentInTheSky(Instant at);
/// Apparent altitude and azimuth at each instant; null where there is none.
std::string track(almanac::Body body, std::span<const double> milliseconds);
std::string nextPhases(Instant after);
std::string phasesBetween(Instant from, Instant to);
std::string nextEclipses(Instant after, std::size_t count);
std::optional<std::string> calendarDay(Date day);

double milliseconds(Instant instant);
Instant instantAt(double milliseconds);

}  // namespace velmora::web
