#!/usr/bin/env python3
"""Writes solar_eclipses_seen.txt: every solar eclipse of 2000 to 2040 as it is at 50 places and on its own path.

Source: geocentric apparent positions of the Swiss Ephemeris, less the place on the ellipsoid of WGS84 by its sidereal
time (its own topocentric positions turn the place by the nutation once more: 0.3 km, 0.2 s in a contact). The discs'
separation is searched here by halving; the Sun's radius is 959.63" at an astronomical unit, the Moon's 0.272508 of the
Earth's for the outer and 0.272281 for the inner contacts. Magnitude and covered area are those of
swe_sol_eclipse_how, whose lunar radius is always the outer one and which says nothing while the Sun is down. The Sun
counts as up while its centre is less than 50' below the horizon. UTC.
Rows: `place LATITUDE LONGITUDE` of the 50 places, then for each eclipse
    eclipse DAY     its greatest moment's day, as seconds since 1970
    PLACE KIND C1 C2 MAXIMUM C3 C4 MAGNITUDE OBSCURATION ALTITUDE AZIMUTH FROM TO
PLACE is the number of a place, or latitude,longitude of one on the path; times are seconds since that day began;
altitude (without refraction) and azimuth are those of the maximum; FROM and TO are the ends of what is seen; - is
none. A place that no row names is not touched.
Run: /usr/bin/python3 make_solar_eclipses_seen.py > solar_eclipses_seen.txt
"""
from math import asin, atan2, cos, degrees, pi, radians, sin, sqrt

import swiss_ephemeris as swe
from swiss_ephemeris import MOON, SUN

KM_PER_AU = 149597870.7
EARTH, FLATTENING = 6378.137, 1 / 298.257223563
SUN_RADIUS = sin(radians(959.63 / 3600)) * KM_PER_AU
OUTER, INNER = 0.272508 * EARTH, 0.272281 * EARTH
HORIZON = radians(-50 / 60)
SECOND = 1 / 86400
PRECISION = 0.01 * SECOND

PLACES = [
    (51.5, -0.12), (48.85, 2.35), (40.42, -3.7), (52.52, 13.4), (60.17, 24.95), (64.15, -21.94), (69.65, 18.96),
    (78.22, 15.65), (55.75, 37.62), (41.01, 28.98), (37.98, 23.73), (45.07, 7.69), (30.04, 31.24), (6.52, 3.38),
    (-1.29, 36.82), (-26.2, 28.05), (-33.92, 18.42), (-18.88, 47.51), (14.72, -17.47), (24.47, 54.37),
    (28.61, 77.21), (13.08, 80.27), (27.72, 85.32), (43.24, 76.89), (39.9, 116.4), (31.23, 121.47), (35.68, 139.69),
    (62.03, 129.73), (1.35, 103.82), (-6.21, 106.85), (14.6, 120.98), (-12.46, 130.84), (-31.95, 115.86),
    (-33.87, 151.21), (-36.85, 174.76), (-17.53, -149.57), (21.31, -157.86), (61.22, -149.9), (47.61, -122.33),
    (34.05, -118.24), (19.43, -99.13), (41.88, -87.63), (40.71, -74.01), (64.18, -51.72), (18.47, -69.9),
    (4.71, -74.07), (-12.05, -77.04), (-34.6, -58.38), (-54.8, -68.3), (-89.9, 0.0),
]


class Sky:
    """The Sun and the Moon as seen from a place, delta days of UT1 behind Terrestrial Time."""

    def __init__(self, place, delta):
        self.latitude, self.longitude, self.delta = radians(place[0]), radians(place[1]), delta
        eccentricity = FLATTENING * (2 - FLATTENING)
        normal = EARTH / sqrt(1 - eccentricity * sin(self.latitude) ** 2)
        self.from_axis = normal * cos(self.latitude)
        self.from_equator = normal * (1 - eccentricity) * sin(self.latitude)

    def sidereal_time(self, jd_tt):
        return swe.sidereal_time(jd_tt - self.delta) * pi / 12 + self.longitude

    def vector(self, body, jd_tt):
        x, y, z = (KM_PER_AU * c for c in swe.apparent_vector(body, jd_tt))
        angle = self.sidereal_time(jd_tt)
        return x - self.from_axis * cos(angle), y - self.from_axis * sin(angle), z - self.from_equator

    def discs(self, jd_tt):
        """Separation, and the limits of the outer and the inner contacts."""
        sun, moon = self.vector(SUN, jd_tt), self.vector(MOON, jd_tt)
        r_sun, r_moon = (sqrt(sum(x * x for x in v)) for v in (sun, moon))
        chord = sqrt(sum((s / r_sun - m / r_moon) ** 2 for s, m in zip(sun, moon)))
        radius = asin(SUN_RADIUS / r_sun)
        return 2 * asin(chord / 2), radius + asin(OUTER / r_moon), radius - asin(INNER / r_moon)

    def horizontal(self, jd_tt):
        """Altitude and azimuth of the Sun."""
        x, y, z = self.vector(SUN, jd_tt)
        angle = self.sidereal_time(jd_tt) - atan2(y, x)
        declination, latitude = atan2(z, sqrt(x * x + y * y)), self.latitude
        altitude = asin(sin(latitude) * sin(declination) + cos(latitude) * cos(declination) * cos(angle))
        azimuth = atan2(-sin(angle) * cos(declination),
                        sin(declination) * cos(latitude) - cos(declination) * sin(latitude) * cos(angle))
        return altitude, azimuth % (2 * pi)


def nearest(sky, jd_tt):
    """The middle of seconds around which the separation is least."""
    steps = [jd_tt + minutes * 60 * SECOND for minutes in range(-210, 211, 10)]
    start = min(steps, key=lambda t: sky.discs(t)[0])
    low, high = start - 600 * SECOND, start + 600 * SECOND
    while high - low > PRECISION:
        a, b = low + (high - low) / 3, high - (high - low) / 3
        if sky.discs(a)[0] < sky.discs(b)[0]:
            high = b
        else:
            low = a
    return (low + high) / 2


def seen(sky, first, last):
    """First and last moment between the two at which the Sun is up, or nothing."""
    def height(t):
        return sky.horizontal(t)[0] - HORIZON

    count = 240
    steps = [first + (last - first) * i / count for i in range(count + 1)]
    up = [i for i, t in enumerate(steps) if height(t) >= 0]
    if not up:
        return None
    start = first if up[0] == 0 else swe.root(height, steps[up[0] - 1], steps[up[0]], PRECISION)
    end = last if up[-1] == count else swe.root(height, steps[up[-1]], steps[up[-1] + 1], PRECISION)
    return start, end


def row(name, place, greatest_tt, delta, clock):
    sky = Sky(place, delta)
    middle = nearest(sky, greatest_tt)
    separation, outer, inner = sky.discs(middle)
    if separation >= outer:
        return

    def contact(limit, side):
        ends = sorted([middle, middle + side * 0.13])
        return swe.root(lambda t: sky.discs(t)[0] - abs(sky.discs(t)[limit]), *ends, PRECISION)

    is_central = separation < abs(inner)
    kind = "partial" if not is_central else "total" if inner < 0 else "annular"
    c1, c4 = contact(1, -1), contact(1, 1)
    times = [c1, contact(2, -1) if is_central else None, middle, contact(2, 1) if is_central else None, c4]
    attributes = swe.solar_eclipse_at(middle - delta, place[1], place[0])
    altitude, azimuth = sky.horizontal(middle)
    text = " ".join(clock(t) for t in times)
    up = seen(sky, c1, c4)
    visible = " ".join(clock(t) for t in up) if up else "- -"
    covered = f"{attributes[8]:.4f} {attributes[2]:.4f}" if attributes[8] > 0 else "- -"
    print(f"{name} {kind} {text} {covered} {degrees(altitude):.2f} {degrees(azimuth):.2f} {visible}")


def path_places(jd_ut1):
    """Three places near the central line."""
    for minutes in (-50, 0, 45):
        longitude, latitude, _ = swe.solar_eclipse_where(jd_ut1 + minutes * 60 * SECOND)
        yield round(latitude, 2), round(longitude, 2)


def eclipse(jd_ut1, flags):
    delta = swe.set_rotation(jd_ut1)
    greatest_tt = jd_ut1 + delta
    to_utc = swe.tt_minus_utc(jd_ut1) * SECOND
    day = round(swe.unix_seconds(jd_ut1)) // 86400 * 86400

    def clock(jd_tt):
        return "-" if jd_tt is None else f"{swe.unix_seconds(jd_tt - to_utc) - day:.1f}"

    print(f"eclipse {day}")
    for number, place in enumerate(PLACES):
        row(number, place, greatest_tt, delta, clock)
    if flags & 12:  # total or annular somewhere
        for place in path_places(jd_ut1):
            row(f"{place[0]},{place[1]}", place, greatest_tt, delta, clock)


def main():
    for latitude, longitude in PLACES:
        print(f"place {latitude} {longitude}")
    jd = swe.julian_day(2000, 1, 1)
    while True:
        swe.set_rotation(jd)
        flags, times = swe.eclipse_search("swe_sol_eclipse_when_glob", jd)
        if times[0] >= swe.julian_day(2041, 1, 1):
            break
        eclipse(times[0], flags)
        jd = times[0] + 1


main()
