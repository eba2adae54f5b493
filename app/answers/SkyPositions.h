#pragma once

#include <optional>
#include <string>
#include <vector>

#include <app/answers/Query.h>
#include <velmora/almanac/Positions.h>
#include <velmora/astronomy/PositionData.h>

namespace velmora::app {

/// Where a body stands at an instant, and how the Moon is lit then.
struct SkyPosition {
  Instant instant;
  almanac::Body body;
  almanac::Position position;
  std::optional<almanac::Illumination> light;  ///< none of the Sun
};

/// At the instant. Throws BadInput where the almanac does not know it.
SkyPosition positionAt(Instant instant, almanac::Body body, const Place& place);

/// The same at each of the instants, which the almanac knows.
std::vector<SkyPosition> positionsAt(const std::vector<Instant>& instants, almanac::Body body,
                                     const Place& place);

/// Instant, the library's record, which is its own, and the almanac's position.
Json positionJson(const SkyPosition& position, const Place& place);

/// The names of its numbers of the almanac, in the order of a table.
const std::vector<std::string>& positionColumns();

/// "12.3°", without the sign of a zero; "none" for what is no number.
std::string degreesText(double degrees);

/// The fraction in whole percent, as the language writes it, the number taking that many columns at least:
/// "62%", "62 %".
std::string percentText(double fraction, std::size_t width = 0);

/// "WSW", of sixteen points.
std::string compassPoint(double azimuth);

/// "12.3° above the horizon, WSW", as it is seen.
std::string positionText(const almanac::Position& position);

/// How the Moon's lit side lies for who looks at it: "lit from the lower right".
std::string tiltText(const almanac::Illumination& light);

}  // namespace velmora::app
