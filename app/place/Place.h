#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include <velmora/almanac/Place.h>
#include <velmora/foundation/GeoLocationData.h>
#include <velmora/platform/time/TimeZone.h>

namespace velmora::app {

/// Metres above the horizon around that are accepted at most.
constexpr double greatestHeight = 10000;

/// What a request says of its place. What was not given is none; each value is valid by itself.
struct PlaceChoice {
  std::optional<double> latitude = std::nullopt;   ///< degrees, north positive
  std::optional<double> longitude = std::nullopt;  ///< degrees, east positive
  std::optional<TimeZone> zone = std::nullopt;
  std::optional<std::int64_t> gmtOffset = std::nullopt;  ///< seconds, east positive
  std::optional<std::string> city = std::nullopt;
  std::optional<std::string> name = std::nullopt;
  std::optional<double> height = std::nullopt;  ///< metres above the horizon around, 0 or more

  /// Whether it says where.
  bool isSomewhere() const { return latitude || longitude || city; }
};

/// Where a place comes from.
enum class PlaceOrigin {
  asked,  ///< the request
  own,    ///< what the user keeps as their own place
  zone,   ///< the city of the system's time zone
  usual,  ///< the library's default place
};

/// The place of requests that do not say where, and where it comes from.
struct UsualPlace {
  PlaceChoice choice;  ///< none of it for the library's default place
  PlaceOrigin origin = PlaceOrigin::usual;
};

/// The place that a request asks about.
struct Place {
  GeoLocationData location;
  TimeZone zone;  ///< the location's
  double height = 0;
  PlaceOrigin origin = PlaceOrigin::asked;

  /// Where the almanac looks from.
  almanac::Place observer() const { return {location.latitude, location.longitude, height}; }

  /// The lines above an answer for people: the name, if there is one, then coordinates, height above the
  /// horizon around, if there is one, and zone, then where the place comes from unless it was asked for.
  std::string heading() const;
};

/// The chosen city or coordinates, else the usual place; in the chosen zone or offset, else the city's, for
/// coordinates the process's. Throws BadInput where the choices do not go together or the city is unknown.
Place placeOf(const PlaceChoice& choice, const UsualPlace& usual);

}  // namespace velmora::app
