#pragma once

#include <cmath>

#include <velmora/almanac/Place.h>
#include <velmora/ephemeris/Ephemeris.h>

namespace [[gnu::visibility("hidden")]] velmora {
namespace almanac {

inline constexpr double degree = 0.017453292519943295;  ///< in radians

/// A direction and distance in the sky of a place, kilometres.
struct Local {
  double east = 0.0, north = 0.0, up = 0.0;

  double distance() const { return std::sqrt(east * east + north * north + up * up); }
};

/// A place on the ellipsoid of WGS84, in the frame that turns with the Earth: x in the equator to the
/// meridian of Greenwich, z to the north pole. Its height does not move it: that is one above the horizon
/// around.
struct Observer {
  explicit Observer(const Place& place);

  double cosLatitude, sinLatitude, cosLongitude, sinLongitude;  ///< geodetic
  double equatorial, polar;  ///< kilometres from the Earth's axis and from its equator

  /// What lies at a point of that frame, kilometres, as seen from the place.
  Local seen(const ephemeris::Vector& point) const {
    return alongAxes(cosLongitude * point.x + sinLongitude * point.y - equatorial,
                     cosLongitude * point.y - sinLongitude * point.x, point.z - polar);
  }
  /// A vector of that frame by the directions of the place.
  Local along(const ephemeris::Vector& vector) const {
    return alongAxes(cosLongitude * vector.x + sinLongitude * vector.y,
                     cosLongitude * vector.y - sinLongitude * vector.x, vector.z);
  }
  /// The part of a vector of the place that points away from the Earth's axis.
  double outward(const Local& local) const { return cosLatitude * local.up - sinLatitude * local.north; }

 private:
  Local alongAxes(double outward, double east, double northward) const {
    return {east, cosLatitude * northward - sinLatitude * outward,
            cosLatitude * outward + sinLatitude * northward};
  }
};

/// Degrees [0, 360) from the north by the east.
double azimuthOf(const Local& local);

/// The vector in the frame that has turned by the angle of that cosine and sine from x to y.
inline ephemeris::Vector turned(const ephemeris::Vector& v, double cosine, double sine) {
  return {cosine * v.x + sine * v.y, cosine * v.y - sine * v.x, v.z};
}

}  // namespace almanac
}  // namespace velmora
