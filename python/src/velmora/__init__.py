"""Velmora: Moon and Sun over any place on Earth, 1900 to 2100.

>>> from datetime import date
>>> from zoneinfo import ZoneInfo
>>> import velmora
>>> helsinki = velmora.Place(60.17, 24.94, ZoneInfo("Europe/Helsinki"))
>>> day = velmora.day(helsinki, date(2024, 6, 21))
>>> f"{day.sunrise:%H:%M} {day.sunset:%H:%M}"
'03:54 22:50'
"""

from velmora import _native
from velmora._native import OutOfYearsError
from velmora.almanac import (
    apsides,
    calendar_month,
    cities,
    crossings,
    day,
    days,
    eclipses,
    events,
    illumination,
    next_event,
    phases,
    position,
    seasons,
    seen_from,
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

__version__: str = _native.ffi.string(_native.lib.velmora_version()).decode()

__all__ = [
    "AllDay",
    "Apsis",
    "Body",
    "CalendarDay",
    "City",
    "Contact",
    "Crossing",
    "Day",
    "Eclipse",
    "EclipseKind",
    "EclipseMoment",
    "Event",
    "EventKind",
    "Illumination",
    "LocalEclipse",
    "OutOfYearsError",
    "Phase",
    "PhaseEvent",
    "Place",
    "Position",
    "Season",
    "SeasonEvent",
    "apsides",
    "calendar_month",
    "cities",
    "crossings",
    "day",
    "days",
    "eclipses",
    "events",
    "illumination",
    "next_event",
    "phases",
    "position",
    "seasons",
    "seen_from",
]

_native.use_shipped_resources()
