#!/usr/bin/env python3
"""Writes what happens in the sky of random places on random days of 1900 to 2100.

    /usr/bin/python3 make_almanac_events.py middle > almanac_events_middle.txt   # up to 66 degrees, 5000 days
    /usr/bin/python3 make_almanac_events.py polar > almanac_events_polar.txt     # 66 to 89.9 degrees, 2000 days

Source: the Swiss Ephemeris, its slow method of rise and set, with the time scales of swiss_ephemeris.py.
Conventions: topocentric at sea level; the Sun's centre at -50', the upper limb of the Moon (1737.5 km) at -34',
the Sun's centre at -6, -12 and -18 degrees; transit at hour angle 0. A day has 24 hours of UT1 and no event within
five seconds of its ends.
"""
import random
import sys
from datetime import datetime, timedelta
from math import asin, degrees, radians, sin

from swiss_ephemeris import *

DAY, CLEAR = 86400, 5
TRANSIT = None
KINDS = [  # letter, body, passage, altitude
    ("R", SUN, RISE | CENTRE, -50 / 60), ("S", SUN, SET | CENTRE, -50 / 60),
    ("r", MOON, RISE, -34 / 60), ("s", MOON, SET, -34 / 60),
    ("C", SUN, RISE | CENTRE, -6), ("c", SUN, SET | CENTRE, -6),
    ("N", SUN, RISE | CENTRE, -12), ("n", SUN, SET | CENTRE, -12),
    ("A", SUN, RISE | CENTRE, -18), ("a", SUN, SET | CENTRE, -18),
    ("T", SUN, TRANSIT, None), ("t", MOON, TRANSIT, None),
]


def transits(start, end, body, longitude, delta):
    """The moments at which the body is in the meridian."""
    def hour_angle(ut):
        right_ascension = position(body, EQUATORIAL, ut + delta)[0]
        return (sidereal_time(ut) * 15 + longitude - right_ascension + 180) % 360 - 180

    day = 1 if body == SUN else 1.035
    guess, found = start + (-hour_angle(start) % 360) / 360 * day, []
    while guess < end + 0.1:
        ut = guess
        for _ in range(8):
            ut -= hour_angle(ut) / 360 * day
        found += [ut] if start <= ut < end else []
        guess = ut + day
    return found


def passages(start, end, body, kind, latitude, longitude, altitude):
    found, ut = [], start
    while True:
        ut = passage(ut, body, kind, longitude, latitude, altitude)
        if ut is None or ut >= end:
            return found
        found.append(ut)
        ut += 60 / DAY


def events(start, latitude, longitude):
    """Letters and seconds since the start, in time order; by the sidereal time of IAU 2006."""
    delta = set_rotation(start)
    lead = lead_of_sidereal_time(start, start + delta)
    end, found = start + 1, []
    for letter, body, kind, altitude in KINDS:
        moments = (transits(start, end, body, longitude, delta) if kind is TRANSIT
                   else passages(start, end, body, kind, latitude, longitude, altitude))
        found += [((ut + lead - start) * DAY, letter) for ut in moments]
    return sorted(found)


def is_clear(found):
    return all(CLEAR < second < DAY - CLEAR for second, _ in found)


def rows(count, choose_latitude, chance):
    """Start (UT1), latitude, longitude, events."""
    first, days = datetime(1900, 1, 2), 73400
    while count > 0:
        moment = first + timedelta(days=chance.randrange(days), minutes=chance.randrange(1440))
        latitude, longitude = round(choose_latitude(chance), 4), round(chance.uniform(-180, 180), 4)
        start = JD_OF_1970 + (moment - datetime(1970, 1, 1)) / timedelta(days=1)
        found = events(start, latitude, longitude)
        if is_clear(found):
            count -= 1
            yield (moment.strftime("%Y-%m-%dT%H:%M"), f"{latitude:.4f}", f"{longitude:.4f}",
                   *(f"{letter}{second:.2f}" for second, letter in found))


if __name__ == "__main__":
    print(f"# Made by make_almanac_events.py {sys.argv[1]}: start (UT1), latitude, longitude, then events by letter")
    print("# and seconds since the start. R, S: Sun's rise, set; r, s: the Moon's; C, N, A: civil, nautical and")
    print("# astronomical dawn, c, n, a: dusk; T, t: transit of the Sun, the Moon.")
    chance = random.Random(20240320)
    if sys.argv[1] == "middle":
        highest = sin(radians(66))
        table = rows(5000, lambda c: degrees(asin(c.uniform(-highest, highest))), chance)
    else:
        table = rows(2000, lambda c: c.choice((-1, 1)) * c.uniform(66, 89.9), chance)
    for row in table:
        print(*row)
