#include <velmora/almanac/Place.h>

#include <cmath>

namespace velmora::almanac {

bool isValid(const Place& place) {
  constexpr double highest = 100'000;  // metres: a horizon nine degrees down
  return std::abs(place.latitude) <= 90 && std::abs(place.longitude) <= 180 && place.height >= 0 &&
         place.height <= highest;
}

}  // namespace velmora::almanac
