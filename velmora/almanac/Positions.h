#pragma once

#include <optional>
#include <span>

#include <velmora/almanac/Place.h>
#include <velmora/ephemeris/Ephemeris.h>
#include <velmora/platform/time/Instant.h>

namespace velmora::almanac {

using ephemeris::Body;

/// Where a body stands: from a place the Sun within 0.0002°, the Moon within 0.0004° of the Swiss Ephemeris
/// (RMS 0.00006° and 0.0001° of 1500 each). Degrees, unless a field says otherwise; azimuth: north is zero
/// and east is +90°.
struct Position {
  double rightAscension = 0.0;  ///< hours [0, 24), geocentric apparent, true equator and equinox of date
  double declination = 0.0;     ///< geocentric apparent
  double distance = 0.0;        ///< from the centre of the Earth, km
  double topocentricRightAscension = 0.0;  ///< hours [0, 24), as seen from the place
  double topocentricDeclination = 0.0;
  double topocentricDistance = 0.0;  ///< from the place, km
  double azimuth = 0.0;              ///< topocentric, [0, 360)
  double altitude = 0.0;             ///< topocentric, without refraction
  double apparentAltitude = 0.0;     ///< refracted; below −1° as without
  double semidiameter = 0.0;         ///< of the disc as seen from the place

  friend bool operator==(const Position&, const Position&) = default;
};

/// Where the body stands at the instant, seen from the place; none for what is not valid or not covered.
std::optional<Position> position(const Place& place, Body body, Instant at);
/// The same of many instants, quicker for each; NaN in every field where there is none. `out` has the size of
/// `instants`.
void positions(const Place& place, Body body, std::span<const Instant> instants, std::span<Position> out);

/// Refraction in degrees of a true altitude (degrees) at 1010 hPa and 10 °C; 0 at −1° and below. Sæmundsson,
/// Sky and Telescope 72 (1986), as in Meeus, "Astronomical Algorithms", formula 16.4.
double refraction(double trueAltitude);

/// How the Moon is lit: the lit part within 0.000003 of the Swiss Ephemeris' (1500 compared). Angles in
/// degrees.
struct Illumination {
  double fraction = 0.0;    ///< lit part of the disc, 0..1
  bool isWaxing = false;    ///< the Moon's longitude is less than 180° ahead of the Sun's
  double elongation = 0.0;  ///< of the Moon's longitude from the Sun's, [0, 360): 0 new, 90 first quarter
  double phaseAngle = 0.0;  ///< Sun - Moon - observer, 0..180
  double brightLimbAngle = 0.0;   ///< of the lit limb's middle, from the sky's north by its east, [0, 360)
  double parallacticAngle = 0.0;  ///< from the north of the sky to the zenith at the Moon, (−180, 180]
  double tilt = 0.0;  ///< of the lit limb from straight up as seen from the place, counterclockwise [0, 360)

  friend bool operator==(const Illumination&, const Illumination&) = default;
};

/// How the Moon is lit at the instant as seen from the place; none for what is not valid or not covered.
std::optional<Illumination> illumination(const Place& place, Instant at);

}  // namespace velmora::almanac
