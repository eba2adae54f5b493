#include <velmora/almanac/Place.h>

#include <cmath>

namespace velmora::almanac {

bool isValid(const Place& place) {
  return std::abs(place.latitude) <= 90 && std::abs(place.longitude) <= 180 && place.height >= 0 &&
         std::isfinite(place.height);
}

}  // namespace velmora::almanac
