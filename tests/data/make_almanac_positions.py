#!/usr/bin/env python3
"""Writes almanac_positions.txt: Sun and Moon from random places at random moments of 1900 to 2100.

Source: the Swiss Ephemeris, topocentric at sea level, with the time scales of swiss_ephemeris.py; the
Moon's light and its angles from these places by Meeus, "Astronomical Algorithms", formulas 48.2 to 48.5 and 14.1.
Run: /usr/bin/python3 make_almanac_positions.py > almanac_positions.txt
"""
import random
from datetime import datetime, timedelta
from math import acos, asin, atan2, cos, degrees, radians, sin, tan

from swiss_ephemeris import *

COUNT, KM_PER_AU = 1500, 149597870.7


def seen(tt, body, latitude, hour_angle_of_zero):
    """Right ascension, declination (degrees), distance (km), azimuth from the north, altitude.

    With light time the distance would include the way of the Earth meanwhile, up to 38 km for the Moon.
    """
    right_ascension, declination = position(body, EQUATORIAL | TOPOCENTRIC, tt)[:2]
    distance = position(body, EQUATORIAL | TOPOCENTRIC | TRUE_PLACE, tt)[2]
    h, d, p = radians(hour_angle_of_zero - right_ascension), radians(declination), radians(latitude)
    south, west = cos(h) * sin(p) - tan(d) * cos(p), sin(h)
    altitude = asin(sin(p) * sin(d) + cos(p) * cos(d) * cos(h))
    return (right_ascension, declination, distance * KM_PER_AU, (degrees(atan2(west, south)) + 180) % 360,
            degrees(altitude))


def light_of(sun, moon, latitude, hour_angle_of_zero):
    """Lit part, phase angle, position angle of the lit limb, parallactic angle."""
    a0, d0, a, d = (radians(x) for x in (*sun[:2], *moon[:2]))
    elongation = acos(sin(d0) * sin(d) + cos(d0) * cos(d) * cos(a0 - a))
    phase = atan2(sun[2] * sin(elongation), moon[2] - sun[2] * cos(elongation))
    limb = atan2(cos(d0) * sin(a0 - a), sin(d0) * cos(d) - cos(d0) * sin(d) * cos(a0 - a))
    h, p = radians(hour_angle_of_zero) - a, radians(latitude)
    parallactic = atan2(sin(h), tan(p) * cos(d) - sin(d) * cos(h))
    return (1 + cos(phase)) / 2, degrees(phase), degrees(limb) % 360, degrees(parallactic)


if __name__ == "__main__":
    print("# Made by make_almanac_positions.py: moment (UT1), latitude, longitude; of the Sun, then of the Moon:")
    print("# right ascension, declination (degrees), distance (km), azimuth, altitude; of the Moon: lit part, phase")
    print("# angle, position angle of the lit limb, parallactic angle.")
    chance = random.Random(1609)
    for _ in range(COUNT):
        moment = datetime(1900, 1, 2) + timedelta(days=chance.randrange(73400), minutes=chance.randrange(1440))
        latitude, longitude = round(degrees(asin(chance.uniform(-1, 1))), 3), round(chance.uniform(-180, 180), 3)
        ut = JD_OF_1970 + (moment - datetime(1970, 1, 1)) / timedelta(days=1)
        tt = ut + set_rotation(ut)
        set_place(longitude, latitude)
        sidereal = sidereal_time(ut) * 15 - lead_of_sidereal_time(ut, tt) * 360 + longitude
        sun, moon = seen(tt, SUN, latitude, sidereal), seen(tt, MOON, latitude, sidereal)
        fields = [f"{value:.{digits}f}" for body in (sun, moon) for value, digits in zip(body, (5, 5, 1, 5, 5))]
        light = light_of(sun, moon, latitude, sidereal)
        print(moment.strftime("%Y-%m-%dT%H:%M"), latitude, longitude, *fields, f"{light[0]:.6f}",
              *(f"{value:.4f}" for value in light[1:]))
