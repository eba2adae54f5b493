#!/usr/bin/env python3
"""Writes recurrences.txt: rules by which events recur, drawn by lot, and on which days of 2026 they do.

Run: /usr/bin/python3 make_recurrences.py > recurrences.txt
Source: python-dateutil 2.8.2. A line: the rule, the first day, the days.
"""
import random
from datetime import datetime, timedelta

from dateutil.rrule import rrulestr

WEEKDAYS = ["MO", "TU", "WE", "TH", "FR", "SA", "SU"]
FIRST, LAST = datetime(2026, 1, 1), datetime(2026, 12, 31)
lot = random.Random(5545)


def some(values, most):
    return ",".join(map(str, sorted(lot.sample(list(values), lot.randint(1, most)))))


def signed(last):
    return [n for n in range(-last, last + 1) if n != 0]


def weekdays(numbers):
    names = lot.sample(WEEKDAYS, lot.randint(1, 3))
    return ",".join((str(lot.choice(numbers)) if numbers else "") + name for name in names)


def months():
    return [f"BYMONTH={some(range(1, 13), 3)}"] if lot.random() < 0.5 else []


def position():
    return [f"BYSETPOS={lot.choice([1, 2, -1])}"]


def yearly():
    kind = lot.randrange(6)
    if kind == 0:
        return []
    if kind == 1:
        return [f"BYYEARDAY={some(signed(366), 3)}"]
    if kind == 2:
        return [f"BYWEEKNO={some(range(2, 52), 3)}", f"BYDAY={weekdays([])}"]
    if kind == 3:
        return [f"BYDAY={weekdays(signed(5))}"]
    if kind == 4:
        return [f"BYMONTH={some(range(1, 13), 3)}", f"BYMONTHDAY={some(signed(31), 3)}"]
    return [f"BYMONTH={some(range(1, 13), 2)}", f"BYDAY={weekdays(lot.choice([[], signed(5)]))}"]


def monthly():
    kind = lot.randrange(4)
    if kind == 0:
        return months()
    if kind == 1:
        return [f"BYMONTHDAY={some(signed(31), 3)}"] + months()
    if kind == 2:
        return [f"BYDAY={weekdays(signed(5))}"] + months()
    return [f"BYDAY={weekdays([])}"] + position() + months()


def weekly():
    return [f"BYDAY={weekdays([])}", f"WKST={lot.choice(['MO', 'SU'])}"] + months()


def daily():
    kind = lot.randrange(3)
    return months() + ([[], [f"BYDAY={weekdays([])}"], [f"BYMONTHDAY={some(signed(31), 9)}"]][kind])


def end(start):
    kind = lot.randrange(4)
    if kind == 0:
        return [f"COUNT={lot.randint(1, 400)}"]
    if kind == 1:
        return [f"UNTIL={start + timedelta(days=lot.randint(300, 3000)):%Y%m%d}"]
    return []


def line():
    start = datetime(2016, 1, 1) + timedelta(days=lot.randrange(3600))
    frequency, parts = lot.choice([("YEARLY", yearly), ("MONTHLY", monthly), ("WEEKLY", weekly), ("DAILY", daily)])
    rule = ";".join([f"FREQ={frequency}"] + [f"INTERVAL={lot.choice([1, 1, 1, 2, 3])}"] + parts() + end(start))
    days = rrulestr(rule, dtstart=start).between(FIRST, LAST, inc=True)
    return " ".join([rule, f"{start:%Y%m%d}"] + [f"{day:%m-%d}" for day in days])


for _ in range(400):
    print(line())
