#pragma once

#include <optional>
#include <string>

#include <velmora/platform/time/Instant.h>

/// Phases and eclipses by the periodic terms of J. Meeus, Astronomical Algorithms, 2nd edition, chapters 49
/// and 54: an independent check of the shipped tables, which are made from a numerical ephemeris. Lunations
/// are counted by k from the new moon of 2000-01-06; k + 0.25, 0.5, 0.75 stand for first quarter, full moon
/// and last quarter. Instants are Julian dates in Terrestrial Time.
namespace velmora::meeus {

/// The instant of the phase.
double phaseInstant(double k);

struct Eclipse {
  std::string code;  ///< as in the catalogue: TLE, PLE, NLE, TSE, PSE, ASE, HSE
  double greatest;   ///< the instant of greatest eclipse
};

/// The solar eclipse at a new moon (k an integer) or the lunar one at a full moon (k an integer + 0.5), if
/// any.
std::optional<Eclipse> eclipse(double k);

/// The instant in UTC, with 32 leap seconds in 2000 and the 37 of 2017 held from then on.
Instant utcFromTT(double julianDate);

}  // namespace velmora::meeus
