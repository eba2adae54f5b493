"""Ranges as NumPy arrays: one call of the library for a year of events or a million positions.

Times are numpy.datetime64 (UTC) or seconds since 1970; in the answers they are seconds in the field `at`, which
`times` turns into datetime64.
"""

from __future__ import annotations

from datetime import date, datetime
from typing import Any

import numpy as np
from numpy.typing import ArrayLike, NDArray

from velmora._native import call, checked, date_of, dtype_of, ffi, given, lib, pointer_to, seconds_of, zone_of
from velmora.almanac import _choice, _place
from velmora.records import Body, Place

_MOST_EVENTS_OF_A_DAY = 20


def times(seconds: ArrayLike) -> NDArray[np.datetime64]:
    """Seconds since 1970 as datetime64 to the microsecond; NaN becomes NaT."""
    return _as_datetime64(np.asarray(seconds, dtype=np.float64))


def positions(place: Place, body: Body, at: ArrayLike) -> NDArray[Any]:
    """Where the body stands at each instant: a structured array of the shape of `at`.

    Its fields are those of `records.Position`; NaN where an instant is not answered.
    """
    return _of_instants(lib.velmora_positions, "velmora_position", at, _place(place), given(Body, body).value)


def illuminations(place: Place, at: ArrayLike) -> NDArray[Any]:
    """How the Moon is lit at each instant, as above; the fields are those of `records.Illumination`."""
    return _of_instants(lib.velmora_illuminations, "velmora_illumination", at, _place(place))


def days(place: Place, first: date, last: date, *, twilight: bool = True,
         transits: bool = True) -> tuple[NDArray[Any], NDArray[Any]]:
    """The civil days from `first` to `last` and all their events, as two structured arrays.

    Events of day i: ``events[days[i]["first_event"]:][:days[i]["event_count"]]``. Body, kind and all-day are the
    numbers of the enumerations of `records`.
    """
    room = max((last - first).days + 1, 1)
    found = np.zeros(room, dtype_of("velmora_day"))
    events = np.zeros(_MOST_EVENTS_OF_A_DAY * room, dtype_of("velmora_event"))
    day_count, event_count = ffi.new("size_t*"), ffi.new("size_t*")
    checked(lib.velmora_days(_place(place), zone_of(place.zone), date_of(first), date_of(last),
                             _choice(twilight, transits), ffi.NULL, pointer_to(found, "velmora_day"), room,
                             day_count, pointer_to(events, "velmora_event"), events.size, event_count))
    return found[: day_count[0]], events[: event_count[0]]


def at_places(latitudes: ArrayLike, longitudes: ArrayLike, start: datetime, end: datetime,
              threads: int = 1) -> NDArray[Any]:
    """What happens from `start` until `end` at many places: a structured array of the shape of `latitudes`.

    Fields: sun_rise, sun_set, moon_rise, moon_set (seconds since 1970, the first of each, NaN for none),
    daylight, darkness (seconds), sun, moon (numbers of `records.AllDay`).
    """
    north, east = np.broadcast_arrays(np.asarray(latitudes, np.float64), np.asarray(longitudes, np.float64))
    places = np.zeros(north.shape, dtype_of("velmora_place"))
    places["latitude"], places["longitude"] = north, east
    found = np.zeros(north.shape, dtype_of("velmora_place_day"))
    call(lib.velmora_at_places, pointer_to(places, "velmora_place"), places.size, seconds_of(start),
         seconds_of(end), ffi.NULL, threads, pointer_to(found, "velmora_place_day"))
    return found


def _of_instants(function: Any, struct: str, at: ArrayLike, *arguments: Any) -> NDArray[Any]:
    seconds = np.asarray(_as_seconds(at), order="C")  # which keeps a single instant one
    found = np.zeros(seconds.shape, dtype_of(struct))
    call(function, *arguments, pointer_to(seconds, "const double"), seconds.size, pointer_to(found, struct))
    return found


def _as_seconds(at: ArrayLike) -> NDArray[np.float64]:
    given = np.asarray(at)
    if not np.issubdtype(given.dtype, np.datetime64):
        return given.astype(np.float64)
    microseconds = given.astype("datetime64[us]")
    seconds = microseconds.astype(np.int64) / 1e6
    return np.where(np.isnat(microseconds), np.nan, seconds)


def _as_datetime64(seconds: NDArray[np.float64]) -> NDArray[np.datetime64]:
    is_known = np.isfinite(seconds)
    known = np.where(is_known, np.round(np.where(is_known, seconds, 0) * 1e6), 0).astype(np.int64)
    return np.where(is_known, known.astype("datetime64[us]"), np.datetime64("NaT", "us"))
