#pragma once

#include <array>
#include <optional>

#include <velmora/almanac/Vectors.h>

namespace [[gnu::visibility("hidden")]] velmora {
namespace almanac {

/// The Sun and the Moon as seen from the centre of the Earth in the hours around an eclipse: vectors of the
/// true equator and equinox, kilometres, as polynomials of the seconds after a middle. Cubics through four
/// places from 3⅓ hours before to 3⅓ hours after it miss the Moon by less than 0.004″ between them.
class EclipseSky {
 public:
  /// None where the hours are not covered.
  static std::optional<EclipseSky> around(Instant middle);

  Instant instant(double seconds) const { return _middle + Seconds(seconds); }
  Motion sun(double seconds) const { return _sun.at(seconds); }
  Motion moon(double seconds) const { return _moon.at(seconds); }
  /// The angle of the true equinox from the meridian of Greenwich, radians.
  double siderealTime(double seconds) const;

  /// From the centre of the Earth across to the axis of the Moon's shadow, or, where the Moon is eclipsed,
  /// from the axis of the Earth's shadow across to the Moon.
  Motion offset(ephemeris::Body eclipsed, double seconds) const;
  /// When the offset is shortest.
  double greatest(ephemeris::Body eclipsed) const;

 private:
  struct Cubic {
    std::array<Vector, 4> coefficients;
    Motion at(double seconds) const;
  };
  static std::optional<Cubic> path(ephemeris::Body body, Instant middle);

  Instant _middle{};
  Cubic _sun, _moon;
  double _siderealTime = 0;  // of the middle
};

}  // namespace almanac
}  // namespace velmora
