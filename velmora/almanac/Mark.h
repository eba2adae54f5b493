#pragma once

#include <cmath>

#include <velmora/almanac/Observer.h>
#include <velmora/almanac/Place.h>
#include <velmora/ephemeris/Ephemeris.h>

namespace [[gnu::visibility("hidden")]] velmora {
namespace almanac {

/// The altitude at which the centre of a body counts: where a point of its disc, that many kilometres above
/// the centre, lies that far below the horizon.
class Mark {
 public:
  /// Degrees below the horizon, and the kilometres.
  explicit Mark(double depression, double radius = 0.0)
      : _depression(depression),
        _sine(std::sin(depression * degree)),
        _cosine(std::cos(depression * degree)),
        _radius(radius) {}

  /// The sine of the altitude of the centre at a distance, which is given by its inverse.
  double sineOfAltitude(double inverseDistance) const {
    const double s = _radius * inverseDistance;  // less than 0.005
    return -(_sine * (1 - 0.5 * s * s) + _cosine * s);
  }
  /// Degrees.
  double altitude(double distance) const { return -_depression - std::asin(_radius / distance) / degree; }

 private:
  double _depression, _sine, _cosine, _radius;
};

/// The one at which the body rises and sets.
Mark horizonMark(ephemeris::Body body, const Place& place, const Convention& convention = {});

}  // namespace almanac
}  // namespace velmora
