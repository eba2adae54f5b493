#include <velmora/almanac/Observer.h>

#include <velmora/almanac/Trigonometry.h>

namespace [[gnu::visibility("hidden")]] velmora {
namespace almanac {
namespace {

// The ellipsoid of WGS84.
constexpr double equatorialRadius = 6378.137;  // km
constexpr double flattening = 1 / 298.257223563;
constexpr double squaredEccentricity = flattening * (2 - flattening);

}  // namespace

Observer::Observer(const Place& place) {
  const Complex<double> north = directionAt(place.latitude * degree),
                        east = directionAt(place.longitude * degree);
  cosLatitude = north.re;
  sinLatitude = north.im;
  cosLongitude = east.re;
  sinLongitude = east.im;
  const double normal = equatorialRadius / std::sqrt(1 - squaredEccentricity * sinLatitude * sinLatitude);
  equatorial = normal * cosLatitude;
  polar = normal * (1 - squaredEccentricity) * sinLatitude;
}

double azimuthOf(const Local& local) {
  const double azimuth = arctangent(local.east, local.north) / degree;
  const double positive = azimuth < 0 ? azimuth + 360 : azimuth;
  return positive < 360 ? positive : 0.0;  // a tiny negative angle rounds up to a whole turn
}

}  // namespace almanac
}  // namespace velmora
