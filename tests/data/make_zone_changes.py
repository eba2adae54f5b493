#!/usr/bin/env python3
"""Writes zone_changes.txt: when the clocks of some zones change, from 1970 on.

Source: the zone files of this system (Debian package tzdata) as Python's zoneinfo reads them. Rows: zone, instant of
the change in seconds since 1970, offset from GMT in seconds before and after it. Before 1970 databases differ in
which zones they let share their past.
Run with the system's Python: /usr/bin/python3 make_zone_changes.py > zone_changes.txt
"""
import datetime
import zoneinfo

ZONES = """Africa/Cairo Africa/Casablanca Africa/Johannesburg America/Argentina/Buenos_Aires America/Caracas
America/Los_Angeles America/Mexico_City America/New_York America/Nuuk America/Sao_Paulo America/St_Johns
Antarctica/Troll Asia/Almaty Asia/Gaza Asia/Jerusalem Asia/Kathmandu Asia/Kolkata Asia/Pyongyang Asia/Tehran
Asia/Tokyo Australia/Lord_Howe Australia/Sydney Europe/Dublin Europe/Helsinki Europe/Istanbul Europe/Kyiv
Europe/London Europe/Moscow Pacific/Apia Pacific/Chatham Pacific/Kiritimati""".split()
FIRST, LAST, STEP = 0, 2556144000, 86400  # 1970 to 2051, looked at every day


def offset(zone, second):
    return int(datetime.datetime.fromtimestamp(second, zone).utcoffset().total_seconds())


def change_within(zone, low, high):
    before = offset(zone, low)
    while high - low > 1:
        middle = (low + high) // 2
        low, high = (middle, high) if offset(zone, middle) == before else (low, middle)
    return high


print("# Made by make_zone_changes.py: zone, instant of a change of its clocks, offset before and after")
for name in ZONES:
    zone = zoneinfo.ZoneInfo(name)
    for second in range(FIRST, LAST, STEP):
        if offset(zone, second) == offset(zone, second + STEP):
            continue
        change = change_within(zone, second, second + STEP)
        print(name, change, offset(zone, change - 1), offset(zone, change))
