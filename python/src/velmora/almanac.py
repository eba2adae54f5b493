"""What happens in the sky of a place, 1900 to 2100."""

from __future__ import annotations

import math
from datetime import date, datetime, timedelta, timezone, tzinfo
from typing import Any
from zoneinfo import ZoneInfo

from velmora._native import (
    OutOfYearsError,
    call,
    checked,
    date_of,
    ffi,
    given,
    instant_of,
    lib,
    listed,
    seconds_of,
    zone_of,
)
from velmora.records import (
    AllDay,
    Apsis,
    Body,
    CalendarDay,
    City,
    Contact,
    Crossing,
    Day,
    Eclipse,
    EclipseKind,
    EclipseMoment,
    Event,
    EventKind,
    Illumination,
    LocalEclipse,
    Phase,
    PhaseEvent,
    Place,
    Position,
    Season,
    SeasonEvent,
)

_WITH_TWILIGHT, _WITH_TRANSITS = 1, 2


def day(place: Place, on: date, *, twilight: bool = True, transits: bool = True) -> Day | None:
    """The civil day at the place; None for one that its clocks skipped whole."""
    found = days(place, on, on, twilight=twilight, transits=transits)
    return found[0] if found else None


def days(place: Place, first: date, last: date, *, twilight: bool = True, transits: bool = True) -> list[Day]:
    """The civil days from `first` to `last`, both included, without those that the clocks skipped."""
    count, events_count = ffi.new("size_t*"), ffi.new("size_t*")
    arguments = (_place(place), zone_of(place.zone), date_of(first), date_of(last),
                 _choice(twilight, transits), ffi.NULL)
    room = max((last - first).days + 1, 1)
    found = ffi.new("velmora_day[]", room)
    events_room = 20 * room
    while True:
        events = ffi.new("velmora_event[]", events_room)
        status = lib.velmora_days(*arguments, found, room, count, events, events_room, events_count)
        if events_count[0] <= events_room:
            checked(status)
            return [_day(found[i], events, place.zone) for i in range(count[0])]
        events_room = events_count[0]


def events(place: Place, start: datetime, end: datetime, *, twilight: bool = True, transits: bool = True) -> Day:
    """What happens from `start` on and before `end`."""
    found, count, room = ffi.new("velmora_day*"), ffi.new("size_t*"), 64
    while True:
        items = ffi.new("velmora_event[]", room)
        status = lib.velmora_events(_place(place), seconds_of(start), seconds_of(end),
                                    _choice(twilight, transits), ffi.NULL, found, items, room, count)
        if count[0] <= room:
            checked(status)
            return _day(found[0], items, place.zone)
        room = count[0]


def next_event(place: Place, body: Body, kind: EventKind, after: datetime) -> Event | None:
    """The first such event after the instant within a year; None if there is none."""
    event = ffi.new("velmora_event*")
    wanted = given(Body, body).value, given(EventKind, kind).value
    if not call(lib.velmora_next, _place(place), *wanted, seconds_of(after), ffi.NULL, event):
        return None
    return _event(event[0], place.zone)


def crossings(place: Place, body: Body, altitude: float, start: datetime, end: datetime) -> list[Crossing]:
    """Every passage of the apparent altitude (degrees) by the body's centre."""
    return listed(lambda c: Crossing(instant_of(c.at, place.zone), c.azimuth, bool(c.is_rising)),
                  lib.velmora_crossings, "velmora_crossing", _place(place), given(Body, body).value, altitude,
                  seconds_of(start), seconds_of(end))


def position(place: Place, body: Body, at: datetime) -> Position:
    """Where the body stands at the instant."""
    seconds, found = ffi.new("double*", seconds_of(at)), ffi.new("velmora_position*")
    call(lib.velmora_positions, _place(place), given(Body, body).value, seconds, 1, found)
    _answered(found.altitude, at)
    return Position(*(getattr(found, name) for name in Position.__dataclass_fields__))


def illumination(place: Place, at: datetime) -> Illumination:
    """How the Moon is lit at the instant as seen from the place."""
    seconds, found = ffi.new("double*", seconds_of(at)), ffi.new("velmora_illumination*")
    call(lib.velmora_illuminations, _place(place), seconds, 1, found)
    _answered(found.fraction, at)
    return Illumination(found.fraction, found.elongation, found.phase_angle, found.bright_limb_angle,
                        found.parallactic_angle, found.tilt, bool(found.is_waxing))


def phases(start: datetime, end: datetime) -> list[PhaseEvent]:
    """The principal phases of the interval, in the zone of `start`."""
    return listed(lambda m: PhaseEvent(_local(m.at, start), Phase(m.kind)),
                  lib.velmora_phases, "velmora_moment", seconds_of(start), seconds_of(end))


def seasons(start: datetime, end: datetime) -> list[SeasonEvent]:
    """The beginnings of seasons in the interval, in the zone of `start`."""
    return listed(lambda m: SeasonEvent(_local(m.at, start), Season(m.kind)),
                  lib.velmora_seasons, "velmora_moment", seconds_of(start), seconds_of(end))


def apsides(start: datetime, end: datetime) -> list[Apsis]:
    """The Moon's perigees and apogees in the interval, in the zone of `start`."""
    return listed(lambda a: Apsis(_local(a.at, start), a.distance, bool(a.is_perigee)),
                  lib.velmora_apsides, "velmora_apsis", seconds_of(start), seconds_of(end))


def eclipses(start: datetime, end: datetime) -> list[Eclipse]:
    """The eclipses whose maximum lies in the interval, in the zone of `start`."""
    return listed(lambda e: Eclipse(_local(e.maximum, start), Body(e.body), EclipseKind(e.kind), e.magnitude,
                                    e.gamma, e.saros),
                  lib.velmora_eclipses, "velmora_eclipse", seconds_of(start), seconds_of(end))


def seen_from(eclipse: Eclipse, place: Place) -> LocalEclipse | None:
    """The eclipse as it is from the place; None where the Moon's penumbra never touches it."""
    whole = ffi.new("velmora_eclipse*", {
        "maximum": seconds_of(given(Eclipse, eclipse).maximum), "magnitude": eclipse.magnitude, "gamma": eclipse.gamma,
        "body": eclipse.body.value, "kind": eclipse.kind.value, "saros": eclipse.saros})
    local = ffi.new("velmora_local_eclipse*")
    if not call(lib.velmora_seen_from, whole, _place(place), local):
        return None
    return _local_eclipse(local, place.zone)


def calendar_month(zone: tzinfo, year: int, month: int) -> list[CalendarDay]:
    """The days of the fixed phase calendar, 2000 to 2040."""
    return listed(lambda d: CalendarDay(date(year, month, d.day), d.phase, d.moon_age,
                                        d.image if d.image >= 0 else None, d.lit),
                  lib.velmora_calendar_month, "velmora_calendar_day", zone_of(zone), year, month)


def cities(name: str) -> list[City]:
    """The cities of that name, freely spelled, the most populous first: "Portland", "Portland, Maine", "Kiev"."""
    return listed(_city, lib.velmora_cities, "velmora_city", name.encode())


def _city(city: Any) -> City:
    name, region, country, zone = (ffi.string(text).decode() for text in
                                   (city.name, city.region, city.country, city.zone))
    return City(name, region, country, city.people, Place(city.latitude, city.longitude, ZoneInfo(zone)))


def _local(seconds: float, like: datetime) -> datetime:
    """The instant in the zone of `like`, which `seconds_of` has seen to have one."""
    return instant_of(seconds, like.tzinfo or timezone.utc)


def _place(place: Place) -> Any:
    return ffi.new("velmora_place*", (given(Place, place).latitude, place.longitude, place.height))


def _choice(twilight: bool, transits: bool) -> int:
    return _WITH_TWILIGHT * twilight + _WITH_TRANSITS * transits


def _answered(number: float, at: datetime) -> None:
    """Of one instant that is not answered an error is made, where an array holds NaN."""
    if math.isnan(number):
        raise OutOfYearsError(f"{at} lies outside the years 1900 to 2100")


def _event(event: Any, zone: tzinfo) -> Event:
    return Event(instant_of(event.at, zone), Body(event.body), EventKind(event.kind), event.azimuth, event.altitude)


def _day(found: Any, events: Any, zone: tzinfo) -> Day:
    last = found.first_event + found.event_count
    return Day(
        instant_of(found.start, zone),
        instant_of(found.end, zone),
        tuple(_event(events[i], zone) for i in range(found.first_event, last)),
        AllDay(found.sun),
        AllDay(found.moon),
        timedelta(seconds=found.daylight),
        timedelta(seconds=found.darkness),
    )


def _moment(moment: Any, zone: tzinfo) -> EclipseMoment:
    return EclipseMoment(instant_of(moment.at, zone), moment.altitude, moment.azimuth, bool(moment.is_up))


def _local_eclipse(local: Any, zone: tzinfo) -> LocalEclipse:
    body, visible = Body(local.body), bool(local.is_visible)
    contacts = [local.contacts[i] for i in range(local.contact_count)]
    return LocalEclipse(
        body,
        EclipseKind(local.kind),
        local.magnitude,
        local.obscuration if body is Body.SUN else None,
        _moment(local.maximum, zone),
        {Contact(c.contact): _moment(c, zone) for c in contacts},
        visible,
        instant_of(local.visible_from, zone) if visible else None,
        instant_of(local.visible_to, zone) if visible else None,
        _moment(local.best, zone) if visible else None,
        local.best_magnitude if visible else None,
    )
