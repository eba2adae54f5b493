#!/usr/bin/env python3
"""Writes illumination.txt: the lit part of the Moon's disc from a precise ephemeris.

Source: the directions and distances of the Sun and the Moon by PyEphem (Debian package python3-ephem), seen from
the centre of the Earth. The phase angle is that of the triangle Sun, Moon, Earth; universal time. One row every
ten days and a fraction, so that all phases and hours occur.
Run with the system's Python: /usr/bin/python3 make_illumination.py > illumination.txt
"""
from math import cos, pi, sin, sqrt

import ephem

MJD_OF_EPHEM = 15019.5  # of PyEphem's day 0
FIRST, STEP, ROWS = 51544.0, 10.2109375, 1466


def vector(body):
    distance = body.earth_distance
    return (distance * cos(body.g_dec) * cos(body.g_ra), distance * cos(body.g_dec) * sin(body.g_ra),
            distance * sin(body.g_dec))


def length(v):
    return sqrt(sum(x * x for x in v))


def lit_part(date):
    sun, moon = vector(ephem.Sun(date)), vector(ephem.Moon(date))
    to_sun = [s - m for s, m in zip(sun, moon)]
    to_earth = [-m for m in moon]
    cosine = sum(s * e for s, e in zip(to_sun, to_earth)) / length(to_sun) / length(to_earth)
    return (1 + cosine) / 2


def is_waxing(date):
    """By the ecliptic longitudes of date."""
    sun, moon = (ephem.Ecliptic(ephem.Equatorial(b.g_ra, b.g_dec, epoch=date), epoch=date).lon
                 for b in (ephem.Sun(date), ephem.Moon(date)))
    return (moon - sun) % (2 * pi) < pi


if __name__ == "__main__":
    print("# The lit part of the Moon's disc, from PyEphem; made by make_illumination.py, which says how.")
    print("# side MJD(universal time) lit part")
    for row in range(ROWS):
        mjd = FIRST + STEP * row
        date = ephem.Date(mjd - MJD_OF_EPHEM)
        print("waxing" if is_waxing(date) else "waning", mjd, "%.5f" % lit_part(date))
