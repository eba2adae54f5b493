#include <algorithm>
#include <chrono>
#include <cmath>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <tests/almanac/AlmanacTesting.h>
#include <tests/support/NotFinite.h>
#include <velmora/almanac/Events.h>
#include <velmora/almanac/Positions.h>

namespace velmora::almanac {
namespace {

using namespace std::chrono;
using namespace velmora::testing;

constexpr Place anchorage{61.2181, -149.9003}, tromso{69.6492, 18.9553};
constexpr Place apia{-13.8333, -171.7667}, northPole{90, 0}, southPole{-90, 0};

std::optional<Day> dayOf(const Place& place, const char* zoneName, year_month_day date) {
  return day(place, zoneNamed(zoneName), date);
}

int count(const Day& day, Body body, EventKind kind) {
  return static_cast<int>(std::count_if(day.events.begin(), day.events.end(), [&](const Event& event) {
    return event.body == body && event.kind == kind;
  }));
}

const Event& only(const Day& day, Body body, EventKind kind) {
  EXPECT_EQ(count(day, body, kind), 1);
  return *std::find_if(day.events.begin(), day.events.end(),
                       [&](const Event& event) { return event.body == body && event.kind == kind; });
}

TEST(AlmanacDay, OfLondonHasItsTwelveEventsInTimeOrder) {
  const auto day = dayOf(london, "Europe/London", 2024y / March / 20);
  ASSERT_TRUE(day);
  ASSERT_EQ(day->events.size(), 12U);
  EXPECT_TRUE(std::is_sorted(day->events.begin(), day->events.end(),
                             [](const Event& a, const Event& b) { return a.at < b.at; }));
  EXPECT_EQ(day->sun, AllDay::no);
  EXPECT_EQ(day->moon, AllDay::no);
  const Event& rise = only(*day, Body::sun, EventKind::rise);
  const Event& set = only(*day, Body::sun, EventKind::set);
  EXPECT_EQ(day->daylight, set.at - rise.at);
  const Event& dawn = only(*day, Body::sun, EventKind::astronomicalDawn);
  const Event& dusk = only(*day, Body::sun, EventKind::astronomicalDusk);
  EXPECT_EQ(day->darkness, (dawn.at - day->start) + (day->end - dusk.at));
}

TEST(AlmanacDay, LondonIsDarkFor102MinutesOn18May2024) {
  const auto day = dayOf(london, "Europe/London", 2024y / May / 18);
  ASSERT_TRUE(day);
  EXPECT_NEAR(day->darkness / minutes(1), 102.5, 0.1);
}

TEST(AlmanacDay, AnchorageHasNoDayOf2025WithTheSunUpAllDay) {
  const auto year =
      days(anchorage, zoneNamed("America/Anchorage"), 2025y / January / 1, 2025y / December / 31);
  ASSERT_EQ(year.size(), 365U);
  for (const Day& day : year) EXPECT_EQ(day.sun, AllDay::no);
}

TEST(AlmanacDay, TromsoHasPolarDayAndPolarNight) {
  const auto summer = dayOf(tromso, "Europe/Oslo", 2024y / June / 21);
  EXPECT_EQ(summer->sun, AllDay::up);
  EXPECT_EQ(summer->daylight, hours(24));
  EXPECT_EQ(summer->darkness, Seconds(0));
  const auto winter = dayOf(tromso, "Europe/Oslo", 2024y / December / 21);
  EXPECT_EQ(winter->sun, AllDay::down);
  EXPECT_EQ(winter->daylight, Seconds(0));
  EXPECT_GT(winter->darkness, hours(12));
}

TEST(AlmanacDay, OnEachPoleTheSunRisesOnceAYear) {
  for (const Place& pole : {northPole, southPole}) {
    const auto year = days(pole, zoneNamed("UTC"), 2024y / January / 1, 2024y / December / 31);
    int rises = 0, sets = 0;
    for (const Day& day : year) {
      rises += count(day, Body::sun, EventKind::rise);
      sets += count(day, Body::sun, EventKind::set);
    }
    EXPECT_EQ(rises, 1);
    EXPECT_EQ(sets, 1);
  }
}

TEST(AlmanacDay, OfClockChangesIsAsLongAsTheClocksMakeIt) {
  const std::vector<std::pair<year_month_day, double>> lengths = {
      {2024y / March / 31, 23}, {2024y / June / 1, 24}, {2024y / October / 27, 25}};
  for (const auto& [date, length] : lengths) {
    const auto day = dayOf(london, "Europe/London", date);
    ASSERT_TRUE(day);
    EXPECT_EQ((day->end - day->start).count() / 3600, length);
    EXPECT_EQ(count(*day, Body::sun, EventKind::rise), 1);
    EXPECT_EQ(count(*day, Body::sun, EventKind::set), 1);
  }
  const auto lordHowe = dayOf({-31.55, 159.0833}, "Australia/Lord_Howe", 2024y / April / 7);
  EXPECT_EQ((lordHowe->end - lordHowe->start).count() / 3600, 24.5);
}

TEST(AlmanacDay, OfTheShortestTimeThereIsIsWhollyDayOrNight) {
  constexpr double never = infinity;
  const auto after = [](Instant at) {
    return instantFromUnixSeconds(std::nextafter(unixSeconds(at), never));
  };
  const auto before = [](Instant at) {
    return instantFromUnixSeconds(std::nextafter(unixSeconds(at), -never));
  };
  const Instant midnight = sys_days(2024y / January / 1), noon = midnight + hours(12);
  const Instant end = ephemeris::endInstant(), first = ephemeris::firstInstant();
  for (const auto& [from, to] : {Interval{midnight, after(midnight)}, Interval{before(midnight), midnight},
                                 Interval{instantFromUnixSeconds(0), instantFromUnixSeconds(1e-320)},
                                 Interval{before(end), end}, Interval{first, after(first)}}) {
    const auto found = day({51.5, 0}, from, to);
    ASSERT_TRUE(found) << unixSeconds(from);
    EXPECT_TRUE(found->events.empty());
    EXPECT_EQ(found->sun, AllDay::down);
    EXPECT_EQ(found->darkness, to - from);
  }
  EXPECT_EQ(day({51.5, 0}, noon, after(noon))->sun, AllDay::up);
  EXPECT_EQ(day({51.5, 0}, before(noon), noon)->sun, AllDay::up);
}

TEST(AlmanacDay, IsNoneWhereApiaSkippedIt) {
  EXPECT_EQ(dayOf(apia, "Pacific/Apia", 2011y / December / 30), std::nullopt);
  const auto around = days(apia, zoneNamed("Pacific/Apia"), 2011y / December / 28, 2012y / January / 2);
  ASSERT_EQ(around.size(), 5U);
  EXPECT_EQ(around[1].end, around[2].start);
}

TEST(AlmanacDay, IsTheSameAloneInAYearAndInAGrid) {
  const auto year = days(tromso, zoneNamed("Europe/Oslo"), 2023y / January / 1, 2023y / December / 31);
  for (std::size_t k = 0; k < year.size(); k += 13) {
    EXPECT_EQ(day(tromso, year[k].start, year[k].end), year[k]);
    std::vector<Day> seen;
    forEachPlace({&tromso, 1}, year[k].start, year[k].end,
                 [&](std::size_t, const Day& found) { seen.push_back(found); });
    EXPECT_EQ(seen, std::vector<Day>{year[k]});
    const auto paths = ephemeris::Paths::over(year[k].start - hours(50), year[k].end + hours(50));
    EXPECT_EQ(day(*paths, tromso, year[k].start, year[k].end), year[k]);
  }
}

TEST(AlmanacDay, NeedsNoPathsBeyondItsEnds) {
  for (int number = 0; number < 40; ++number) {
    const Instant start = sys_days(2024y / June / 1) + number * hours(24) + minutes(30),
                  end = start + hours(24);
    const auto paths = ephemeris::Paths::over(start, end);
    EXPECT_EQ(day(*paths, tromso, start, end), day(tromso, start, end));
  }
}

TEST(AlmanacDay, OfAYearHoldsTheEventsOfItsDays) {
  const auto single = days(london, zoneNamed("UTC"), 2024y / January / 1, 2024y / December / 31);
  std::vector<Event> events;
  Seconds daylight{}, darkness{};
  for (const Day& day : single) {
    events.insert(events.end(), day.events.begin(), day.events.end());
    daylight += day.daylight;
    darkness += day.darkness;
  }
  const auto year = day(london, single.front().start, single.back().end);
  EXPECT_EQ(year->events, events);
  EXPECT_EQ(year->daylight, daylight);
  EXPECT_EQ(year->darkness, darkness);
}

TEST(AlmanacDay, GivesOnlyWhatIsChosen) {
  const Instant start = sys_days(2024y / March / 20), end = start + hours(24);
  const auto all = day(london, start, end),
             few = day(london, start, end, {.twilight = false, .transits = false});
  ASSERT_TRUE(few);
  EXPECT_EQ(few->events.size(), 4U);
  EXPECT_EQ(few->darkness, all->darkness);
  EXPECT_EQ(few->daylight, all->daylight);
  const auto noTransits = day(london, start, end, {.transits = false});
  EXPECT_EQ(noTransits->events.size(), 10U);
}

TEST(AlmanacDay, EventsStandWhereTheBodyIs) {
  const auto day = dayOf(london, "Europe/London", 2024y / March / 20);
  for (const Event& event : day->events) {
    const auto there = position(london, event.body, event.at);
    ASSERT_TRUE(there);
    EXPECT_NEAR(event.altitude, there->apparentAltitude, 2e-5);
    EXPECT_NEAR(event.azimuth, there->azimuth, 2e-5);
    if (event.kind == EventKind::transit) {
      EXPECT_NEAR(event.azimuth, 180, 1e-5);
    }
  }
}

TEST(AlmanacDay, FollowsTheConvention) {
  const Instant start = sys_days(2024y / March / 20), end = start + hours(24);
  const auto rise = [&](const Place& place, const Convention& convention) {
    return only(*day(place, start, end, {}, convention), Body::sun, EventKind::rise).at;
  };
  const auto moonset = [&](Convention::Limb limb) {
    return only(*day(london, start, end, {}, {.limb = limb}), Body::moon, EventKind::set).at;
  };
  const Instant standard = rise(london, {});
  EXPECT_NEAR((rise(london, {.limb = Convention::Limb::center}) - standard).count(), 103, 2);
  EXPECT_NEAR((rise(london, {.limb = Convention::Limb::lower}) - standard).count(), 206, 3);
  EXPECT_NEAR((rise(london, {.horizonRefraction = 0}) - standard).count(), 219, 4);
  EXPECT_LT(moonset(Convention::Limb::lower), moonset(Convention::Limb::center));
  EXPECT_LT(moonset(Convention::Limb::center), moonset(Convention::Limb::upper));
  Place tower = london;
  tower.height = 100;  // a dip of 17.6′
  EXPECT_NEAR((rise(tower, {}) - standard).count(), -113, 2);
}

TEST(AlmanacDay, IsNoneForWhatIsNotValid) {
  const Instant start = sys_days(2024y / March / 20), end = start + hours(24);
  for (const double bad : {nan, infinity, -infinity}) {
    EXPECT_FALSE(day({bad, 0}, start, end));
    EXPECT_FALSE(day({0, bad}, start, end));
    EXPECT_FALSE(day({0, 0, bad}, start, end));
    EXPECT_FALSE(day(london, instantFromUnixSeconds(bad), end));
    EXPECT_FALSE(day(london, start, instantFromUnixSeconds(bad)));
    EXPECT_FALSE(day(london, start, end, {}, {.horizonRefraction = bad}));
    EXPECT_FALSE(day(london, start, end, {}, {.sunSemidiameter = bad}));
    EXPECT_TRUE(crossings(london, Body::sun, bad, start, end).empty());
    EXPECT_TRUE(crossings({bad, 0}, Body::sun, 0, start, end).empty());
    EXPECT_FALSE(next(london, Body::sun, EventKind::rise, instantFromUnixSeconds(bad)));
    EXPECT_FALSE(next({bad, 0}, Body::sun, EventKind::rise, start));
  }
  EXPECT_FALSE(day(london, end, start));
  EXPECT_FALSE(day(london, start, start));
  EXPECT_FALSE(dayOf(london, "UTC", 2023y / February / 29));
}

TEST(AlmanacDay, IsNoneOutsideItsYears) {
  EXPECT_TRUE(dayOf(london, "UTC", 1900y / January / 1));
  EXPECT_TRUE(dayOf(london, "UTC", 2100y / December / 31));
  EXPECT_FALSE(dayOf(london, "UTC", 1899y / December / 31));
  EXPECT_FALSE(dayOf(london, "UTC", 2101y / January / 1));
  EXPECT_TRUE(days(london, zoneNamed("UTC"), 2100y / December / 30, 2101y / January / 1).empty());
  EXPECT_TRUE(days(london, zoneNamed("UTC"), year::min() / 1 / 1, year::max() / 12 / 31).empty());
  EXPECT_TRUE(day(london, ephemeris::firstInstant(), ephemeris::endInstant()));
}

TEST(AlmanacGrid, OfManyThreadsIsThatOfOne) {
  std::vector<Place> places;
  for (int latitude = -90; latitude <= 90; latitude += 10) {
    for (int longitude = -180; longitude <= 180; longitude += 9) {
      places.push_back({static_cast<double>(latitude), static_cast<double>(longitude)});
    }
  }
  places[17].latitude = 91;
  const Instant start = sys_days(2024y / June / 1);
  const auto grid = [&](const Executor& run) {
    std::vector<Day> found(places.size());
    EXPECT_TRUE(forEachPlace(
        places, start, start + hours(24), [&](std::size_t place, const Day& day) { found[place] = day; },
        run));
    return found;
  };
  const std::vector<Day> alone = grid({});
  EXPECT_EQ(grid(onThreads(4)), alone);
  EXPECT_EQ(alone[17], Day());
  EXPECT_EQ(alone[18], day(places[18], start, start + hours(24)));
}

TEST(AlmanacGrid, IsRefusedWhereNothingIsCovered) {
  const auto never = [](std::size_t, const Day&) { FAIL(); };
  EXPECT_FALSE(forEachPlace({&london, 1}, sys_days(1800y / 1 / 1), sys_days(1800y / 1 / 2), never));
}

TEST(Crossings, AreWhereTheApparentAltitudeIsReached) {
  const Instant start = sys_days(2024y / March / 20);
  for (const Body body : {Body::sun, Body::moon}) {
    for (const double altitude : {-18.0, -6.0, -0.5, 0.0, 5.0, 30.0}) {
      const auto found = crossings(london, body, altitude, start, start + hours(48));
      EXPECT_GE(found.size(), 2U);
      for (const Crossing& crossing : found) {
        const auto there = position(london, body, crossing.at);
        const double truly = altitude == -0.5 ? -1 : altitude;  // which refraction jumps over
        EXPECT_NEAR(altitude == -0.5 ? there->altitude : there->apparentAltitude, truly, 2e-5);
        EXPECT_NEAR(there->azimuth, crossing.azimuth, 2e-5);
        EXPECT_EQ(crossing.isRising, crossing.azimuth < 180);
      }
    }
  }
  EXPECT_TRUE(crossings(london, Body::sun, 39, start, start + hours(24)).empty());
}

TEST(NextEvent, IsTheFirstAfterTheInstant) {
  const Instant start = sys_days(2024y / March / 20);
  const auto today = day(london, start, start + hours(24));
  for (const Event& event : today->events) {
    EXPECT_EQ(next(london, event.body, event.kind, start), event);
    EXPECT_EQ(next(london, event.body, event.kind, event.at - Seconds(1)), event);
    EXPECT_GT(next(london, event.body, event.kind, event.at)->at, event.at + hours(22));
  }
}

TEST(NextEvent, IsFoundMonthsAheadAtThePole) {
  const auto rise = next(northPole, Body::sun, EventKind::rise, sys_days(2024y / October / 1));
  ASSERT_TRUE(rise);
  EXPECT_EQ(floor<std::chrono::days>(rise->at), sys_days(2025y / March / 18));
  const auto set = next(southPole, Body::sun, EventKind::set, sys_days(2024y / March / 30));
  ASSERT_TRUE(set);
  EXPECT_EQ(year_month_day(floor<std::chrono::days>(set->at)).year(), 2025y);
}

TEST(NextEvent, IsNoneWhereThereIsNone) {
  EXPECT_FALSE(next({0, 0}, Body::moon, EventKind::civilDawn, sys_days(2024y / 1 / 1)));
  EXPECT_FALSE(next(northPole, Body::sun, EventKind::rise, sys_days(2100y / October / 1)));
  EXPECT_FALSE(next(london, Body::sun, EventKind::rise, sys_days(2101y / January / 1)));
}

}  // namespace
}  // namespace velmora::almanac
