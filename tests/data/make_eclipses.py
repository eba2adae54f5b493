#!/usr/bin/env python3
"""Writes eclipses.txt: every eclipse of the Sun and the Moon of 1900 to 2100 from a precise ephemeris.

Source: kind, magnitude and Saros number as the Swiss Ephemeris's own eclipse functions say; the greatest moment
(least distance of the shadow's axis), gamma and the contacts of lunar eclipses worked out here from its apparent
geocentric positions, with the Moon's radius of 0.272508 and the shadow by Danjon's rule. Instants are Terrestrial
Time in seconds since 1970-01-01T00:00 TT, contacts seconds from the greatest moment.
The magnitude is - where the axis of the Moon's shadow misses the Earth or grazes it: there the functions tell that of
another place.
A row: sun|moon KIND GREATEST MAGNITUDE GAMMA SAROS, for the Moon P1 [U1 [U2 U3] U4] P4.
Run: /usr/bin/python3 make_eclipses.py > eclipses.txt
"""
from math import asin, radians, sin, sqrt

import swiss_ephemeris as swe
from swiss_ephemeris import MOON, SUN

KM_PER_AU = 149597870.7
EARTH, MOON_RADIUS = 6378.137, 0.272508 * 6378.137
SUN_RADIUS = sin(radians(959.63 / 3600)) * KM_PER_AU
SECOND = 1 / 86400
GRAZING = 0.99
TOTAL, ANNULAR, PARTIAL, HYBRID, PENUMBRAL = 4, 8, 16, 32, 64
NAMES = [(HYBRID, "hybrid"), (TOTAL, "total"), (ANNULAR, "annular"), (PARTIAL, "partial"), (PENUMBRAL, "penumbral")]


def vector(body, jd):
    return [KM_PER_AU * x for x in swe.apparent_vector(body, jd)]


def dot(a, b):
    return sum(x * y for x, y in zip(a, b))


def offset(is_lunar, jd):
    """The part of the Moon's position that is square to the shadow's axis."""
    sun, moon = vector(SUN, jd), vector(MOON, jd)
    axis = sun if is_lunar else [s - m for s, m in zip(sun, moon)]
    along = dot(moon, axis) / dot(axis, axis)
    return [m - along * a for m, a in zip(moon, axis)]


def distance_rate(is_lunar, jd):
    step = 30 * SECOND
    return sum(x * x for x in offset(is_lunar, jd + step)) - sum(x * x for x in offset(is_lunar, jd - step))


def greatest(is_lunar, jd):
    return swe.root(lambda t: distance_rate(is_lunar, t), jd - 0.05, jd + 0.05, 0.01 * SECOND)


def shadow(jd):
    """Separation of the Moon's centre from the shadow's and the three radii."""
    sun, moon = vector(SUN, jd), vector(MOON, jd)
    r_sun, r_moon = sqrt(dot(sun, sun)), sqrt(dot(moon, moon))
    difference = [s / r_sun + m / r_moon for s, m in zip(sun, moon)]
    parallaxes = 1.01 * asin(EARTH / r_moon) + asin(EARTH / r_sun)
    semidiameter = asin(SUN_RADIUS / r_sun)
    return (2 * asin(sqrt(dot(difference, difference)) / 2), parallaxes - semidiameter, parallaxes + semidiameter,
            asin(MOON_RADIUS / r_moon))


def contacts(jd):
    def gap(t, limit):
        values = shadow(t)
        return values[0] - limit(values)

    found = []
    for limit in (lambda v: v[2] + v[3], lambda v: v[1] + v[3], lambda v: v[1] - v[3]):
        if gap(jd, limit) >= 0:
            break
        for side in (-1, 1):
            ends = sorted([jd, jd + side * 0.17])
            found.append(swe.root(lambda t: gap(t, limit), *ends, 0.01 * SECOND))
    return sorted(found)


def row(search, is_lunar, jd_ut):
    flags, times = swe.eclipse_search(search, jd_ut)
    kind = next(name for flag, name in NAMES if flags & flag)
    jd = greatest(is_lunar, swe.tt_of_ut1(times[0]))
    across = offset(is_lunar, jd)
    gamma = sqrt(dot(across, across)) / EARTH * (1 if across[2] > 0 else -1)
    attributes = swe.lunar_eclipse_at(times[0]) if is_lunar else swe.solar_eclipse_where(times[0])[2]
    magnitude = attributes[1 if kind == "penumbral" else 0] if is_lunar else attributes[8]
    is_grazing = not is_lunar and kind != "partial" and abs(gamma) > GRAZING
    text = f"{'moon' if is_lunar else 'sun'} {kind} {swe.unix_seconds(jd):.1f}"
    text += f" {'-' if is_grazing else format(magnitude, '.4f')} {gamma:.5f}"
    text += f" {attributes[9]:.0f}"
    if is_lunar:
        text += "".join(f" {(t - jd) / SECOND:.1f}" for t in contacts(jd))
    return jd, text, times[0]


def main():
    rows = []
    for search, is_lunar in (("swe_sol_eclipse_when_glob", False), ("swe_lun_eclipse_when", True)):
        jd_ut = swe.julian_day(1900, 1, 1)
        while True:
            jd, text, at = row(search, is_lunar, jd_ut)
            if at >= swe.julian_day(2101, 1, 1):
                break
            rows.append((jd, text))
            jd_ut = at + 1
    for _, text in sorted(rows):
        print(text)


main()
