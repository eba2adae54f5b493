#!/usr/bin/env python3
"""Writes rise_set_2024.txt: rise and set of every day of 2024 from a precise ephemeris.

Source: PyEphem (Debian package python3-ephem). Over 2000 to 2040 its geocentric places agree with the Swiss
Ephemeris within 0.0004 degrees for the Sun and 0.004 degrees for the Moon.

Conventions, those of the engine: an event is the moment at which the geocentric altitude of the centre,
without refraction and parallax, passes -0.833 degrees (Sun) or +8 arc minutes (Moon). The offset of a day is the
zone's at 09:00. The rise is the first within the local day; the Sun's set is the first after that rise, the
Moon's the first after local midnight, both looked for over 48 hours.
Run with the system's Python: /usr/bin/python3 make_rise_set_2024.py > rise_set_2024.txt
"""
from datetime import date, datetime, timedelta
from math import asin, cos, pi, radians, sin
from zoneinfo import ZoneInfo

import ephem

PLACES = [
    ("San_Francisco", "37.78549082", "-122.39184303", "America/Los_Angeles"),
    ("Helsinki", "60.1699", "24.9384", "Europe/Helsinki"),
    ("Bergen", "60.2", "5.3221", "Europe/Oslo"),
    ("London", "51.5074", "-0.1278", "Europe/London"),
    ("New_York", "40.7128", "-74.006", "America/New_York"),
    ("St_Johns", "47.5615", "-52.7126", "America/St_Johns"),
    ("Cairo", "30.05", "31.25", "Africa/Cairo"),
    ("Delhi", "28.6139", "77.209", "Asia/Kolkata"),
    ("Kathmandu", "27.7172", "85.324", "Asia/Kathmandu"),
    ("Honolulu", "21.3069", "-157.8583", "Pacific/Honolulu"),
    ("Quito", "-0.1807", "-78.4678", "America/Guayaquil"),
    ("Apia", "-13.8333", "-171.7667", "Pacific/Apia"),
    ("Lord_Howe", "-31.55", "159.0833", "Australia/Lord_Howe"),
    ("Chatham", "-43.95", "-176.56", "Pacific/Chatham"),
    ("Ushuaia", "-54.8019", "-68.303", "America/Argentina/Ushuaia"),
]
STEP = timedelta(minutes=30)  # no body passes its altitude twice within it up to 60.2 degrees of latitude


def altitude(body, moment, latitude, longitude):
    """Geocentric altitude of the centre in degrees, without refraction."""
    observer.date = moment
    place = body(observer.date)
    hour_angle = observer.sidereal_time() + longitude - place.g_ra
    return asin(sin(latitude) * sin(place.g_dec) + cos(latitude) * cos(place.g_dec) * cos(hour_angle)) * 180 / pi


def crossings(body, level, begin, end, latitude, longitude):
    """All moments at which the body passes the level, with their direction."""
    def height(moment):
        return altitude(body, moment, latitude, longitude) - level

    found, low, before = [], begin, height(begin)
    while low < end:
        high = low + STEP
        after = height(high)
        if (before < 0) != (after < 0):
            a, b = low, high
            while b - a > timedelta(milliseconds=50):
                middle = a + (b - a) / 2
                a, b = (middle, b) if (height(middle) < 0) == (before < 0) else (a, middle)
            found.append((a, before < 0))
        low, before = high, after
    return found


def minutes(moment, midnight):
    return "-" if moment is None else "%.2f" % ((moment - midnight).total_seconds() / 60)


def first(events, rising, begin, hours):
    end = begin + timedelta(hours=hours)
    return next((t for t, up in events if up == rising and begin <= t <= end), None)


observer = ephem.Observer()
observer.lon = observer.lat = "0"


def main():
    print("# Rise and set of every day of 2024 from PyEphem; made by make_rise_set_2024.py, which says how.")
    print("# place name latitude longitude zone")
    print("# date offset(s) sunrise sunset moonrise moonset, in minutes after local midnight, - for none")
    for name, latitude, longitude, zone in PLACES:
        print("place", name, latitude, longitude, zone)
        where = radians(float(latitude)), radians(float(longitude))
        span = datetime(2023, 12, 31), datetime(2025, 1, 4)
        sun = crossings(ephem.Sun, -0.833, *span, *where)
        moon = crossings(ephem.Moon, 8 / 60, *span, *where)
        for number in range(366):
            day = date(2024, 1, 1) + timedelta(days=number)
            morning = datetime(day.year, day.month, day.day, 9, tzinfo=ZoneInfo(zone))
            offset = morning.utcoffset()
            midnight = datetime(day.year, day.month, day.day) - offset
            sunrise = first(sun, True, midnight, 24)
            end = midnight + timedelta(hours=48)
            sunset = first(sun, False, sunrise or midnight, (end - (sunrise or midnight)).total_seconds() / 3600)
            print(day, int(offset.total_seconds()), *(minutes(t, midnight) for t in (
                sunrise, sunset, first(moon, True, midnight, 24), first(moon, False, midnight, 48))))


if __name__ == "__main__":
    main()
