#!/usr/bin/env python3
"""Writes almanac_events_2.txt: a second opinion on rise, set and twilight of random places on random days.

Source: PyEphem (Debian package python3-ephem), with its own time scales, 1973 to 2016. Format and conventions are
those of make_almanac_events.py, but without transits, and with PyEphem's own size of the Moon.
Run with the system's Python: /usr/bin/python3 make_almanac_events_2.py > almanac_events_2.txt
"""
import random
from datetime import datetime, timedelta
from math import asin, degrees, radians, sin

import ephem

CLEAR, STEP, COUNT = 5, 600, 400
SUN, MOON = ephem.Sun(), ephem.Moon()
LEVELS = [("R", "S", SUN, -50 / 60), ("r", "s", MOON, -34 / 60), ("C", "c", SUN, -6), ("N", "n", SUN, -12),
          ("A", "a", SUN, -18)]


def height(observer, start, seconds, body, altitude):
    """Degrees of the Sun's centre or the Moon's upper limb over the altitude."""
    observer.date = start + seconds * ephem.second
    body.compute(observer)
    return degrees(body.alt + (body.radius if body is MOON else 0)) - altitude


def passages(observer, start, rising, setting, body, altitude):
    def at(seconds):
        return height(observer, start, seconds, body, altitude)

    low, before = 0, at(0)
    while low < 86400:
        high = low + STEP
        after = at(high)
        if (before < 0) != (after < 0):
            a, b = low, high
            while b - a > 0.01:
                middle = (a + b) / 2
                a, b = (middle, b) if (at(middle) < 0) == (before < 0) else (a, middle)
            yield (a + b) / 2, rising if before < 0 else setting
        low, before = high, after


def observer_at(latitude, longitude):
    observer = ephem.Observer()
    observer.lat, observer.lon, observer.elevation, observer.pressure = str(latitude), str(longitude), 0, 0
    return observer


if __name__ == "__main__":
    print("# Made by make_almanac_events_2.py: start (UT), latitude, longitude, then events as in")
    print("# almanac_events_middle.txt.")
    chance, highest, count = random.Random(1752), sin(radians(60)), 0
    while count < COUNT:
        moment = datetime(1973, 1, 1) + timedelta(days=chance.randrange(16000), minutes=chance.randrange(1440))
        latitude = round(degrees(asin(chance.uniform(-highest, highest))), 4)
        longitude = round(chance.uniform(-180, 180), 4)
        observer, start = observer_at(latitude, longitude), ephem.Date(moment)
        found = sorted(event for level in LEVELS for event in passages(observer, start, *level))
        if all(CLEAR < second < 86400 - CLEAR for second, _ in found):
            count += 1
            print(moment.strftime("%Y-%m-%dT%H:%M"), latitude, longitude,
                  *(f"{letter}{second:.2f}" for second, letter in found))
