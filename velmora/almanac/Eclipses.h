#pragma once

#include <optional>
#include <vector>

#include <velmora/almanac/Place.h>
#include <velmora/ephemeris/Ephemeris.h>
#include <velmora/platform/time/Instant.h>

namespace velmora::almanac {

using ephemeris::Body;

enum class EclipseKind { total, annular, hybrid, partial, penumbral };

/// An eclipse of the Sun or the Moon, of the whole Earth.
struct Eclipse {
  Body body = Body::sun;  ///< the eclipsed one
  EclipseKind kind = EclipseKind::partial;
  Instant maximum{};  ///< solar: the shadow's axis nearest to the centre of the Earth; lunar: the Moon to the shadow's
  /// Solar: the ratio of the diameters where it is central, else the covered part of the Sun's diameter, at
  /// the place of the maximum. Lunar: umbral, penumbral for a penumbral one.
  double magnitude = 0.0;
  double gamma = 0.0;  ///< least distance of the axis, Earth's equatorial radii, north positive
  int saros = 0;       ///< number of the series

  friend bool operator==(const Eclipse&, const Eclipse&) = default;
};

/// The eclipses whose maximum lies in [from, to), in time order; cut to the years covered.
std::vector<Eclipse> eclipses(Instant from, Instant to);

/// Solar: C1 first and C4 last contact of the partial phase, C2 and C3 of the total or annular one. Lunar: P1
/// and P4 of the penumbral, U1 and U4 of the partial, U2 and U3 of the total phase.
enum class ContactName { C1, C2, C3, C4, P1, U1, U2, U3, U4, P4 };

/// A moment of an eclipse as seen from a place.
struct EclipseMoment {
  Instant at{};
  double altitude = 0.0;  ///< apparent, of the centre of the eclipsed body, degrees; without refraction below −1°
  double azimuth = 0.0;   ///< degrees [0, 360)
  bool isUp = false;      ///< whether part of the eclipsed body is above the horizon
  friend bool operator==(const EclipseMoment&, const EclipseMoment&) = default;
};

struct Contact {
  ContactName name = ContactName::C1;
  EclipseMoment moment;
  friend bool operator==(const Contact&, const Contact&) = default;
};

/// An eclipse as it is from a place, whether above its horizon or below.
struct LocalEclipse {
  Body body = Body::sun;
  EclipseKind kind = EclipseKind::partial;  ///< there: solar total, annular or partial; never hybrid
  double magnitude = 0.0;    ///< at the maximum there, as `Eclipse` says
  double obscuration = 0.0;  ///< solar: covered part of the Sun's area at the maximum, 0..1; lunar 0
  EclipseMoment maximum;     ///< the geometric one, also where the body is down
  std::vector<Contact> contacts;  ///< in time order
  /// What of it is above the horizon: for a lunar eclipse of its partial and total phase, for a penumbral one
  /// of its penumbral phase.
  bool isVisible = false;
  /// First and last instant at which something of it can be seen; equal to the contacts unless the body rises
  /// or sets in between. Default where nothing is visible.
  Instant visibleFrom{}, visibleTo{};
  /// The most that is seen: the maximum if the body is up then, else the moment of rising or setting. Default
  /// where nothing is visible.
  EclipseMoment best;
  double bestMagnitude = 0.0;  ///< at that moment

  friend bool operator==(const LocalEclipse&, const LocalEclipse&) = default;
};

/// The eclipse as it is from the place; none where the Moon's penumbra never touches it (solar) and for a
/// place that is not valid.
std::optional<LocalEclipse> seenFrom(const Eclipse& eclipse, const Place& place);

}  // namespace velmora::almanac
