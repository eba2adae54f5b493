#include <app/answers/PlaceJson.h>

namespace velmora::app {

Json placeJson(const Place& place) {
  const GeoLocationData& location = place.location;
  return {{"name", location.name ? Json(*location.name) : Json(nullptr)},
          {"latitude", location.latitude},
          {"longitude", location.longitude},
          {"timezone", place.zone.name()},
          {"height", place.height}};
}

}  // namespace velmora::app
