#!/usr/bin/env python3
"""Writes rise_set_records.txt: whole rise, set and twilight records of chosen days.

The search by parabolas and the series under it are written down here once more, separately from the engine
and in another language, term by term in the printed order. The days are chosen for what is hard: high
latitudes, days without events, pairs of crossings in one step, zones of half and quarter hours.
Run: ./make_rise_set_records.py > rise_set_records.txt
"""
from datetime import date, timedelta
from math import atan, cos, floor, sin, sqrt

P2, ARC = 6.283185307, 206264.8062


def frac(x):
    return x - floor(x)


def equatorial(x, y, z):
    rho = sqrt(1 - z * z)
    ra = 7.639437268629327 * atan(y / (x + rho))
    return 57.29577951471995 * atan(z / rho), ra + 24 if ra < 0 else ra


def sun(T):
    m = P2 * frac(0.993133 + 99.997361 * T)
    dl = 6893 * sin(m) + 72 * sin(2 * m)
    lam = P2 * frac(0.7859453 + m / P2 + (6191.2 * T + dl) / 1296000)
    return equatorial(cos(lam), 0.91748 * sin(lam), 0.39778 * sin(lam))


def moon(T):
    l0 = frac(0.606433 + 1336.855225 * T)
    l = P2 * frac(0.374897 + 1325.55241 * T)
    ls = P2 * frac(0.993133 + 99.997361 * T)
    d = P2 * frac(0.827361 + 1236.853086 * T)
    f = P2 * frac(0.259086 + 1342.227825 * T)
    dl = 0.0
    for c, i, j, k, n in ((22640, 1, 0, 0, 0), (-4586, 1, 0, 0, -2), (2370, 0, 0, 0, 2), (769, 2, 0, 0, 0),
                          (-668, 0, 1, 0, 0), (-412, 0, 0, 2, 0), (-212, 2, 0, 0, -2), (-206, 1, 1, 0, -2),
                          (192, 1, 0, 0, 2), (-165, 0, 1, 0, -2), (-125, 0, 0, 0, 1), (-110, 1, 1, 0, 0),
                          (148, 1, -1, 0, 0), (-55, 0, 0, 2, -2)):
        dl += c * sin(i * l + j * ls + k * f + n * d)
    s = f + (dl + 412 * sin(2 * f) + 541 * sin(ls)) / ARC
    h = f - 2 * d
    n = (-526 * sin(h) + 44 * sin(l + h) - 31 * sin(h - l) - 23 * sin(ls + h) + 11 * sin(h - ls)
         - 25 * sin(f - 2 * l) + 21 * sin(f - l))
    lam, beta = P2 * frac(l0 + dl / 1296000), (18520 * sin(s) + n) / ARC
    v, w = cos(beta) * sin(lam), sin(beta)
    return equatorial(cos(beta) * cos(lam), 0.91748 * v - 0.39778 * w, 0.39778 * v + 0.91748 * w)


def sin_altitude(body, mjd, longitude, latitude):
    t = (mjd - 51544.5) / 36525
    dec, ra = body(t)
    theta = 280.46061837 + 360.98564736629 * (mjd - 51544.5) + 0.000387933 * t * t - t * t * t / 38710000
    tau = 15 * ((theta % 360) / 15 + longitude / 15 - ra)
    rad = 0.0174532925
    return (sin(rad * latitude) * sin(rad * dec) + cos(rad * latitude) * cos(rad * dec) * cos(rad * tau))


def search(body, threshold, mjd0, zone, longitude, latitude, rise_clears_set):
    """Returns rise and set in hours or None, and whether a pair of crossings met on the way."""
    def sample(hour):
        return sin_altitude(body, mjd0 - zone / 24 + hour / 24, longitude, latitude) - threshold

    rise = set_ = 0.0
    has_rise = has_set = pair = False
    ym, h = sample(0), 1
    while h < 49 and not (has_rise and has_set):
        y0, yp = sample(h), sample(h + 1)
        a, b = (ym + yp) / 2 - y0, (yp - ym) / 2
        discriminant = b * b - 4 * a * y0
        if discriminant > 0 and a != 0:
            xe, dx = -b / (2 * a), sqrt(discriminant) / 2 / abs(a)
            z1, z2 = xe - dx, xe + dx
            roots = (abs(z1) <= 1) + (abs(z2) <= 1)
            if z1 < -1:
                z1 = z2
            if roots == 1 and ym < 0:
                if not has_rise and h + z1 <= 24:
                    rise, has_rise = h + z1, True
                    has_set = has_set and not rise_clears_set
            elif roots == 1:
                if not has_set:
                    set_, has_set = h + z1, True
            elif roots == 2:
                pair = True
                low = (a * xe + b) * xe + y0 < 0
                rise, set_ = (h + z2, h + z1) if low else (h + z1, h + z2)
        h, ym = h + 2, yp
    return rise if has_rise else None, set_ if has_set else None, pair


def rounded(t):
    return floor(t * 60 + 0.5)


def clock(t):
    return "%02d:%02d" % divmod(rounded(t), 60)


def texts(rise, set_):
    if rise is None and set_ is None:
        return "--", "--"
    mark = lambda t: "_**" if t > 24 else ""
    return ("--:--" if rise is None else clock(rise) + mark(rise),
            "--:--" if set_ is None else clock(set_ - 24 if set_ > 24 else set_) + mark(set_))


def record(day, latitude, longitude, seconds, twilight):
    mjd0, zone = float((day - date(1858, 11, 17)).days), seconds / 3600
    place = (mjd0, zone, longitude, latitude)
    sunset_level = -0.01453808048588594
    level = (-0.1045284631486492, -0.20791169058366948, -0.3090169940335378)[twilight]
    srise, sset, pair1 = search(sun, sunset_level, *place, True)
    tbegin, tend, pair2 = search(sun, level, *place, True)
    mrise, mset, pair3 = search(moon, 0.00232710356629117, *place, False)
    rise = -1 if srise is None else rounded(srise)
    set_ = -1 if sset is None else rounded(sset - 24 if sset > 24 else sset)
    if set_ != -1 and set_ < rise:
        set_ += 1440
    length = (1440 if set_ == -1 else set_) - (0 if rise == -1 else rise)
    mr = -1 if mrise is None else rounded(mrise)
    ms = -1 if mset is None else rounded(mset - 24) + 1440 if mset > 24 else rounded(mset)
    return (texts(srise, sset) + texts(tbegin, tend) + texts(mrise, mset) + (rise, set_, length, mr, ms),
            pair1 or pair2 or pair3)


HEADER = """# Rise, set and twilight records of the search by parabolas; made by make_rise_set_records.py.
# date latitude longitude offset(s) twilight sunrise sunset begin end moonrise moonset (24-hour texts, _ for a
# blank) and minutes: sunrise sunset day-length moonrise moonset"""

PLACES = [(37.78549082, -122.39184303, -25200), (-33.8688, 151.2093, 36000), (27.7172, 85.324, 20700),
          (28.6139, 77.209, 19800), (-43.95, -176.56, 45900), (0.0, 0.0, 0), (60.1699, 24.9384, 10800),
          (64.1466, -21.9426, 0), (65.0, 25.47, 7200), (66.5, 25.73, 7200), (67.5, 133.39, 36000),
          (69.6492, 18.9553, 3600), (71.2906, -156.7886, -32400), (78.2232, 15.6267, 7200),
          (-54.8019, -68.303, -10800), (-66.28, 110.53, 28800), (-77.85, 166.67, 43200), (85.0, 0.0, 0),
          (89.9, 0.0, 0), (90.0, 0.0, 0), (-90.0, 0.0, 43200)]


def ordinary_days():
    for index, place in enumerate(PLACES):
        for step in range(10):
            yield date(2024, 1, 3) + timedelta(days=37 * step + 5 * index), place, (index + step) % 3


def days_with_pairs():
    """Days on which a body grazes its altitude, two of each place."""
    for place in PLACES:
        days = (date(2023, 1, 1) + timedelta(days=n) for n in range(731))
        found = [day for day in days if record(day, *place, 0)[1]]
        for day in found[:: max(1, len(found) // 4)]:
            yield day, place, 0


def odd(row):
    """A rise beyond hour 24, or a day length below zero."""
    return any(text[0] == "2" and text[:2] >= "24" and text.endswith("_**") for text in row[:6]) or row[8] < 0


def odd_days():
    """Days on which a pair met after the rise takes the place of its time."""
    for latitude in range(60, 72):
        place = (float(latitude), -156.75, -32400)
        days = (date(2023, 1, 1) + timedelta(days=n) for n in range(731))
        for day in [day for day in days if odd(record(day, *place, 1)[0])][:4]:
            yield day, place, 1


if __name__ == "__main__":
    print(HEADER)
    rows = set()
    for source in (ordinary_days, days_with_pairs, odd_days):
        print("# " + source.__name__.replace("_", " "))
        for day, place, twilight in source():
            print(day, *place, twilight, *record(day, *place, twilight)[0])
