#!/usr/bin/env python3
"""Writes series_values.txt: raw values of the short series and formulas of the astronomy engine.

The formulas are written down here once more, from the printed series, in 50-digit decimals, so that no
rounding of a double takes part.
Run: ./make_series_values.py > series_values.txt
"""
from decimal import ROUND_FLOOR, Decimal as D, getcontext

getcontext().prec = 50
PI = D("3.14159265358979323846264338327950288419716939937510582")


def reduced(x):
    return x % (2 * PI)


def sin(x):
    x = reduced(D(x))
    term, total, n = x, x, 1
    while abs(term) > D("1e-45"):
        term = -term * x * x / ((n + 1) * (n + 2))
        total, n = total + term, n + 2
    return total


def cos(x):
    return sin(D(x) + PI / 2)


def atan(x):
    """Halves the angle until Gregory's series is quick."""
    x, factor = D(x), 1
    while abs(x) > D("0.05"):
        x, factor = x / (1 + (1 + x * x).sqrt()), factor * 2
    term, total, n = x, x, 1
    while abs(term) > D("1e-48"):
        term, n = -term * x * x, n + 2
        total += term / n
    return factor * total


def asin(x):
    return atan(x / (1 - x * x).sqrt())


def atan2(y, x):
    """In [0, 2 pi)."""
    angle = atan(y / x)
    if x < 0:
        return angle + PI
    return angle + 2 * PI if y < 0 else angle


def fraction_of(x):
    return x - x.to_integral_value(rounding=ROUND_FLOOR)


P2 = D("6.283185307")
ARC = D("206264.8062")
COSEPS, SINEPS = D("0.91748"), D("0.39778")
RAD = D("0.0174532925")


def turns(a, b, T):
    return fraction_of(D(a) + D(b) * T)


def equatorial(X, Y, Z):
    rho = (1 - Z * Z).sqrt()
    dec = (360 / P2) * atan(Z / rho)
    ra = (48 / P2) * atan(Y / (X + rho))
    return dec, ra + 24 if ra < 0 else ra


def minisun(T):
    M = P2 * turns("0.993133", "99.997361", T)
    DL = 6893 * sin(M) + 72 * sin(2 * M)
    L = P2 * fraction_of(D("0.7859453") + M / P2 + (D("6191.2") * T + DL) / 1296000)
    return equatorial(cos(L), COSEPS * sin(L), SINEPS * sin(L))


LONGITUDE_TERMS = [  # coefficient and multiples of l, ls, F, D
    (22640, 1, 0, 0, 0), (-4586, 1, 0, 0, -2), (2370, 0, 0, 0, 2), (769, 2, 0, 0, 0), (-668, 0, 1, 0, 0),
    (-412, 0, 0, 2, 0), (-212, 2, 0, 0, -2), (-206, 1, 1, 0, -2), (192, 1, 0, 0, 2), (-165, 0, 1, 0, -2),
    (-125, 0, 0, 0, 1), (-110, 1, 1, 0, 0), (148, 1, -1, 0, 0), (-55, 0, 0, 2, -2)]


def minimoon(T):
    L0 = turns("0.606433", "1336.855225", T)
    l = P2 * turns("0.374897", "1325.552410", T)
    ls = P2 * turns("0.993133", "99.997361", T)
    d = P2 * turns("0.827361", "1236.853086", T)
    F = P2 * turns("0.259086", "1342.227825", T)
    DL = sum(c * sin(i * l + j * ls + k * F + m * d) for c, i, j, k, m in LONGITUDE_TERMS)
    S = F + (DL + 412 * sin(2 * F) + 541 * sin(ls)) / ARC
    H = F - 2 * d
    N = (-526 * sin(H) + 44 * sin(l + H) - 31 * sin(H - l) - 23 * sin(ls + H) + 11 * sin(H - ls)
         - 25 * sin(F - 2 * l) + 21 * sin(F - l))
    lam = P2 * fraction_of(L0 + DL / 1296000)
    beta = (18520 * sin(S) + N) / ARC
    V, W = cos(beta) * sin(lam), sin(beta)
    return equatorial(cos(beta) * cos(lam), COSEPS * V - SINEPS * W, SINEPS * V + COSEPS * W)


def sidereal_degrees(mjd):
    d = mjd - D("51544.5")
    T = d / 36525
    theta = D("280.46061837") + D("360.98564736629") * d + D("0.000387933") * T * T - T * T * T / 38710000
    return 360 * fraction_of(theta / 360)


def sin_alt(moon, mjd0, hour, longitude, latitude):
    mjd = mjd0 + hour / 24
    T = (mjd - D("51544.5")) / 36525
    dec, ra = minimoon(T) if moon else minisun(T)
    tau = 15 * (sidereal_degrees(mjd) / 15 + longitude / 15 - ra)
    return (sin(latitude * RAD) * sin(dec * RAD)
            + cos(latitude * RAD) * cos(dec * RAD) * cos(tau * RAD))


DEG = PI / 180


def sun_position(d, longitude, latitude):
    """Low-precision Sun of the Astronomical Almanac; degrees in, altitude and azimuth in degrees out."""
    L = reduced(D("4.894967873435816") + D("0.017202792393721557") * d)
    g = reduced(D("6.240040768070287") + D("0.017201970343643867") * d)
    lam = L + D("0.03342305517569141") * sin(g) + D("0.00034906585039886593") * sin(2 * g)
    eps = D("0.4090877233749509") - D("6.981317007977318e-09") * d
    ra = atan2(cos(eps) * sin(lam), cos(lam))
    dec = asin(sin(eps) * sin(lam))
    H = (longitude + D("280.46061837") + D("360.98564736629") * d) * DEG - ra
    phi = latitude * DEG
    sinh = sin(dec) * sin(phi) + cos(dec) * cos(phi) * cos(H)
    azimuth = atan2(-cos(dec) * cos(phi) * sin(H), sin(dec) - sin(phi) * sinh)
    return asin(sinh) / DEG, azimuth / DEG


def moon_position(mjd, longitude, latitude):
    """Azimuth through the arctangent, unlike the arccosine of the engine. The short figure of RAD makes whole
    turns of the hour angle felt in the seventh decimal: negative angles are moved up, others are left."""
    dec, ra = minimoon((mjd - D("51544.5")) / 36525)
    hour_angle = longitude + sidereal_degrees(mjd) - 15 * ra
    while hour_angle < 0:
        hour_angle += 360
    H, delta, phi = hour_angle * RAD, dec * RAD, latitude * DEG
    sinh = sin(phi) * sin(delta) + cos(phi) * cos(delta) * cos(H)
    azimuth = atan2(-cos(delta) * cos(phi) * sin(H), sin(delta) - sin(phi) * sinh)
    return asin(sinh) / DEG, azimuth / DEG


def show(*values):
    print(" ".join(v if isinstance(v, str) else format(v, ".15f") for v in values))


DAYS = ["36525", "45000.25", "51544.5", "51587.125", "52000.875", "53371.75", "54321.0625", "55197.5",
        "56109.3125", "57023.6875", "58849.125", "60369", "60400.5", "60482.84375", "60665.25", "62502.75",
        "63000.625", "64500.4375", "66153.96875", "73050"]
PLACES = [("-122.375", "37.75"), ("24.9375", "60.15625"), ("18.9375", "69.625"), ("151.25", "-33.875"),
          ("0", "0"), ("179.5", "-77.875"), ("85.3125", "27.6875"), ("-68.3125", "-54.8125")]


def main():
    print("# Raw values of the engine's series; made by make_series_values.py, in 50-digit arithmetic.")
    print("# sun|moon MJD declination(degrees) right-ascension(hours)")
    for day in DAYS:
        T = (D(day) - D("51544.5")) / 36525
        show("sun", day, *minisun(T))
        show("moon", day, *minimoon(T))
    print("# sidereal MJD longitude Greenwich's-time-plus-longitude(hours)")
    for day, (longitude, _) in zip(DAYS, PLACES * 3):
        show("sidereal", day, longitude, sidereal_degrees(D(day)) / 15 + D(longitude) / 15)
    print("# sin_alt object(1 Moon, 2 Sun) MJD-of-0h hour longitude latitude sine")
    for index, day in enumerate(DAYS):
        longitude, latitude = PLACES[index % len(PLACES)]
        mjd0, hour = D(day) // 1, D(day) % 1 * 24 + (D(index) if index % 2 else -D(index))
        for body in (1, 2):
            show("sin_alt", str(body), str(mjd0), str(hour), longitude, latitude,
                 sin_alt(body == 1, mjd0, hour, D(longitude), D(latitude)))
    print("# sun_position|moon_position MJD longitude latitude altitude azimuth(degrees)")
    for index, day in enumerate(DAYS):
        for longitude, latitude in (PLACES[index % len(PLACES)], PLACES[(index + 3) % len(PLACES)]):
            show("sun_position", day, longitude, latitude,
                 *sun_position(D(day) - D("51544.5"), D(longitude), D(latitude)))
            show("moon_position", day, longitude, latitude, *moon_position(D(day), D(longitude), D(latitude)))


if __name__ == "__main__":
    main()
