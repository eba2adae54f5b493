"""The Swiss Ephemeris (Debian packages libswe2.0 and swe-basic-data) for the makers of tables beside this file.

It reads DE431. Time scales are set by hand: TT − UTC from the leap seconds, and as the Earth's rotation UT1 by the
Swiss Ephemeris up to the last leap second of 2017, UT1 = UTC after it.
"""
import ctypes
import ctypes.util
from math import floor

SUN, MOON = 0, 1
EQUATORIAL, XYZ = 2048, 4096
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
