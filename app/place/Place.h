#pragma once

#include <string>

#include <app/request/Request.h>
#include <velmora/foundation/GeoLocationData.h>

namespace velmora::app {

/// The place that a request asks about.
struct Place {
  GeoLocationData location;
  TimeZone zone;  ///< the location's

  /// The lines above an answer for people: the name, if there is one, then coordinates and zone.
  std::string heading() const;
};

/// The request's city or coordinates, else the default place; in the request's zone or offset, else the
/// city's, for coordinates the process's. Throws BadInput where the options do not go together or the city is
/// unknown.
Place placeOf(const Request& request);

}  // namespace velmora::app
