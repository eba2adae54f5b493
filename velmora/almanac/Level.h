#pragma once

#include <velmora/almanac/Observer.h>
#include <velmora/almanac/Place.h>
#include <velmora/ephemeris/Ephemeris.h>

namespace [[gnu::visibility("hidden")]] velmora {
namespace almanac {

/// A direction in the sky of a place, or how fast it changes a second.
struct Direction {
  double up, east;  ///< components of the unit vector
  double inverse;   ///< of the distance, km
};

/// What a body passes: an altitude, or the meridian.
class Level {
 public:
  /// Where a point of the disc, that many kilometres above the centre, lies that many degrees below the
  /// horizon.
  explicit Level(double depression, double radius = 0.0);
  /// Passed upwards where the body passes the meridian towards the west.
  static Level meridian();

  bool isMeridian() const { return _up == 0; }

  /// What counts of two components.
  double mixed(double up, double east) const { return _up * up + _east * east; }
  /// How far above it a direction is: the difference of the sines of altitude, or the distance west.
  double heightOf(const Direction& d) const {
    const double s =
        _radius * d.inverse;  // sine of the semidiameter: less than 0.005, so that its cosine is this
    return mixed(d.up, d.east) + _sine * (1 - 0.5 * s * s) + _cosine * s;
  }
  double heightOf(const Local& local) const {
    const double inverse = 1 / local.distance();
    return heightOf(Direction{local.up * inverse, local.east * inverse, inverse});
  }
  double slopeOf(const Direction& d, const Direction& rate) const {
    return mixed(rate.up, rate.east) + _radius * (_cosine - _sine * _radius * d.inverse) * rate.inverse;
  }
  /// The apparent altitude of the centre of a body that passes it, degrees.
  double apparentAltitudeOf(const Local& local) const;

 private:
  Level() = default;

  double _up = 0, _east = 0;      ///< what counts of the direction
  double _sine = 0, _cosine = 0;  ///< of the depression
  double _radius = 0;
  double _depression = 0, _apparentAltitude = 0;
};

/// Where the body rises and sets.
Level horizonOf(ephemeris::Body body, const Place& place, const Convention& convention = {});

}  // namespace almanac
}  // namespace velmora
