#!/usr/bin/env python3
"""Writes elevation_events.txt: the moments at which a body reaches an elevation, for places with fixed offsets.

The positions are those of make_series_values.py (50-digit arithmetic); the search through the hours is
written down here once more, separately from the engine.
Run: ./make_elevation_events.py > elevation_events.txt
"""
from datetime import datetime, timedelta
from decimal import Decimal as D

from make_series_values import moon_position, sun_position


def position(body, day, hour, longitude, latitude):
    """Altitude and azimuth at an hour of a universal day."""
    mjd = D((day - datetime(1858, 11, 17)).days) + D(hour) / 24
    if body == "sun":
        return sun_position(mjd - D("51544.5"), D(longitude), D(latitude))
    return moon_position(mjd, D(longitude), D(latitude))


def refined(elevation, low, high, reference, at):
    while True:
        middle = (low + high) / 2
        if middle in (low, high):
            return None
        altitude, azimuth = at(middle)
        if abs(elevation - altitude) <= D("0.05"):
            return middle, elevation, azimuth
        rising = altitude > reference
        if (rising and elevation < altitude) or (not rising and elevation > altitude):
            high = middle
        else:
            low, reference = middle, altitude


def events(body, elevation, start, latitude, longitude, offset, intermediate):
    elevation = D(elevation)
    zone = D(offset) / 3600 if body == "moon" else D(int(offset / 3600))

    def row(hour, altitude, azimuth):
        shown = D(hour) + zone
        return shown + 24 if body == "sun" and shown < 0 else shown, altitude, azimuth

    day = datetime(start.year, start.month, start.day)
    hour = start.hour + start.minute / 60
    end, previous, count, result = hour + 24, None, 0, []
    while hour < end and count < 2:
        if hour >= 24:
            hour, end, day = hour - 24, end - 24, day + timedelta(days=1)
        at = lambda h: position(body, day, h, longitude, latitude)
        altitude, azimuth = at(hour)
        hit = abs(elevation - altitude) <= D("0.05")
        if not hit and previous is not None and altitude * previous < 0:
            event = refined(elevation, hour - 1, hour, previous, at)
            if event:
                result.append(row(*event))
                count += 1
        if hit or (intermediate and result):
            result.append(row(hour, altitude, azimuth))
        hour, previous = hour + 1, altitude
    return result


CASES = [  # body, elevation, universal start, latitude, longitude, offset (s), intermediate values
    ("sun", "0", datetime(2024, 3, 20, 1, 17), "60.1699", "24.9384", 7200, 0),
    ("sun", "0", datetime(2024, 3, 20, 1, 17), "60.1699", "24.9384", 7200, 1),
    ("sun", "0", datetime(2024, 6, 21, 7, 0), "37.78549082", "-122.39184303", -25200, 0),
    ("sun", "-0.8", datetime(2024, 12, 21, 20, 30), "27.7172", "85.324", 20700, 0),
    ("sun", "3", datetime(2024, 10, 2, 23, 59), "-33.8688", "151.2093", 36000, 0),
    ("sun", "10", datetime(2024, 12, 21, 0, 0), "60.1699", "24.9384", 7200, 0),
    ("sun", "5", datetime(2024, 6, 21, 0, 0), "78.2232", "15.6267", 7200, 0),
    ("sun", "0.9", datetime(2024, 6, 21, 0, 2), "66.5", "25.73", 10800, 1),
    ("sun", "6.3", datetime(2024, 12, 21, 0, 0), "60.1699", "24.9384", 7200, 1),
    ("moon", "0", datetime(2024, 5, 23, 12, 45), "37.78549082", "-122.39184303", -25200, 0),
    ("moon", "0", datetime(2024, 5, 23, 12, 45), "28.6139", "77.209", 19800, 1),
    ("moon", "-2", datetime(2024, 8, 19, 3, 33), "-43.95", "-176.56", 45900, 0),
    ("moon", "45", datetime(2024, 8, 19, 3, 33), "-33.8688", "151.2093", 36000, 0),
    ("moon", "0", datetime(2024, 6, 21, 0, 0), "85", "0", 0, 1),
]

if __name__ == "__main__":
    print("# Moments at which a body reaches an elevation; made by make_elevation_events.py.")
    print("# search body elevation start(UTC) latitude longitude offset(s) intermediate number-of-records")
    print("# at hour altitude azimuth: the records of the search above")
    for case in CASES:
        body, elevation, start, latitude, longitude, offset, intermediate = case
        found = events(*case)
        print("search", body, elevation, start.strftime("%Y-%m-%dT%H:%M"), latitude, longitude, offset,
              intermediate, len(found))
        for hour, altitude, azimuth in found:
            print("at", *(format(D(v), ".12f") for v in (hour, altitude, azimuth)))
