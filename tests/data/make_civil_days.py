#!/usr/bin/env python3
"""Writes what happens in the sky of places of the world on civil days of 2018 to 2040.

    /usr/bin/python3 make_civil_days.py > civil_days.txt

Source and conventions are those of make_almanac_events.py; the days are those of the places' clocks by Python's
zoneinfo: around each change of clocks, around the solstices, and random ones. No event lies within five seconds of
a day's ends.
"""
import random
from datetime import date, datetime, time, timedelta, timezone
from zoneinfo import ZoneInfo

from make_almanac_events import CLEAR, DAY, KINDS, TRANSIT, passages, transits
from swiss_ephemeris import *

PLACES = [
    ("Europe/London", 51.5083, -0.1253), ("Europe/Berlin", 52.52, 13.405), ("Europe/Helsinki", 60.1695, 24.9354),
    ("Europe/Oslo", 69.6492, 18.9553), ("Arctic/Longyearbyen", 78.2232, 15.6267),
    ("Atlantic/Reykjavik", 64.1466, -21.9426), ("America/Anchorage", 64.8378, -147.7164),
    ("America/New_York", 40.7128, -74.006), ("America/St_Johns", 47.5615, -52.7126),
    ("America/Santiago", -33.4489, -70.6693), ("America/Guayaquil", -0.1807, -78.4678),
    ("America/Nuuk", 76.5312, -68.7032), ("Africa/Cairo", 30.0444, 31.2357), ("Africa/Johannesburg", -33.9249, 18.4241),
    ("Asia/Kathmandu", 27.7172, 85.324), ("Asia/Anadyr", 64.7337, 177.4968), ("Asia/Tokyo", 35.6762, 139.6503),
    ("Australia/Lord_Howe", -31.5553, 159.0825), ("Pacific/Chatham", -43.95, -176.56),
    ("Antarctica/McMurdo", -77.8419, 166.6863), ("Pacific/Apia", -13.8333, -171.7667),
]
FIRST, LAST, CHANGES, RANDOM = date(2018, 1, 2), date(2040, 12, 30), 30, 100


def start_of(day, zone):
    """In UTC. No clock here changes at midnight but Cairo's, whose day then begins at 01:00."""
    local = datetime.combine(day, time(), zone)
    if local.astimezone(timezone.utc).astimezone(zone).replace(tzinfo=None) != datetime.combine(day, time()):
        local += timedelta(hours=1)
    return local.astimezone(timezone.utc)


def days_of(zone, chance):
    every = [FIRST + timedelta(days=k) for k in range((LAST - FIRST).days)]
    changed = [day for day in every if start_of(day + timedelta(days=1), zone) - start_of(day, zone) != timedelta(days=1)]
    around = {day + timedelta(days=k) for day in chance.sample(changed, min(CHANGES, len(changed))) for k in (0, 1)}
    solstices = {date(year, month, 21) for year in range(2018, 2040, 4) for month in (6, 12)}
    return sorted(around | solstices | set(chance.sample(every, RANDOM)))


def events(start, end, latitude, longitude):
    delta = set_rotation(start)
    lead = lead_of_sidereal_time(start, start + delta)
    found = []
    for letter, body, kind, altitude in KINDS:
        moments = (transits(start, end, body, longitude, delta) if kind is TRANSIT
                   else passages(start, end, body, kind, latitude, longitude, altitude))
        found += [((ut + lead - start) * DAY, letter) for ut in moments]
    return sorted(found)


if __name__ == "__main__":
    print("# Made by make_civil_days.py: zone, latitude, longitude, date, the day's hours, then events by letter and")
    print("# seconds since its beginning, in UTC. Letters: as in almanac_events_middle.txt.")
    chance = random.Random(20401231)
    for name, latitude, longitude in PLACES:
        zone = ZoneInfo(name)
        for day in days_of(zone, chance):
            start, end = start_of(day, zone), start_of(day + timedelta(days=1), zone)
            julian = [JD_OF_1970 + moment.timestamp() / DAY for moment in (start, end)]
            found, seconds = events(*julian, latitude, longitude), (end - start).total_seconds()
            if all(CLEAR < second < seconds - CLEAR for second, _ in found):
                print(name, latitude, longitude, day, f"{seconds / 3600:g}", *(f"{l}{s:.1f}" for s, l in found))
