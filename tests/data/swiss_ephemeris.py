"""The Swiss Ephemeris (Debian packages libswe2.0 and swe-basic-data) for the makers of tables beside this file.

It reads DE431. Time scales are set by hand: TT − UTC from the leap seconds, and as the Earth's rotation UT1 by the
Swiss Ephemeris up to the last leap second of 2017, UT1 = UTC after it.
"""
import ctypes
import ctypes.util
from math import cos, floor, radians, sqrt

SUN, MOON, NUTATION = 0, 1, -1
TRUE_PLACE, EQUATORIAL, XYZ, TOPOCENTRIC = 16, 2048, 4096, 32768
RISE, SET, CENTRE, NO_REFRACTION, SLOW_METHOD = 1, 2, 256, 512, 32768
CIRCUMPOLAR = -2
FILES = 2
LEAP_SECONDS = [(2451179.5, 32), (2453736.5, 33), (2454832.5, 34), (2456109.5, 35), (2457204.5, 36), (2457754.5, 37)]
JD_OF_1970 = 2440587.5

_lib = ctypes.CDLL(ctypes.util.find_library("swe"))
_lib.swe_deltat_ex.restype = ctypes.c_double
_lib.swe_sidtime.restype = ctypes.c_double
_lib.swe_set_ephe_path(b"/usr/share/libswe/ephe")
_message = ctypes.create_string_buffer(256)


def _double(x):
    return ctypes.c_double(x)


def position(body, flags, jd_tt):
    """Three coordinates and their rates a day."""
    x = (ctypes.c_double * 6)()
    used = _lib.swe_calc(_double(jd_tt), body, FILES | flags, x, _message)
    if used < 0 or not used & FILES:
        raise RuntimeError(_message.value.decode())
    return list(x)


def apparent_vector(body, jd_tt):
    """Where the body is seen from the centre of the Earth, at the distance that it has at the instant itself: true
    equator and equinox of date, astronomical units."""
    direction = position(body, EQUATORIAL | XYZ, jd_tt)[:3]
    distance = position(body, EQUATORIAL | TRUE_PLACE, jd_tt)[2]
    with_light_time = sqrt(sum(x * x for x in direction))
    return [x * distance / with_light_time for x in direction]


def tt_minus_utc(jd_utc):
    """Seconds, from 1999 on."""
    return 32.184 + [tai for since, tai in LEAP_SECONDS if jd_utc >= since][-1]


def set_rotation(jd_utc):
    """How far UT1 is behind TT: what the Swiss Ephemeris takes from now on. Days."""
    _lib.swe_set_delta_t_userdef(_double(-1e-10))  # back to its own
    delta = _lib.swe_deltat_ex(_double(jd_utc), FILES, _message)
    if jd_utc > LEAP_SECONDS[-1][0]:
        delta = tt_minus_utc(jd_utc) / 86400
    _lib.swe_set_delta_t_userdef(_double(delta))
    return delta


def sidereal_time(jd_ut1):
    """Apparent, at Greenwich, hours."""
    return _lib.swe_sidtime(_double(jd_ut1))


def lead_of_sidereal_time(jd_ut1, jd_tt):
    """Days by which it is ahead of that of IAU 2006: 0.2 ms at most before 2050; from then on, where it changes to
    a formula for the distant future, -0.14 to -0.19 seconds."""
    days, t = jd_ut1 - 2451545, (jd_tt - 2451545) / 36525
    rotation = 360 * (days % 1 + 0.7790572732640 + 0.00273781191135448 * days)
    precession = (0.014506 + (4612.156534 + (1.3915817 - (0.00000044 + 0.000029956 * t) * t) * t) * t) / 3600
    obliquity, _, nutation = position(NUTATION, 0, jd_tt)[:3]
    mean = sidereal_time(jd_ut1) * 15 - nutation * cos(radians(obliquity))
    return ((mean - rotation - precession + 180) % 360 - 180) / 360


def set_place(longitude, latitude):
    """At sea level, for topocentric places from now on."""
    _lib.swe_set_topo(_double(longitude), _double(latitude), _double(0))


def passage(jd_ut1, body, kind, longitude, latitude, horizon):
    """The next rise or set after the moment over a horizon of that true altitude, by the slow method of
    swe_rise_trans_true_hor; none within some days."""
    found, place = ctypes.c_double(), (ctypes.c_double * 3)(longitude, latitude, 0)
    status = _lib.swe_rise_trans_true_hor(
        _double(jd_ut1), body, None, FILES, kind | NO_REFRACTION | SLOW_METHOD, place, _double(0), _double(0),
        _double(horizon), ctypes.byref(found), _message)
    if status == CIRCUMPOLAR:
        return None
    if status < 0:
        raise RuntimeError(_message.value.decode())
    return found.value


def eclipse_search(name, jd_ut):
    """The next eclipse after the date by swe_sol_eclipse_when_glob or swe_lun_eclipse_when: its flags and times."""
    times = (ctypes.c_double * 10)()
    flags = getattr(_lib, name)(_double(jd_ut), FILES, 0, times, 0, _message)
    if flags < 0:
        raise RuntimeError(_message.value.decode())
    return flags, list(times)


def solar_eclipse_at(jd_ut1, longitude, latitude):
    """Attributes of swe_sol_eclipse_how."""
    place, attributes = (ctypes.c_double * 3)(longitude, latitude, 0), (ctypes.c_double * 20)()
    _lib.swe_sol_eclipse_how(_double(jd_ut1), FILES, place, attributes, _message)
    return list(attributes)


def solar_eclipse_where(jd_ut1):
    """Longitude, latitude and attributes of the point nearest to the axis, by swe_sol_eclipse_where."""
    place, attributes = (ctypes.c_double * 10)(), (ctypes.c_double * 20)()
    _lib.swe_sol_eclipse_where(_double(jd_ut1), FILES, place, attributes, _message)
    return place[0], place[1], list(attributes)


def lunar_eclipse_at(jd_ut1):
    """Attributes of swe_lun_eclipse_how."""
    place, attributes = (ctypes.c_double * 3)(), (ctypes.c_double * 20)()
    _lib.swe_lun_eclipse_how(_double(jd_ut1), FILES, place, attributes, _message)
    return list(attributes)


def tt_of_ut1(jd_ut1):
    return jd_ut1 + _lib.swe_deltat_ex(_double(jd_ut1), FILES, _message)


def julian_day(year, month, day):
    """Of the date's beginning, Gregorian."""
    a = (14 - month) // 12
    y, m = year + 4800 - a, month + 12 * a - 3
    return day + (153 * m + 2) // 5 + 365 * y + y // 4 - y // 100 + y // 400 - 32045.5


def unix_seconds(jd):
    return (jd - JD_OF_1970) * 86400


def root(function, low, high, tolerance):
    """By halving; the signs at both ends differ."""
    is_positive = function(low) > 0
    while high - low > tolerance:
        middle = (low + high) / 2
        if (function(middle) > 0) == is_positive:
            low = middle
        else:
            high = middle
    return (low + high) / 2
