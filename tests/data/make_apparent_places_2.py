#!/usr/bin/env python3
"""Writes apparent_places_2.txt: where the Sun and the Moon stand at 2,000 random minutes, by PyEphem.

A second opinion: its Sun and Moon are not those of DE431. Debian package python3-ephem.
Run: /usr/bin/python3 make_apparent_places_2.py > apparent_places_2.txt
"""
import random

import ephem

COUNT = 2_000
DUBLIN_OF_1900_NOON = 1.0   # PyEphem counts days from 1899-12-31T12:00


if __name__ == "__main__":
    print("# Made by make_apparent_places_2.py: minutes of Terrestrial Time since 1900-01-01T12:00; right ascension")
    print("# and declination of the Moon, then of the Sun, apparent, of the true equator and equinox of date, radians.")
    chance = random.Random(1899)
    sun, moon = ephem.Sun(), ephem.Moon()
    for minute in sorted(chance.randrange(73_413 * 1440) for _ in range(COUNT)):
        tt = DUBLIN_OF_1900_NOON + minute / 1440
        date = tt - ephem.delta_t(tt) / 86400
        moon.compute(date)
        sun.compute(date)
        print(minute, *(f"{float(angle):.8f}" for angle in (moon.g_ra, moon.g_dec, sun.g_ra, sun.g_dec)))
