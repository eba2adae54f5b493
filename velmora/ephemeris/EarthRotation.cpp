#include <cmath>
#include <numbers>

#include <velmora/ephemeris/TimeScales.h>

namespace velmora::ephemeris {
namespace {

constexpr double turn = 2 * std::numbers::pi;
constexpr double arcsecond = turn / 1296000.0;

/// What sidereal time is ahead of the angle that the Earth has turned, radians: the precession of the equinox
/// along the equator. Capitaine, Wallace and Chapront, Astronomy and Astrophysics 412 (2003) 567; IERS
/// Conventions (2010), formula 5.32.
double accumulatedPrecession(double t) {
  return (0.014506 +
          (4612.156534 + (1.3915817 + (-0.00000044 + (-0.000029956 - 0.0000000368 * t) * t) * t) * t) * t) *
         arcsecond;
}

}  // namespace

double meanSiderealTime(Instant instant) {
  // The Earth's rotation angle: IERS Conventions (2010), formula 5.15, without the whole turns of the days.
  const double seconds = unixSeconds(instant) - secondsAtJ2000 + universalMinusCoordinated(instant);
  const double days = seconds / secondsPerDay;
  const double turns = 0.7790572732640 + 0.00273781191135448 * days + (days - std::floor(days));
  const double angle = turns * turn + accumulatedPrecession(terrestrialCenturies(instant));
  return angle - std::floor(angle / turn) * turn;
}

}  // namespace velmora::ephemeris
