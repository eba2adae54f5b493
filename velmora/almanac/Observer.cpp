#include <velmora/almanac/Observer.h>

namespace [[gnu::visibility("hidden")]] velmora {
namespace almanac {
namespace {

// The ellipsoid of WGS84.
constexpr double equatorialRadius = 6378.137;  // km
constexpr double flattening = 1 / 298.257223563;
constexpr double squaredEccentricity = flattening * (2 - flattening);

}  // namespace

Observer::Observer(const Place& place)
    : cosLatitude(std::cos(place.latitude * degree)),
      sinLatitude(std::sin(place.latitude * degree)),
      cosLongitude(std::cos(place.longitude * degree)),
      sinLongitude(std::sin(place.longitude * degree)) {
  const double normal = equatorialRadius / std::sqrt(1 - squaredEccentricity * sinLatitude * sinLatitude);
  equatorial = normal * cosLatitude;
  polar = normal * (1 - squaredEccentricity) * sinLatitude;
}

double azimuthOf(const Local& local) {
  const double azimuth = std::atan2(local.east, local.north) / degree;
  const double positive = azimuth < 0 ? azimuth + 360 : azimuth;
  return positive < 360 ? positive : 0.0;  // a tiny negative angle rounds up to a whole turn
}

}  // namespace almanac
}  // namespace velmora
