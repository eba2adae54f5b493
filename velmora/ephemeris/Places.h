#pragma once

#include <velmora/ephemeris/Ephemeris.h>

namespace [[gnu::visibility("hidden")]] velmora {
namespace ephemeris {

/// Apparent, of the mean ecliptic and equinox of date: radians and kilometres.
struct MeanPlace {
  double longitude, latitude, distance;
};

MeanPlace meanPlace(Body body, double terrestrialCenturies);

}  // namespace ephemeris
}  // namespace velmora
