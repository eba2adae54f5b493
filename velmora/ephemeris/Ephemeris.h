#pragma once

#include <memory>
#include <optional>
#include <span>
#include <utility>

#include <velmora/platform/time/Instant.h>

/// Where the Sun and the Moon stand as seen from the centre of the Earth, 1900 to 2100.
namespace velmora::ephemeris {

/// The bodies that the ephemeris knows.
enum class Body { sun, moon };

/// A vector of the true equator of date.
struct Vector {
  double x = 0.0;  ///< km, to the equinox
  double y = 0.0;  ///< km, to right ascension 6 h
  double z = 0.0;  ///< km, to the celestial north pole
  friend bool operator==(const Vector&, const Vector&) = default;
};

/// A geocentric apparent place: light time, aberration and nutation are in it. True equator and equinox of
/// date, radians. Measured against the Swiss Ephemeris on DE431 at 20,000 instants: the Moon 0.13″ RMS and
/// 0.8″ at most, the Sun 0.05″ and 0.24″.
struct Apparent {
  double rightAscension = 0.0;  ///< [0, 2π)
  double declination = 0.0;     ///< −π/2..π/2, north positive
  double longitude = 0.0;       ///< on the ecliptic, [0, 2π)
  double latitude = 0.0;        ///< from the ecliptic, north positive
  double distance = 0.0;  ///< from the centre of the Earth at the instant itself, km; Moon ±3, Sun ±500
  friend bool operator==(const Apparent&, const Apparent&) = default;
};

/// Kilometres of an astronomical unit (IAU 2012).
constexpr double kilometresPerAstronomicalUnit = 149597870.7;

/// The first instant that is covered, 1900-01-01T00:00Z, and the end, 2101-01-01T00:00Z, which is not.
Instant firstInstant();
Instant endInstant();
/// Whether the instant lies in the years that are covered; NaN and infinities do not.
bool covers(Instant instant);

/// Where the body stands at the instant; none outside 1900 to 2100, never an extrapolation.
std::optional<Apparent> apparent(Body body, Instant instant);
/// The same of many instants, quicker for each; NaN in every field where one is not covered. `out` has the
/// size of `instants`.
void apparent(Body body, std::span<const Instant> instants, std::span<Apparent> out);

struct PathData;

/// The paths of the Sun and the Moon over an interval, prepared once for many questions and places. The
/// segments lie on a grid that is fixed in time, so that a result never depends on earlier calls. An
/// immutable value, usable from any thread.
class Paths {
 public:
  /// Of every instant from `from` to `to`, both included, and of the half-days of UTC that they lie in; none
  /// where one of them is not covered, but that `to` may be `endInstant()`, or `to` lies before `from`.
  static std::optional<Paths> over(Instant from, Instant to);

  /// The geocentric apparent place of the body as a vector of the true equator, its x axis turned back along
  /// the equator by the equation of the equinoxes: an hour angle is mean sidereal time less its right
  /// ascension. The instant must lie in the interval.
  Vector vector(Body body, Instant instant) const;

  Instant from() const;  ///< the first instant of the interval
  Instant to() const;    ///< the last one

  /// For the almanac, which reads the paths' pieces as they are.
  const PathData& data() const { return *_data; }

 private:
  explicit Paths(std::shared_ptr<const PathData> data) : _data(std::move(data)) {}

  std::shared_ptr<const PathData> _data;
};

/// Greenwich mean sidereal time in radians, [0, 2π), by the Earth's rotation of the instant (IAU 2006).
double meanSiderealTime(Instant instant);

/// Nutation in longitude and obliquity, and the true obliquity of the ecliptic, radians.
struct Nutation {
  double longitude = 0.0;      ///< nutation in longitude
  double obliquity = 0.0;      ///< nutation in obliquity
  double trueObliquity = 0.0;  ///< mean obliquity of date and its nutation
};
Nutation nutation(Instant instant);

/// TT − UTC in seconds at the instant; before 1972, where an Instant is UT1, TT − UT1. From the last known
/// leap second on UTC stays 37 leap seconds behind TAI, and the Earth is taken to turn with it.
double terrestrialMinusUniversal(Instant instant);
/// UT1 − UTC in seconds, 0 before 1972 and after the table ends.
double universalMinusCoordinated(Instant instant);

}  // namespace velmora::ephemeris
