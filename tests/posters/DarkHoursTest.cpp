#include <velmora/posters/DarkHours.h>

#include <gtest/gtest.h>

#include "tests/posters/PosterTesting.h"

#include <velmora/posters/NightSky.h>

namespace velmora {
namespace {

using almanac::Event;
using almanac::EventKind;
using almanac::Interval;
using ephemeris::Body;
using std::chrono::year;

Instant hour(double hours) { return instantFromUnixSeconds(hours * 3600); }

almanac::Day dayOf(std::vector<Event> events) {
  almanac::Day day;
  day.start = hour(12);
  day.end = hour(36);
  day.events = std::move(events);
  return day;
}

Event sun(double hours, EventKind kind) { return {.at = hour(hours), .body = Body::sun, .kind = kind}; }
Event moon(double hours, EventKind kind) { return {.at = hour(hours), .body = Body::moon, .kind = kind}; }

const Event dusk = sun(18, EventKind::astronomicalDusk), dawn = sun(30, EventKind::astronomicalDawn);

TEST(DarkHours, LastFromDuskToDawnWithoutTheMoon) {
  almanac::Day day = dayOf({dusk, dawn});
  day.moon = almanac::AllDay::down;
  EXPECT_EQ(darkHours(day), (std::vector<Interval>{{hour(18), hour(30)}}));
  day.moon = almanac::AllDay::up;
  EXPECT_TRUE(darkHours(day).empty());
}

TEST(DarkHours, EndWithMoonriseAndBeginWithMoonset) {
  EXPECT_EQ(darkHours(dayOf({dusk, moon(20, EventKind::rise), dawn})),
            (std::vector<Interval>{{hour(18), hour(20)}}));
  EXPECT_EQ(darkHours(dayOf({dusk, moon(20, EventKind::set), dawn})),
            (std::vector<Interval>{{hour(20), hour(30)}}));
  EXPECT_EQ(darkHours(dayOf({dusk, moon(20, EventKind::rise), moon(26, EventKind::set), dawn})),
            (std::vector<Interval>{{hour(18), hour(20)}, {hour(26), hour(30)}}));
}

TEST(DarkHours, NeedNoDuskWhereTheNightHasBegun) {
  almanac::Day day = dayOf({dawn});
  day.moon = almanac::AllDay::down;
  EXPECT_EQ(darkHours(day), (std::vector<Interval>{{hour(12), hour(30)}}));
  day.events.clear();
  day.darkness = Seconds(86400);
  EXPECT_EQ(darkHours(day), (std::vector<Interval>{{hour(12), hour(36)}}));
  day.darkness = Seconds(0);
  EXPECT_TRUE(darkHours(day).empty());
}

TEST(DarkHours, TheLongestIsFound) {
  const std::vector<Interval> stretches = {{hour(1), hour(2)}, {hour(3), hour(6)}, {hour(7), hour(8)}};
  EXPECT_EQ(longest(stretches), (Interval{hour(3), hour(6)}));
  EXPECT_EQ(longest({}), std::nullopt);
}

TEST(DarkHours, OfAnIntervalAreCutToIt) {
  const std::vector<Interval> stretches = {{hour(1), hour(4)}, {hour(5), hour(9)}};
  EXPECT_EQ(within(stretches, {hour(2), hour(6)}),
            (std::vector<Interval>{{hour(2), hour(4)}, {hour(5), hour(6)}}));
}

// By the positions of Sun and Moon at each quarter of an hour of a year, which the events do not come from.
TEST(DarkHours, AgreeWithThePositions) {
  for (const PosterPlace& place : {testing::helsinki(), testing::tromso(), testing::sydney()}) {
    const Instant from = nightOf(place.zone, year(2026) / 1 / 1).start,
                  to = nightOf(place.zone, year(2026) / 12 / 31).end;
    const auto dark = darkHours(almanac::day(place.place, from, to).value());
    std::vector<Instant> moments;
    for (Instant at = from; at < to; at += Seconds(900)) moments.push_back(at);
    std::vector<almanac::Position> suns(moments.size()), moons(moments.size());
    almanac::positions(place.place, Body::sun, moments, suns);
    almanac::positions(place.place, Body::moon, moments, moons);
    int compared = 0;
    for (std::size_t i = 0; i < moments.size(); ++i) {
      const double moonLimb = moons[i].altitude + moons[i].semidiameter + 34.0 / 60;
      if (std::abs(suns[i].altitude + 18) < 0.01 || std::abs(moonLimb) < 0.01) continue;
      const bool isDark = suns[i].altitude < -18 && moonLimb < 0;
      EXPECT_EQ(!within(dark, {moments[i], moments[i] + Seconds(1)}).empty(), isDark) << place.name << i;
      ++compared;
    }
    EXPECT_GT(compared, 34000) << place.name;
  }
}

}  // namespace
}  // namespace velmora
