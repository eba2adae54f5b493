#!/usr/bin/env python3
"""Writes moon_phases.txt: phases, apsides and seasons of 1900 to 2100 from a precise ephemeris.

Source: apparent geocentric positions of the Swiss Ephemeris. A row is the kind, the instant in Terrestrial Time as
seconds since 1970-01-01T00:00 TT, and for an apsis the Moon's distance in km.
Run: /usr/bin/python3 make_moon_phases.py > moon_phases.txt
"""
from swiss_ephemeris import MOON, SUN, TRUE_PLACE, julian_day, position, root, unix_seconds

KM_PER_AU = 149597870.7
FIRST, END = julian_day(1900, 1, 1), julian_day(2101, 1, 1)
HUNDREDTH_OF_A_SECOND = 0.01 / 86400


def wrapped(degrees):
    return (degrees + 180) % 360 - 180


def sun_longitude(jd):
    return position(SUN, 0, jd)[0]


def elongation(jd):
    return position(MOON, 0, jd)[0] - sun_longitude(jd)


def quarters(angle, step, names):
    """When an angle that grows passes a whole number of quarters."""
    jd = FIRST
    while jd < END:
        before, after = angle(jd) % 360, angle(jd + step) % 360
        quarter = int(before // 90)
        if int(after // 90) != quarter:
            goal = 90 * ((quarter + 1) % 4)
            yield root(lambda t: wrapped(angle(t) - goal), jd, jd + step, HUNDREDTH_OF_A_SECOND), names[goal // 90]
        jd += step


def distance(jd):
    """At the instant itself: with light time it would include the way of the Earth meanwhile, up to 38 km."""
    return position(MOON, TRUE_PLACE, jd)[2] * KM_PER_AU


def distance_rate(jd):
    return distance(jd + 0.01) - distance(jd - 0.01)


def apsides():
    step = 1.0
    jd = FIRST
    while jd < END:
        before, after = distance_rate(jd), distance_rate(jd + step)
        if (before > 0) != (after > 0):
            at = root(distance_rate, jd, jd + step, HUNDREDTH_OF_A_SECOND)
            yield at, "perigee" if before < 0 else "apogee", distance(at)
        jd += step


def main():
    for jd, name in quarters(elongation, 1.0, ["new", "first", "full", "last"]):
        print(f"{name} {unix_seconds(jd):.1f}")
    for jd, name in quarters(sun_longitude, 1.0, ["march", "june", "september", "december"]):
        print(f"{name} {unix_seconds(jd):.1f}")
    for jd, name, kilometres in apsides():
        print(f"{name} {unix_seconds(jd):.0f} {kilometres:.2f}")


main()
