"""The Sun and the Moon by the Swiss Ephemeris on DE431."""
import ctypes
import ctypes.util

import numpy as np

SUN, MOON, NUTATION = 0, 1, -1
EPHEMERIS_FILES = 2
TRUE_PLACE = 16
WITHOUT_NUTATION = 64
DIRECTORY = b"/usr/share/libswe/ephe"
J2000 = 2451545.0
DAYS_PER_CENTURY = 36525.0

_library = ctypes.CDLL(ctypes.util.find_library("swe"))
_library.swe_set_ephe_path(DIRECTORY)
_library.swe_calc.argtypes = [ctypes.c_double, ctypes.c_int32, ctypes.c_int32,
                              ctypes.POINTER(ctypes.c_double), ctypes.c_char_p]


def _calc(body, julian_dates, flags):
    found = (ctypes.c_double * 6)()
    message = ctypes.create_string_buffer(256)
    rows = np.empty((len(julian_dates), 6))
    for row, date in zip(rows, julian_dates):
        # Without its files the library falls back on a rougher model and says so in the flags only.
        if not _library.swe_calc(date, body, flags, found, message) & EPHEMERIS_FILES:
            raise RuntimeError(message.value.decode())
        row[:] = found
    return rows.T


def direction(body, julian_dates):
    """Apparent longitude and latitude in degrees at dates of Terrestrial Time, one row each.

    Mean ecliptic and equinox of date. Light time and aberration are in them, nutation is not.
    """
    return _calc(body, julian_dates, EPHEMERIS_FILES | WITHOUT_NUTATION)[0:2]


def distance(body, julian_dates):
    """From the centre of the Earth at the instant itself, in au.

    With light time the library's includes the way of the Earth while the light travels, 38 km for the Moon.
    """
    return _calc(body, julian_dates, EPHEMERIS_FILES | TRUE_PLACE)[2]


def nutation(julian_dates):
    """In longitude and in obliquity, degrees, one row each."""
    return _calc(NUTATION, julian_dates, EPHEMERIS_FILES)[2:4]


def centuries(julian_dates):
    return (julian_dates - J2000) / DAYS_PER_CENTURY
