#pragma once

#include <optional>
#include <vector>

#include <velmora/almanac/Place.h>
#include <velmora/ephemeris/Ephemeris.h>
#include <velmora/platform/time/Instant.h>

/// Eclipses of the Sun and the Moon, of the whole Earth and as they are from a place. Radii, shadow and
/// magnitudes are those of Espenak and Meeus, "Five Millennium Canon of Solar Eclipses" and "of Lunar
/// Eclipses": the Moon's radius 0.272508 of the Earth's for the outer and 0.272281 for the inner contacts of
/// a solar eclipse, the Sun's 959.63″ at an astronomical unit, the Earth's shadow by Danjon's rule, for which
/// the Moon's parallax is enlarged by 1.01. The limb is taken as smooth: the Moon's mountains shift a second
/// or third contact by seconds.
///
/// Instants are UTC, before 1972 UT1; after 2030 they suppose that the Earth keeps turning with UTC, no leap
/// second inserted. The greatest moments of 1900 to 2100 agree with the Swiss Ephemeris within 1 s (RMS 0.22
/// s of 913), contacts from a place within 3 s (RMS 0.3 s of 4032), but for grazes, magnitudes within 0.001.
namespace velmora::almanac {

using ephemeris::Body;

/// A hybrid one is total from some places and annular from others.
enum class EclipseKind { total, annular, hybrid, partial, penumbral };

/// An eclipse of the Sun or the Moon, of the whole Earth.
struct Eclipse {
  Body body = Body::sun;  ///< the eclipsed one
  EclipseKind kind = EclipseKind::partial;
  /// Solar: the axis of the Moon's shadow is nearest to the centre of the Earth. Lunar: the Moon's centre is
  /// nearest to the axis of the Earth's shadow.
  Instant maximum{};
  /// Solar: the ratio of the Moon's diameter to the Sun's if the axis meets the Earth, else the covered part
  /// of the Sun's diameter, at the place of the maximum. Lunar: the part of the Moon's diameter within the
  /// umbra, for a penumbral one within the penumbra; more than 1 where it lies deeper.
  double magnitude = 0.0;
  double gamma = 0.0;  ///< least distance of the axis, Earth's equatorial radii, north positive
  int saros = 0;       ///< number of its Saros series

  friend bool operator==(const Eclipse&, const Eclipse&) = default;
};

/// The eclipses whose maximum lies in [from, to), in time order; cut to the years covered, empty where one of
/// them is not finite. The Moon's pass through the penumbra alone counts, but not one beside it.
std::vector<Eclipse> eclipses(Instant from, Instant to);

/// Solar: C1 first and C4 last contact of the partial phase, C2 and C3 of the total or annular one. Lunar: P1
/// and P4 of the penumbral, U1 and U4 of the partial, U2 and U3 of the total phase.
enum class ContactName { C1, C2, C3, C4, P1, U1, U2, U3, U4, P4 };

/// A moment of an eclipse as seen from a place.
struct EclipseMoment {
  Instant at{};           ///< when
  double altitude = 0.0;  ///< apparent (refracted) altitude of the centre, degrees; as `Position`'s
  double azimuth = 0.0;   ///< degrees [0, 360), north is zero and east is +90°
  bool isUp = false;      ///< whether part of the eclipsed body is above the horizon
  friend bool operator==(const EclipseMoment&, const EclipseMoment&) = default;
};

/// A contact and when it is.
struct Contact {
  ContactName name = ContactName::C1;  ///< which one
  EclipseMoment moment;                ///< when it is, and where the eclipsed body stands
  friend bool operator==(const Contact&, const Contact&) = default;
};

/// An eclipse as it is from a place, whether above its horizon or below.
struct LocalEclipse {
  Body body = Body::sun;                    ///< the eclipsed one
  EclipseKind kind = EclipseKind::partial;  ///< there: solar total, annular or partial; never hybrid
  /// At the maximum there. Solar: the ratio of the diameters where it is total or annular, else the covered
  /// part of the Sun's diameter. Lunar: as `Eclipse` says.
  double magnitude = 0.0;
  double obscuration = 0.0;  ///< solar: covered part of the Sun's area at the maximum, 0..1; lunar 0
  /// The geometric one, also where the body is down. Solar: the centres nearest to each other; lunar: that of
  /// the whole Earth.
  EclipseMoment maximum;
  std::vector<Contact> contacts;  ///< in time order
  /// Whether part of the Sun is above the horizon while the Moon covers part of it; whether part of the Moon
  /// is at some time of the partial and total phase, of a penumbral eclipse at some time of its penumbral
  /// phase.
  bool isVisible = false;
  /// First instant at which something of it can be seen: a contact, unless the body rises or sets in between.
  /// Default where nothing is visible.
  Instant visibleFrom{};
  Instant visibleTo{};  ///< the last one, likewise
  /// The most that is seen: the maximum if the body is up then, else the moment of rising or setting. Default
  /// where nothing is visible.
  EclipseMoment best;
  double bestMagnitude = 0.0;  ///< at that moment

  friend bool operator==(const LocalEclipse&, const LocalEclipse&) = default;
};

/// The eclipse as it is from the place. Its maximum tells which one it is; the rest is worked out from there.
/// None where the Moon's penumbra never touches the place, also through the Earth (solar), for a place that
/// is not valid and for a maximum around which there is no eclipse.
std::optional<LocalEclipse> seenFrom(const Eclipse& eclipse, const Place& place);

/// The kind that is seen: partial where the total or annular phase lies wholly below the horizon.
EclipseKind seenKind(const LocalEclipse& eclipse);

/// Whether something of it is seen in [from, to).
bool isSeenWithin(const LocalEclipse& eclipse, Instant from, Instant to);

}  // namespace velmora::almanac
