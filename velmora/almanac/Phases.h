#pragma once

#include <vector>

#include <velmora/platform/time/Instant.h>

/// Phases and apsides of the Moon, and seasons. Instants are UTC, before 1972 UT1; after 2030 they suppose
/// that no leap second is inserted. Of 1900 to 2100 phases agree with the Swiss Ephemeris within 1 s (RMS
/// 0.21 s of 9945), seasons within 4 s (1.1 s of 804), apsides within 2 minutes and 2 km (18 s and 0.5 km of
/// 5329).
namespace velmora::almanac {

/// The four that calendars name.
enum class PrincipalPhase { newMoon, firstQuarter, fullMoon, lastQuarter };

/// The instant at which the apparent longitudes of Moon and Sun differ by a whole number of quarters.
struct PhaseEvent {
  Instant at{};  ///< when
  PrincipalPhase phase = PrincipalPhase::newMoon;
  friend bool operator==(const PhaseEvent&, const PhaseEvent&) = default;
};

/// The principal phases in [from, to), in time order; the interval is cut to the years covered.
std::vector<PhaseEvent> phases(Instant from, Instant to);

/// The Moon nearest to or farthest from the centre of the Earth.
struct Apsis {
  Instant at{};  ///< when
  bool isPerigee = false;
  double distance = 0.0;  ///< km
  friend bool operator==(const Apsis&, const Apsis&) = default;
};

/// The apsides of the Moon in [from, to), in time order; cut as above.
std::vector<Apsis> apsides(Instant from, Instant to);

/// The beginnings of the seasons, named by their months since they differ by hemisphere.
enum class Season { marchEquinox, juneSolstice, septemberEquinox, decemberSolstice };

/// The instant at which the Sun's apparent longitude is a whole number of quarters.
struct SeasonEvent {
  Instant at{};  ///< when
  Season season = Season::marchEquinox;
  friend bool operator==(const SeasonEvent&, const SeasonEvent&) = default;
};

/// The beginnings of the seasons in [from, to), in time order; cut as above.
std::vector<SeasonEvent> seasons(Instant from, Instant to);

}  // namespace velmora::almanac
