#!/usr/bin/env python3
"""Writes positions_2000_2040.txt: directions of the Sun and the Moon from a precise ephemeris.

Source: PyEphem (Debian package python3-ephem); over 2000 to 2040 its geocentric places agree with the Swiss
Ephemeris within 0.0004 degrees for the Sun and 0.004 degrees for the Moon.
Conventions: geocentric apparent place of the centre, without refraction and parallax, on a sphere; azimuth from
north through east; universal time. One row every ten days and a fraction, so that all hours occur.
Run with the system's Python: /usr/bin/python3 make_positions_2000_2040.py > positions_2000_2040.txt
"""
from math import asin, atan2, cos, degrees, pi, radians, sin

import ephem

PLACES = [("37.75", "-122.375"), ("60.1875", "24.9375"), ("0", "0"), ("-33.875", "151.1875"),
          ("78.25", "15.625"), ("27.75", "85.3125"), ("-77.875", "166.6875")]
MJD_OF_EPHEM = 15019.5  # of PyEphem's day 0
FIRST, STEP, ROWS = 51544.0, 10.2109375, 1466


def direction(body, date, latitude, longitude):
    observer.date = date
    place = body(observer.date)
    H = observer.sidereal_time() + longitude - place.g_ra
    height = asin(sin(latitude) * sin(place.g_dec) + cos(latitude) * cos(place.g_dec) * cos(H))
    azimuth = atan2(-cos(place.g_dec) * sin(H),
                    sin(place.g_dec) * cos(latitude) - cos(place.g_dec) * cos(H) * sin(latitude))
    return "%.4f" % degrees(height), "%.4f" % degrees(azimuth % (2 * pi))


observer = ephem.Observer()
observer.lon = observer.lat = "0"

if __name__ == "__main__":
    print("# Directions of the Sun and the Moon from PyEphem; made by make_positions_2000_2040.py, which says how.")
    print("# MJD(universal time) latitude longitude Sun's altitude and azimuth, Moon's altitude and azimuth, degrees")
    for row in range(ROWS):
        mjd = FIRST + STEP * row
        place = PLACES[row % len(PLACES)]
        where = radians(float(place[0])), radians(float(place[1]))
        date = ephem.Date(mjd - MJD_OF_EPHEM)
        print(mjd, *place, *direction(ephem.Sun, date, *where), *direction(ephem.Moon, date, *where))
