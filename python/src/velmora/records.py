"""What the answers are made of. Angles are degrees, azimuths from north to east, distances kilometres."""

from __future__ import annotations

from dataclasses import dataclass
from datetime import date, datetime, timedelta, timezone, tzinfo
from enum import Enum


@dataclass(frozen=True, slots=True)
class Place:
    """A point of the Earth to look from.

    latitude: degrees -90..90, north positive
    longitude: degrees -180..180, east positive
    zone: of the days asked for and of the instants in the answers (zoneinfo.ZoneInfo or a fixed offset)
    height: metres above the horizon around, 0 or more; lowers the horizon by the dip
    """

    latitude: float
    longitude: float
    zone: tzinfo = timezone.utc
    height: float = 0.0


@dataclass(frozen=True, slots=True)
class City:
    """A city of the shipped table (GeoNames); `region` in English, `country` as two letters."""

    name: str
    region: str
    country: str
    people: int
    place: Place

    def __str__(self) -> str:
        return ", ".join(part for part in (self.name, self.region, self.country) if part)


class Body(Enum):
    SUN = 0
    MOON = 1


class EventKind(Enum):
    RISE = 0
    SET = 1
    TRANSIT = 2
    CIVIL_DAWN = 3
    CIVIL_DUSK = 4
    NAUTICAL_DAWN = 5
    NAUTICAL_DUSK = 6
    ASTRONOMICAL_DAWN = 7
    ASTRONOMICAL_DUSK = 8


class AllDay(Enum):
    """Whether a body stays on one side of the horizon for all of a day."""

    NO = 0
    UP = 1
    DOWN = 2


class Phase(Enum):
    NEW_MOON = 0
    FIRST_QUARTER = 1
    FULL_MOON = 2
    LAST_QUARTER = 3


class Season(Enum):
    MARCH_EQUINOX = 0
    JUNE_SOLSTICE = 1
    SEPTEMBER_EQUINOX = 2
    DECEMBER_SOLSTICE = 3


class EclipseKind(Enum):
    TOTAL = 0
    ANNULAR = 1
    HYBRID = 2
    PARTIAL = 3
    PENUMBRAL = 4


class Contact(Enum):
    """Solar: C1 to C4. Lunar: P1, U1, U2, U3, U4, P4."""

    C1 = 0
    C2 = 1
    C3 = 2
    C4 = 3
    P1 = 4
    U1 = 5
    U2 = 6
    U3 = 7
    U4 = 8
    P4 = 9


@dataclass(frozen=True, slots=True)
class Event:
    """Something that a body does; `altitude` is the apparent (refracted) one of its centre."""

    at: datetime
    body: Body
    kind: EventKind
    azimuth: float
    altitude: float


@dataclass(frozen=True, slots=True)
class Day:
    """What happens from `start` to `end`.

    daylight: for which the Sun is up
    darkness: for which the Sun is more than 18 degrees below the horizon
    """

    start: datetime
    end: datetime
    events: tuple[Event, ...]
    sun: AllDay
    moon: AllDay
    daylight: timedelta
    darkness: timedelta

    def first(self, body: Body, kind: EventKind) -> Event | None:
        """The first such event of the day; None if there is none."""
        return next((e for e in self.events if e.body is body and e.kind is kind), None)

    @property
    def sunrise(self) -> datetime | None:
        return _at(self.first(Body.SUN, EventKind.RISE))

    @property
    def sunset(self) -> datetime | None:
        return _at(self.first(Body.SUN, EventKind.SET))

    @property
    def moonrise(self) -> datetime | None:
        return _at(self.first(Body.MOON, EventKind.RISE))

    @property
    def moonset(self) -> datetime | None:
        return _at(self.first(Body.MOON, EventKind.SET))


def _at(event: Event | None) -> datetime | None:
    return event.at if event else None


@dataclass(frozen=True, slots=True)
class Crossing:
    """When the centre of a body passes an altitude."""

    at: datetime
    azimuth: float
    is_rising: bool


@dataclass(frozen=True, slots=True)
class Position:
    """Where a body stands. Right ascensions are hours; true equator and equinox of date.

    altitude: without refraction; apparent_altitude: with it
    semidiameter: of the disc, degrees
    """

    right_ascension: float
    declination: float
    distance: float
    topocentric_right_ascension: float
    topocentric_declination: float
    topocentric_distance: float
    azimuth: float
    altitude: float
    apparent_altitude: float
    semidiameter: float


@dataclass(frozen=True, slots=True)
class Illumination:
    """How the Moon is lit.

    fraction: lit part of the disc, 0..1
    elongation: of the Moon's longitude from the Sun's, 0..360: 0 new, 90 first quarter
    bright_limb_angle: position angle of the lit limb's middle, from north to east
    tilt: of the lit limb from straight up as seen from the place, counterclockwise
    """

    fraction: float
    elongation: float
    phase_angle: float
    bright_limb_angle: float
    parallactic_angle: float
    tilt: float
    is_waxing: bool


@dataclass(frozen=True, slots=True)
class PhaseEvent:
    at: datetime
    phase: Phase


@dataclass(frozen=True, slots=True)
class SeasonEvent:
    at: datetime
    season: Season


@dataclass(frozen=True, slots=True)
class Apsis:
    """The Moon nearest to the centre of the Earth (perigee) or farthest from it."""

    at: datetime
    distance: float
    is_perigee: bool


@dataclass(frozen=True, slots=True)
class Eclipse:
    """An eclipse of the whole Earth; `gamma` in equatorial radii, magnitude as published catalogues have it."""

    maximum: datetime
    body: Body
    kind: EclipseKind
    magnitude: float
    gamma: float
    saros: int


@dataclass(frozen=True, slots=True)
class EclipseMoment:
    """A moment of an eclipse at a place; `is_up`: part of the body is above the horizon."""

    at: datetime
    altitude: float
    azimuth: float
    is_up: bool


@dataclass(frozen=True, slots=True)
class LocalEclipse:
    """An eclipse as it is from a place, above its horizon or below.

    obscuration: covered part of the Sun's area, 0..1; None of a lunar eclipse
    visible_from, visible_to, best, best_magnitude: of what can be seen; None where nothing can
    """

    body: Body
    kind: EclipseKind
    magnitude: float
    obscuration: float | None
    maximum: EclipseMoment
    contacts: dict[Contact, EclipseMoment]
    is_visible: bool
    visible_from: datetime | None
    visible_to: datetime | None
    best: EclipseMoment | None
    best_magnitude: float | None


@dataclass(frozen=True, slots=True)
class CalendarDay:
    """A day of the fixed phase calendar of 2000 to 2040, made for a calendar's pictures.

    phase: 0 full, 1 first quarter, 2 last quarter, 3 new; 4 to 7 between them
    lit: linear between principal phases by design; `illumination` has the true one
    """

    date: date
    phase: int
    moon_age: int
    image: int | None
    lit: float
