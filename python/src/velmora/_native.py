"""The C interface: calls it, and turns its statuses into exceptions."""

from __future__ import annotations

import functools
from datetime import date, datetime, timedelta, timezone, tzinfo
from pathlib import Path
from typing import Any, Callable, TypeVar
from zoneinfo import ZoneInfo

import numpy as np

from velmora._velmora import ffi as ffi, lib as lib

T = TypeVar("T")

_OK, _MORE, _NONE, _BAD_ARGUMENT, _OUT_OF_YEARS, _NO_DATA = range(6)


class OutOfYearsError(ValueError):
    """An instant or a day outside the years that are answered."""


def call(function: Callable[..., int], *arguments: Any) -> bool:
    """Calls an operation; False where what was asked for does not exist."""
    return checked(function(*arguments))


def listed(convert: Callable[[Any], T], function: Callable[..., int], item: str, *arguments: Any) -> list[T]:
    """The structs of a list that an operation fills, each converted while the list holds them."""
    room, count = 64, ffi.new("size_t*")
    while True:
        items = ffi.new(f"{item}[]", room)
        status = function(*arguments, items, room, count)
        if status != _MORE:
            checked(status)
            return [convert(items[i]) for i in range(count[0])]
        room = count[0]


def checked(status: int) -> bool:
    """Raises what the status says; False where what was asked for does not exist."""
    if status in (_OK, _NONE):
        return status == _OK
    message = ffi.string(lib.velmora_message()).decode()
    if status == _OUT_OF_YEARS:
        raise OutOfYearsError(message)
    if status == _BAD_ARGUMENT:
        raise ValueError(message)
    raise OSError(message) if status == _NO_DATA else RuntimeError(message)


def given(kind: type[Any], value: T) -> T:
    """The value; raises TypeError for one of another type than it is declared with."""
    is_one = isinstance(value, kind)
    if not is_one:
        raise TypeError(f"{value!r} is no {kind.__name__}")
    return value


def seconds_of(instant: datetime) -> float:
    """Seconds since 1970 of an aware datetime; a naive one names no instant."""
    if given(datetime, instant).tzinfo is None:
        raise ValueError(f"{instant} has no time zone; give it a tzinfo")
    return instant.timestamp()


_EPOCH = datetime(1970, 1, 1, tzinfo=timezone.utc)


def instant_of(seconds: float, zone: tzinfo) -> datetime:
    """The datetime in the zone, to the microsecond; also before 1970."""
    return (_EPOCH + timedelta(seconds=seconds)).astimezone(zone)


def date_of(day: date) -> Any:
    return ffi.new("velmora_date*", (given(date, day).year, day.month, day.day))[0]


@functools.lru_cache(maxsize=64)
def _opened(name: str) -> Any:
    handle = ffi.new("velmora_zone**")
    call(lib.velmora_zone_open, name.encode(), handle)
    return ffi.gc(handle[0], lib.velmora_zone_close)


def zone_of(zone: tzinfo) -> Any:
    """The library's zone of a ZoneInfo or of a fixed offset."""
    if isinstance(zone, ZoneInfo) and zone.key:
        return _opened(zone.key)
    offset = given(tzinfo, zone).utcoffset(None)
    if offset is None:
        raise ValueError(f"{zone!r} is neither a ZoneInfo with a key nor a fixed offset")
    sign, size = ("-" if offset < timedelta(0) else "+"), round(abs(offset).total_seconds())
    minutes, seconds = divmod(size, 60)
    name = f"GMT{sign}{minutes // 60:02}:{minutes % 60:02}"
    return _opened(f"{name}:{seconds:02}" if seconds else name)


@functools.cache
def dtype_of(struct: str) -> np.dtype[Any]:
    """The NumPy type of a struct of numbers, its fields where C puts them."""
    numbers = {"double": np.float64, "int32_t": np.int32, "uint64_t": np.uint64}
    fields = dict(ffi.typeof(struct).fields)
    return np.dtype(
        {
            "names": list(fields),
            "formats": [numbers[field.type.cname] for field in fields.values()],
            "offsets": [field.offset for field in fields.values()],
            "itemsize": ffi.sizeof(struct),
        }
    )


def pointer_to(array: np.ndarray[Any, Any], kind: str) -> Any:
    """The array's memory as a pointer of C."""
    return ffi.cast(f"{kind}*", ffi.from_buffer(array))


def use_shipped_resources() -> None:
    """The tables lie beside this file in a wheel; elsewhere where the library was installed."""
    folder = Path(__file__).parent / "resources"
    if folder.is_dir():
        call(lib.velmora_set_resources, str(folder).encode())
