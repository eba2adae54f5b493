#!/usr/bin/env python3
"""Checks the program's calendar files with a parser that is not its own (Debian package python3-icalendar).

Run: /usr/bin/python3 check_calendar.py PATH/TO/velmora
"""
import json
import subprocess
import sys
from datetime import datetime, timedelta, timezone

from icalendar import Calendar

PROGRAM = sys.argv[1]
NOW = "2024-06-20T12:34:56Z"
# No backslash in front of a comma: the parser drops it.
LONG_NAME = "Hütte am See; 5. Stock, \\links, „Zum Mond“ " + "満月🌕é" * 20
PLACES = [
    {"city": "New York"},
    {"city": "Sydney", "locale": "ja_JP"},
    {"city": "Apia", "locale": "ar_EG"},
    {"lat": -33.9, "lon": 151.2, "gmt-offset": 36000, "locale": "hi_IN"},
    {"lat": 52.5, "lon": 13.4, "tz": "Europe/Berlin", "name": LONG_NAME},
]
# No eclipse lies near their ends, where its day at a place is another than in universal time.
RANGES = [("2024-01-01", "2024-12-31"), ("2011-12-28", "2012-01-02"), ("2000-01-01", "2040-12-31")]


def run(*arguments, lines=b""):
    return subprocess.run([PROGRAM, *arguments, "--now", NOW], input=lines, check=True, capture_output=True).stdout


def answers(requests):
    lines = "\n".join(json.dumps(request) for request in requests).encode()
    return [json.loads(line)["result"] for line in run("batch", lines=lines).splitlines()]


def calendar_file(place, begin, end):
    options = [text for name, value in place.items() for text in ("--" + name, str(value))]
    raw = run("ics", "--from", begin, "--to", end, *options)
    [same] = answers([{"op": "ics", "from": begin, "to": end, **place}])
    assert same["calendar"].encode() == raw
    return raw


def expected(place, begin, end):
    """Instant and title of each event, as the program's other commands answer them: an eclipse is noted at its
    maximum, or where its body rises or sets if that is the most that is seen."""
    years = range(int(begin[:4]), int(end[:4]) + 1)
    phases, *eclipses = answers([{"op": "phases", "from": begin, "to": end, **place}] +
                                [{"op": "eclipses", "year": year, **place} for year in years])
    events = [(phase["localDate"], phase["phaseName"]) for phase in phases]
    events += [(moment(eclipse, place), eclipse["title"]) for of_year in eclipses for eclipse in of_year
               if eclipse["isVisible"] and begin < eclipse["datetime"][:10] < end]
    return sorted(events)


def moment(eclipse, place):
    local = eclipse["local"]
    if local["maximum"]["isUp"]:
        return local["maximum"]["instant"]
    first, last = local["contacts"][0]["instant"], local["contacts"][-1]["instant"]
    day = datetime.fromisoformat(eclipse["datetime"])
    near = [str((day + timedelta(days=n)).date()) for n in (-1, 1)]
    [days] = answers([{"op": "riseset", "from": near[0], "to": near[1], **place}])
    body = "moon" if eclipse["isLunarEvent"] else "sun"
    [passage] = {event["instant"] for day in days for event in day["events"] if event["body"] == body
                 and event["event"] in ("rise", "set") and first <= event["instant"] <= last}
    return passage


def check_lines(raw):
    assert raw.endswith(b"\r\n")
    for line in raw[:-2].split(b"\r\n"):
        assert b"\n" not in line and b"\r" not in line, line
        assert len(line) <= 75, line
        line.decode("utf-8")


def check_event(event, location):
    start = event.decoded("DTSTART")
    assert start.utcoffset() == timedelta(0), start
    assert "DTEND" not in event and "DURATION" not in event
    assert event.decoded("DTSTAMP") == datetime(2024, 6, 20, 12, 34, 56, tzinfo=timezone.utc)
    assert event.get("LOCATION") in (None, location), event.get("LOCATION")
    return start.strftime("%Y-%m-%dT%H:%M:%SZ"), str(event["SUMMARY"])


def check(place, begin, end):
    raw = calendar_file(place, begin, end)
    check_lines(raw)
    calendar = Calendar.from_ical(raw)
    assert calendar.name == "VCALENDAR" and calendar["VERSION"] == "2.0" and calendar["PRODID"]
    assert not calendar.errors, calendar.errors
    events = calendar.walk("VEVENT")
    assert len({e["UID"] for e in events}) == len(events), "an UID is not unique"
    [today] = answers([{"op": "today", **place}])
    location = today["place"]["name"] or "33.9000° S, 151.2000° E"
    found = [check_event(e, location) for e in events]
    starts = [start for start, _ in found]
    assert starts == sorted(starts)
    assert sorted(found) == expected(place, begin, end), (place, begin, end)
    return len(found)


if __name__ == "__main__":
    count = sum(check(place, *span) for place in PLACES for span in RANGES)
    assert count > 10000, count
    print(count, "events agree")
