#pragma once

#include <velmora/ephemeris/Ephemeris.h>

namespace [[gnu::visibility("hidden")]] velmora {
namespace almanac {

inline constexpr double sunRadius = 695989;   ///< km; 959.63″ at an astronomical unit (Auwers)
inline constexpr double moonRadius = 1737.5;  ///< km

inline constexpr double radiusOf(ephemeris::Body body) {
  return body == ephemeris::Body::sun ? sunRadius : moonRadius;
}

}  // namespace almanac
}  // namespace velmora
