#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include <velmora/foundation/GeoLocationData.h>
#include <velmora/platform/time/TimeZone.h>

namespace velmora::app {

/// What a request says of its place. What was not given is none; each value is valid by itself.
struct PlaceChoice {
  std::optional<double> latitude;   ///< degrees, north positive
  std::optional<double> longitude;  ///< degrees, east positive
  std::optional<TimeZone> zone;
  std::optional<std::int64_t> gmtOffset;  ///< seconds, east positive
  std::optional<std::string> city;
  std::optional<std::string> name;
};

/// The place that a request asks about.
struct Place {
  GeoLocationData location;
  TimeZone zone;  ///< the location's

  /// The lines above an answer for people: the name, if there is one, then coordinates and zone.
  std::string heading() const;
};

/// The chosen city or coordinates, else the default place; in the chosen zone or offset, else the city's, for
/// coordinates the process's. Throws BadInput where the choices do not go together or the city is unknown.
Place placeOf(const PlaceChoice& choice);

}  // namespace velmora::app
