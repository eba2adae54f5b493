#include <velmora/ephemeris/EarthRotation.h>

#include <cmath>

#include <velmora/ephemeris/Sines.h>
#include <velmora/ephemeris/TimeScales.h>

namespace velmora::ephemeris {
namespace {

/// What sidereal time is ahead of the angle that the Earth has turned, turns: the precession of the equinox
/// along the equator. Capitaine, Wallace and Chapront, Astronomy and Astrophysics 412 (2003) 567; IERS
/// Conventions (2010), formula 5.32.
double accumulatedPrecession(double centuries) {
  static constexpr std::array<double, 6> arcseconds = {0.014506,    4612.156534,  1.3915817,
                                                       -0.00000044, -0.000029956, -0.0000000368};
  return polynomial(arcseconds, centuries) / arcsecondsOfTurn;
}

}  // namespace

double siderealTurns(Instant instant) {
  // The Earth's rotation angle: IERS Conventions (2010), formula 5.15.
  const double seconds = unixSeconds(instant) - secondsAtJ2000 + universalMinusCoordinated(instant);
  const double days = seconds / secondsPerDay;
  return 0.7790572732640 + 0.00273781191135448 * days + days +
         accumulatedPrecession(terrestrialCenturies(instant));
}

double meanSiderealTime(Instant instant) {
  const double turns = siderealTurns(instant);
  return (turns - std::floor(turns)) * radiansOfTurn;
}

}  // namespace velmora::ephemeris
