"""The day at a place in a terminal: python -m velmora today --city Helsinki."""

import argparse
import json
import sys
from datetime import date, datetime
from typing import Any
from zoneinfo import ZoneInfo

import velmora
from velmora import AllDay, Body, Day, Place

_STATES = {AllDay.UP: "up all day", AllDay.DOWN: "down all day"}


class BadInput(Exception):
    """What was wrong, in one line."""


def _day(text: str) -> date:
    try:
        return date.fromisoformat(text)
    except ValueError:
        raise argparse.ArgumentTypeError(f"{text} is no day written YYYY-MM-DD") from None


def _arguments(words: list[str]) -> argparse.Namespace:
    parser = argparse.ArgumentParser(prog="python -m velmora", description=__doc__)
    command = parser.add_subparsers(dest="command", required=True).add_parser("today", help="the day at a place")
    command.add_argument("--city", help="a city of the shipped table, freely spelled")
    command.add_argument("--lat", type=float, help="latitude in degrees, north positive")
    command.add_argument("--lon", type=float, help="longitude in degrees, east positive")
    command.add_argument("--tz", default="UTC", help="time zone of --lat and --lon (UTC)")
    command.add_argument("--date", type=_day, help="YYYY-MM-DD (today)")
    command.add_argument("--json", action="store_true", help="one JSON object")
    return parser.parse_args(words)


def _zone(name: str) -> ZoneInfo:
    try:
        return ZoneInfo(name)
    except (KeyError, ValueError, OSError):
        raise BadInput(f"there is no time zone {name}; zones are named as Europe/Helsinki") from None


def _place(given: argparse.Namespace) -> tuple[str, Place]:
    if given.city is not None:
        return _city(given.city)
    if given.lat is None or given.lon is None:
        raise BadInput("a place is --city NAME, or --lat and --lon together")
    return f"{given.lat}, {given.lon}", Place(given.lat, given.lon, _zone(given.tz))


def _city(name: str) -> tuple[str, Place]:
    found = velmora.cities(name)
    if not found:
        raise BadInput(f"there is no city {name} in the table")
    if len(found) > 1:
        raise BadInput(f"{name} is one of: " + "; ".join(str(city) for city in found[:8]))
    return str(found[0]), found[0].place


def _json(name: str, day: Day) -> dict[str, Any]:
    times = {key: getattr(day, key) for key in ("sunrise", "sunset", "moonrise", "moonset")}
    return {
        "place": name,
        "start": day.start.isoformat(),
        **{key: at.isoformat(timespec="seconds") if at else None for key, at in times.items()},
        "sun_all_day": day.sun.name.lower(),
        "moon_all_day": day.moon.name.lower(),
        "daylight_seconds": day.daylight.total_seconds(),
        "darkness_seconds": day.darkness.total_seconds(),
    }


def _lines(name: str, place: Place, day: Day) -> list[str]:
    noon = day.start + (day.end - day.start) / 2
    lines = [f"{name}, {day.start:%Y-%m-%d}",
             f"Moon {100 * velmora.illumination(place, noon).fraction:.0f} % lit at the middle of the day"]
    for body, state in ((Body.SUN, day.sun), (Body.MOON, day.moon)):
        if state in _STATES:
            lines.append(f"{'':5}  {body.name.capitalize()} {_STATES[state]}")
    for event in day.events:
        lines.append(f"{event.at:%H:%M}  {event.body.name.capitalize()} {event.kind.name.lower().replace('_', ' ')}")
    return lines


def main(words: list[str]) -> int:
    given = _arguments(words)
    try:
        name, place = _place(given)
        on = given.date or datetime.now(place.zone).date()
        day = velmora.day(place, on)
        if day is None:
            raise BadInput(f"the clocks of {name} skipped {on}")
    except (BadInput, ValueError) as wrong:
        print(f"velmora: {wrong}", file=sys.stderr)
        return 2
    print(json.dumps(_json(name, day)) if given.json else "\n".join(_lines(name, place, day)))
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
