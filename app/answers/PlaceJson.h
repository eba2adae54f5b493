#pragma once

#include <app/place/Place.h>
#include <app/text/Json.h>

namespace velmora::app {

/// Name, coordinates, zone and height.
Json placeJson(const Place& place);

}  // namespace velmora::app
