#!/usr/bin/env python3
"""Writes apparent_places.txt: where the Sun and the Moon stand at 20,000 random minutes of 1900 to 2100.

Source: the Swiss Ephemeris on DE431, geocentric apparent places of the true equator and equinox of date; distances
geometric. Terrestrial Time is told beside them, so that no other time scale comes in.
Run: /usr/bin/python3 make_apparent_places.py > apparent_places.txt
"""
import random

from swiss_ephemeris import *

COUNT = 20_000
KM_PER_AU = 149597870.7
JD_OF_J2000 = 2451545.0
UNITS_OF_TURN = 360 * 3600 * 100
DIGITS = "0123456789abcdefghijklmnopqrstuvwxyz"
BASE = len(DIGITS)


def written(value, width):
    text = ""
    for _ in range(width):
        value, digit = divmod(value, BASE)
        text = DIGITS[digit] + text
    assert value == 0
    return text


def fields(body, tt, unit_km):
    right_ascension, declination = position(body, EQUATORIAL, tt)[:2]
    distance = position(body, EQUATORIAL | TRUE_PLACE, tt)[2] * KM_PER_AU
    return (written(round(right_ascension * 360_000) % UNITS_OF_TURN, 6) + written(round((declination + 90) * 360_000), 6) +
            written(round(distance / unit_km), 5))


if __name__ == "__main__":
    print("# Made by make_apparent_places.py. Numbers in base 36, without blanks: minutes of Terrestrial Time since")
    print("# 1900-01-01T12:00 (6 digits); of the Moon, then of the Sun: right ascension (6) and declination from the")
    print("# south pole (6) in units of 0.01\u2033, distance (5) in units of 0.1 km, of the Sun 10 km.")
    chance = random.Random(431)
    for minute in sorted(chance.randrange(73_413 * 1440) for _ in range(COUNT)):
        tt = JD_OF_J2000 - 36525 + 1 + minute / 1440
        print(written(minute, 6) + fields(MOON, tt, 0.1) + fields(SUN, tt, 10))
