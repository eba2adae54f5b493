"""The answers in Python's types, and their agreement with published times."""

import json
import math
import subprocess
import sys
from datetime import date, datetime, timedelta, timezone
from zoneinfo import ZoneInfo

import numpy as np
import pytest

import velmora
from velmora import AllDay, Body, Contact, EclipseKind, EventKind, Phase, Place, Season, arrays

HELSINKI = Place(60.17, 24.94, ZoneInfo("Europe/Helsinki"))
TROMSO = Place(69.65, 18.96, ZoneInfo("Europe/Oslo"))
UTC = timezone.utc


def test_day_of_midsummer_in_helsinki():
    day = velmora.day(HELSINKI, date(2024, 6, 21))
    assert day.start == datetime(2024, 6, 21, tzinfo=HELSINKI.zone)
    assert day.end - day.start == timedelta(hours=24)
    assert day.sunrise.strftime("%H:%M") == "03:54"
    assert day.sunset.strftime("%H:%M") == "22:50"
    assert abs(day.daylight - (day.sunset - day.sunrise)) < timedelta(seconds=1)
    assert day.darkness == timedelta(0)
    assert day.sun is AllDay.NO
    assert [e.at for e in day.events] == sorted(e.at for e in day.events)


def test_choice_of_events():
    kinds = {e.kind for e in velmora.day(HELSINKI, date(2024, 3, 20), twilight=False, transits=False).events}
    assert kinds == {EventKind.RISE, EventKind.SET}
    kinds = {e.kind for e in velmora.day(HELSINKI, date(2024, 3, 20)).events}
    assert kinds == set(EventKind)


def test_days_of_clock_changes_have_23_and_25_hours():
    days = velmora.days(HELSINKI, date(2024, 3, 30), date(2024, 4, 1))
    absolute = [d.end.timestamp() - d.start.timestamp() for d in days]
    assert absolute == [86400, 82800, 86400]
    assert velmora.day(HELSINKI, date(2024, 10, 27)).end.timestamp() - velmora.day(
        HELSINKI, date(2024, 10, 27)).start.timestamp() == 90000


def test_apia_skipped_a_day():
    apia = Place(-13.83, -171.77, ZoneInfo("Pacific/Apia"))
    assert velmora.day(apia, date(2011, 12, 30)) is None
    assert len(velmora.days(apia, date(2011, 12, 29), date(2011, 12, 31))) == 2


def test_polar_night_of_tromso():
    day = velmora.day(TROMSO, date(2024, 12, 21))
    assert day.sun is AllDay.DOWN and day.sunrise is None and day.daylight == timedelta(0)
    rise = velmora.next_event(TROMSO, Body.SUN, EventKind.RISE, day.start)
    assert rise.at.date() > date(2025, 1, 10)


def test_events_of_any_interval():
    start = datetime(2024, 6, 1, tzinfo=UTC)
    month = velmora.events(HELSINKI, start, start + timedelta(days=30))
    assert sum(e.kind is EventKind.TRANSIT and e.body is Body.SUN for e in month.events) == 30


def test_crossings_rise_then_fall():
    start = datetime(2024, 6, 21, tzinfo=UTC)
    up, down = velmora.crossings(HELSINKI, Body.SUN, 10, start, start + timedelta(days=1))
    assert up.is_rising and not down.is_rising and up.at < down.at
    position = velmora.position(HELSINKI, Body.SUN, up.at)
    assert position.apparent_altitude == pytest.approx(10, abs=0.001)
    assert position.azimuth == pytest.approx(up.azimuth, abs=0.001)


def test_phases_and_seasons_of_2024():
    start, end = datetime(2024, 1, 1, tzinfo=UTC), datetime(2025, 1, 1, tzinfo=UTC)
    phases = velmora.phases(start, end)
    eclipse = next(p for p in phases if p.at.date() == date(2024, 4, 8))
    assert eclipse.phase is Phase.NEW_MOON
    assert eclipse.at.strftime("%H:%M") == "18:20"  # 18:20:48
    seasons = velmora.seasons(start, end)
    assert [s.season for s in seasons] == list(Season)
    assert seasons[0].at.strftime("%m-%d %H:%M") == "03-20 03:06"
    assert {a.is_perigee for a in velmora.apsides(start, end)} == {True, False}


def test_total_eclipse_of_april_2024():
    (eclipse,) = velmora.eclipses(datetime(2024, 4, 1, tzinfo=UTC), datetime(2024, 5, 1, tzinfo=UTC))
    assert eclipse.kind is EclipseKind.TOTAL and eclipse.saros == 139
    mazatlan = velmora.seen_from(eclipse, Place(23.25, -106.41, ZoneInfo("America/Mazatlan")))
    assert mazatlan.kind is EclipseKind.TOTAL and mazatlan.obscuration == 1
    assert list(mazatlan.contacts) == [Contact.C1, Contact.C2, Contact.C3, Contact.C4]
    totality = mazatlan.contacts[Contact.C3].at - mazatlan.contacts[Contact.C2].at
    assert timedelta(minutes=4, seconds=10) < totality < timedelta(minutes=4, seconds=30)
    below = velmora.seen_from(eclipse, HELSINKI)
    assert not below.is_visible and below.best is None and below.visible_from is None
    assert velmora.seen_from(eclipse, Place(-90, 0)) is None


def test_moon_is_full_when_the_phase_says_so():
    full = next(p for p in velmora.phases(datetime(2024, 6, 1, tzinfo=UTC), datetime(2024, 7, 1, tzinfo=UTC))
                if p.phase is Phase.FULL_MOON)
    lit = velmora.illumination(HELSINKI, full.at)
    assert lit.fraction > 0.99 and lit.elongation == pytest.approx(180, abs=0.001)


def test_calendar_month_is_the_fixed_one():
    days = velmora.calendar_month(ZoneInfo("America/New_York"), 2024, 4)
    assert len(days) == 30 and days[7].phase == 3 and days[7].lit == 0


def test_instants_come_back_in_the_places_zone():
    day = velmora.day(HELSINKI, date(2024, 6, 21))
    assert all(e.at.tzinfo is HELSINKI.zone for e in day.events)
    fixed = Place(60.17, 24.94, timezone(timedelta(hours=5, minutes=45)))
    assert velmora.day(fixed, date(2024, 6, 21)).start.utcoffset() == timedelta(hours=5, minutes=45)
    behind = Place(60.17, 24.94, timezone(-timedelta(hours=3, minutes=30)))
    assert velmora.day(behind, date(2024, 6, 21)).start.utcoffset() == -timedelta(hours=3, minutes=30)


@pytest.mark.parametrize("ahead", [timedelta(hours=1, minutes=39, seconds=49), -timedelta(hours=4, seconds=2)])
def test_days_of_an_offset_with_seconds_begin_at_midnight(ahead):
    place = Place(60.17, 24.94, timezone(ahead))
    assert velmora.day(place, date(2024, 6, 21)).start == datetime(2024, 6, 21, tzinfo=place.zone)


@pytest.mark.parametrize(
    "wrong",
    [
        lambda: velmora.day(Place(91, 0), date(2024, 1, 1)),
        lambda: velmora.day(Place(0, 181), date(2024, 1, 1)),
        lambda: velmora.day(Place(math.nan, 0), date(2024, 1, 1)),
        lambda: velmora.days(HELSINKI, date(2024, 1, 2), date(2024, 1, 1)),
        lambda: velmora.phases(datetime(2024, 1, 1), datetime(2025, 1, 1)),  # no zone
        lambda: velmora.crossings(HELSINKI, Body.SUN, 91, datetime(2024, 1, 1, tzinfo=UTC),
                                  datetime(2024, 1, 2, tzinfo=UTC)),
        lambda: velmora.calendar_month(UTC, 2024, 13),
    ],
)
def test_bad_input_is_a_value_error(wrong):
    with pytest.raises(ValueError) as error:
        wrong()
    assert str(error.value)


@pytest.mark.parametrize(
    "wrong",
    [
        lambda: velmora.day(HELSINKI, "2024-01-01"),
        lambda: velmora.day("Helsinki", date(2024, 1, 1)),
        lambda: velmora.day(Place(60.17, 24.94, "Europe/Helsinki"), date(2024, 1, 1)),
        lambda: velmora.day(Place("60.17", 24.94), date(2024, 1, 1)),
        lambda: velmora.position(HELSINKI, "sun", datetime(2024, 1, 1, tzinfo=UTC)),
        lambda: velmora.position(HELSINKI, Body.SUN, date(2024, 1, 1)),
        lambda: velmora.next_event(HELSINKI, Body.SUN, "rise", datetime(2024, 1, 1, tzinfo=UTC)),
        lambda: velmora.seen_from("TSE", HELSINKI),
        lambda: arrays.positions(HELSINKI, 0, np.array(["2024-01-01"], "datetime64[s]")),
    ],
)
def test_a_value_of_another_type_is_a_type_error(wrong):
    with pytest.raises(TypeError) as error:
        wrong()
    assert str(error.value)


@pytest.mark.parametrize(
    "wrong",
    [
        lambda: velmora.day(HELSINKI, date(1899, 12, 31)),
        lambda: velmora.day(HELSINKI, date(1900, 1, 1)),  # which begins in the UTC of 1899
        lambda: velmora.position(HELSINKI, Body.SUN, datetime(2101, 1, 2, tzinfo=UTC)),
        lambda: velmora.illumination(HELSINKI, datetime(1800, 1, 1, tzinfo=UTC)),
        lambda: velmora.calendar_month(UTC, 2041, 1),
    ],
)
def test_years_outside_are_an_error_of_their_own(wrong):
    with pytest.raises(velmora.OutOfYearsError):
        wrong()


def test_arrays_agree_with_single_answers():
    instants = np.datetime64("2024-01-01") + np.arange(0, 365 * 24, 37).astype("timedelta64[h]")
    moon = arrays.positions(HELSINKI, Body.MOON, instants)
    for index in range(0, len(instants), 29):
        at = datetime.fromisoformat(str(instants[index])).replace(tzinfo=UTC)
        single = velmora.position(HELSINKI, Body.MOON, at)
        assert moon["altitude"][index] == pytest.approx(single.altitude, abs=1e-4)
        assert moon["distance"][index] == pytest.approx(single.distance, abs=1)


def test_arrays_of_days_hold_every_event():
    days, events = arrays.days(HELSINKI, date(2024, 1, 1), date(2024, 12, 31))
    assert len(days) == 366 and days["event_count"].sum() == len(events)
    single = velmora.day(HELSINKI, date(2024, 7, 1))
    of_july = days[182]
    found = events[of_july["first_event"]:][: of_july["event_count"]]
    assert found["at"] == pytest.approx([e.at.timestamp() for e in single.events], abs=2e-6)


def test_arrays_hold_nan_where_nothing_is_answered():
    at = np.array(["1850-01-01", "NaT", "2024-01-01"], dtype="datetime64[D]")
    lit = arrays.illuminations(HELSINKI, at)
    assert np.isnan(lit["fraction"]).tolist() == [True, True, False]
    assert np.isnat(arrays.times([np.nan, 0])).tolist() == [True, False]


def test_arrays_keep_their_shape():
    grid = np.arange(12.0).reshape(3, 4) * 86400
    assert arrays.positions(HELSINKI, Body.SUN, grid).shape == (3, 4)
    columns = arrays.positions(HELSINKI, Body.SUN, grid.T)["altitude"]
    assert (columns.T == arrays.positions(HELSINKI, Body.SUN, grid)["altitude"]).all()
    assert arrays.positions(HELSINKI, Body.SUN, np.datetime64("2024-06-21")).shape == ()


def test_cities_of_a_name_come_most_populous_first():
    (munich,) = velmora.cities("MÜNCHEN")
    assert munich.name == "Munich" and munich.country == "DE"
    assert munich.place.zone == ZoneInfo("Europe/Berlin")
    portlands = velmora.cities("Portland")
    assert len(portlands) > 1
    assert [c.people for c in portlands] == sorted((c.people for c in portlands), reverse=True)
    assert velmora.cities("Nowhere at all") == []


def test_a_day_at_many_places_agrees_with_each():
    latitudes, longitudes = np.meshgrid(np.arange(-80, 81, 40.0), np.arange(-180, 180, 60.0), indexing="ij")
    start = datetime(2024, 6, 21, tzinfo=UTC)
    world = arrays.at_places(latitudes, longitudes, start, start + timedelta(days=1), threads=2)
    assert world.shape == latitudes.shape
    for row, column in ((0, 0), (2, 3), (4, 5)):
        place = Place(float(latitudes[row, column]), float(longitudes[row, column]))
        alone = velmora.events(place, start, start + timedelta(days=1), twilight=False, transits=False)
        assert world["daylight"][row, column] == pytest.approx(alone.daylight.total_seconds(), abs=1e-5)
        rise = alone.first(Body.SUN, EventKind.RISE)
        assert np.isnan(world["sun_rise"][row, column]) if rise is None else world["sun_rise"][
            row, column] == pytest.approx(rise.at.timestamp(), abs=1e-5)
    with pytest.raises(ValueError):
        arrays.at_places([0, 91], [0, 0], start, start + timedelta(days=1))


def run(*arguments):
    return subprocess.run([sys.executable, "-m", "velmora", *arguments], capture_output=True, text=True, check=False)


def test_program_prints_the_day_of_a_city():
    answer = run("today", "--city", "Helsinki", "--date", "2024-06-21")
    assert answer.returncode == 0 and answer.stderr == ""
    assert "Helsinki" in answer.stdout and "03:54" in answer.stdout and "22:50" in answer.stdout
    record = json.loads(run("today", "--city", "Helsinki", "--date", "2024-06-21", "--json").stdout)
    assert record["sunrise"].startswith("2024-06-21T03:54") and record["sun_all_day"] == "no"


@pytest.mark.parametrize(
    ("arguments", "words"),
    [
        (("today", "--city", "Nowhere at all"), "Nowhere at all"),
        (("today", "--city", "Portland"), "Portland, Maine"),
        (("today", "--lat", "91", "--lon", "0"), "latitude lies outside -90 to 90"),
        (("today", "--lat", "10"), "--lon"),
        (("today", "--lat", "10", "--lon", "10", "--tz", "Mars/Base"), "Mars/Base"),
        (("today", "--city", "Helsinki", "--date", "1850-01-01"), "1900 to 2100"),
        (("today", "--city", "Helsinki", "--date", "tomorrow"), "YYYY-MM-DD"),
    ],
)
def test_program_refuses_bad_input_in_one_line(arguments, words):
    answer = run(*arguments)
    assert answer.returncode == 2 and answer.stdout == ""
    assert words in answer.stderr.splitlines()[-1]
    assert "Traceback" not in answer.stderr
