#pragma once

#include <array>

#include "TimeScales.h"

namespace almanac {

/// How far the Moon stands east of the Sun, in apparent geocentric ecliptic longitude.
struct Elongation {
  double degrees;        ///< 0 up to 360
  double degreesPerDay;  ///< its rate
};

/// Geocentric, on the equator and equinox of the date, in astronomical units.
using Vector = std::array<double, 3>;

/// The lunar kinds come first.
enum class EclipseKind {
  totalLunar,
  partialLunar,
  penumbralLunar,
  totalSolar,
  partialSolar,
  annularSolar,
  hybridSolar,  ///< annular in some places, total in others
};

/// An eclipse anywhere on Earth.
struct Eclipse {
  EclipseKind kind;
  JulianDateTT greatest;  ///< as the ephemeris's own search finds it, up to ten seconds off
};

/// Sun, Moon and their eclipses by the Swiss Ephemeris. Every operation throws std::runtime_error where the
/// ephemeris files are missing or do not reach.
class Ephemeris {
 public:
  Ephemeris();
  ~Ephemeris();
  Ephemeris(const Ephemeris&) = delete;
  Ephemeris& operator=(const Ephemeris&) = delete;

  Elongation elongation(JulianDateTT date) const;

  /// Apparent positions.
  Vector sun(JulianDateTT date) const;
  Vector moon(JulianDateTT date) const;

  /// The first lunar eclipse that is greatest after the date.
  Eclipse nextLunarEclipse(JulianDateTT date) const;
  /// The first solar eclipse that is greatest after the date.
  Eclipse nextSolarEclipse(JulianDateTT date) const;
};

}  // namespace almanac
