"""Rise and set of Sun and Moon of a year, beside PyEphem and Astral in one run: python beside_others.py

Processor time, the least of several repetitions, a day each.
"""

import time
from datetime import date, datetime, timedelta, timezone
from zoneinfo import ZoneInfo

import ephem
import numpy as np
import velmora
from velmora import Body, arrays

HELSINKI = velmora.Place(60.17, 24.94, ZoneInfo("Europe/Helsinki"))
FIRST, LAST = date(2026, 1, 1), date(2026, 12, 31)
DAYS = 365


def least(work, count, repetitions=5):
    """Microseconds of processor time for each of `count`."""
    best = float("inf")
    for _ in range(repetitions):
        start = time.process_time()
        work()
        best = min(best, time.process_time() - start)
    return 1e6 * best / count


def by_pyephem():
    observer = ephem.Observer()
    observer.lat, observer.lon, observer.pressure, observer.horizon = "60.17", "24.94", 0, "-0:34"
    sun, moon = ephem.Sun(), ephem.Moon()
    for day in range(DAYS):
        observer.date = ephem.Date("2026/1/1") + day
        for body in (sun, moon):
            observer.next_rising(body), observer.next_setting(body)


def by_astral():
    from astral import Location

    location = Location(("Helsinki", "Finland", 60.17, 24.94, "Europe/Helsinki", 0))
    for day in range(DAYS):
        on = FIRST + timedelta(days=day)
        location.sunrise(on), location.sunset(on)


def main():
    rows = [
        ("days as arrays, rise and set", least(lambda: arrays.days(HELSINKI, FIRST, LAST, twilight=False,
                                                                    transits=False), DAYS)),
        ("days as arrays, twilights and transits", least(lambda: arrays.days(HELSINKI, FIRST, LAST), DAYS)),
        ("days as dataclasses, twilights and transits", least(lambda: velmora.days(HELSINKI, FIRST, LAST), DAYS)),
        ("PyEphem, rise and set", least(by_pyephem, DAYS, 2)),
        ("Astral, sunrise and sunset alone", least(by_astral, DAYS, 2)),
    ]
    at = np.datetime64("2026-01-01") + np.arange(100_000).astype("timedelta64[m]")
    rows.append(("a position of the Moon in an array", least(lambda: arrays.positions(HELSINKI, Body.MOON, at), len(at))))
    for name, microseconds in rows:
        print(f"{name:45} {microseconds:10.2f} µs")


if __name__ == "__main__":
    main()
